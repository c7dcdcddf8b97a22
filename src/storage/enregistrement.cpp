#include "storage/enregistrement.h"

#include "rules/erreurs.h"
#include "rules/texte.h"
#include "storage/valeur.h"

#include <utility>

using namespace Qt::StringLiterals;

Valeur::Valeur(QStringView texte)
{
    // Not null even when empty: Qt would bind a null QString as Null.
    const QStringView garde = sansBlancsFinaux(texte);
    m_variante = garde.isEmpty() ? u""_s : garde.toString();
}

Valeur::Valeur(QDate jour)
{
    if (jour.isValid())
        m_variante = jour.toString(Qt::ISODate);
}

Valeur Valeur::brute(const QVariant &variante)
{
    Valeur valeur;
    valeur.m_variante = variante;
    return valeur;
}

Genre genreDe(QStringView typeDeclare)
{
    if (typeDeclare.startsWith(u"int", Qt::CaseInsensitive))
        return Genre::Entier;
    if (typeDeclare.startsWith(u"currency", Qt::CaseInsensitive))
        return Genre::Montant;
    if (typeDeclare.startsWith(u"date", Qt::CaseInsensitive))
        return Genre::Jour;
    return Genre::Texte;
}

int Col::rang(const QStringList &noms) const
{
    if (m_nom.isNull()) {
        if (m_rang < 0 || m_rang >= noms.size())
            throw ErreurBase(u"Il n'y a pas de colonne numéro %1."_s.arg(m_rang));
        return m_rang;
    }
    for (qsizetype i = 0; i < noms.size(); ++i) {
        if (noms[i].size() == m_nom.size() && m_nom.compare(noms[i], Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    }
    throw ErreurBase(u"La colonne « %1 » n'existe pas."_s.arg(m_nom));
}

QDate jourStocke(const QVariant &valeur)
{
    const QString texte = valeur.toString();
    const QStringView jour = QStringView(texte).left(10);
    if (jour.size() < 10 || jour[4] != u'-' || jour[7] != u'-')
        return {};
    const auto nombre = [](QStringView chiffres) {
        int somme = 0;
        for (const QChar c : chiffres)
            somme = estChiffre(c) && somme >= 0 ? somme * 10 + (c.unicode() - u'0') : -1;
        return somme;
    };
    return QDate(nombre(jour.first(4)), nombre(jour.sliced(5, 2)), nombre(jour.sliced(8, 2)));
}

Enregistrement::Enregistrement(std::shared_ptr<const QStringList> noms, QVariantList valeurs, qint64 rowid)
    : m_noms(std::move(noms)), m_valeurs(std::move(valeurs)), m_rowid(rowid)
{
}

QVariant Enregistrement::valeur(Col colonne) const
{
    if (m_valeurs.isEmpty())
        throw ErreurBase(u"Il n'y a pas de ligne à lire : aucune n'est choisie, ou elle n'existe plus."_s);
    return m_valeurs[colonne.rang(*m_noms)];
}

QString Enregistrement::texte(Col colonne) const
{
    const QVariant lue = valeur(colonne);
    return lue.isNull() ? QString() : lue.toString();
}

qint64 Enregistrement::entier(Col colonne) const
{
    const QVariant lue = valeur(colonne);
    if (lue.typeId() == QMetaType::LongLong && !lue.isNull())
        return lue.toLongLong();
    throw ErreurConversion(lue.isNull()
                               ? u"La colonne « %1 » est vide : un nombre y est attendu."_s.arg(
                                     m_noms->at(colonne.rang(*m_noms)))
                               : u"« %1 », lu dans la colonne « %2 », n'est pas un nombre entier."_s.arg(
                                     lue.toString(), m_noms->at(colonne.rang(*m_noms))));
}

Currency Enregistrement::montant(Col colonne) const { return Currency::deDixMilliemes(entier(colonne)); }

QDate Enregistrement::date(Col colonne) const
{
    const QVariant lue = valeur(colonne);
    if (lue.isNull())
        return {};
    const QDate jour = jourStocke(lue);
    if (!jour.isValid()) {
        throw ErreurConversion(u"« %1 », lu dans la colonne « %2 », n'est pas une date."_s.arg(
            lue.toString(), m_noms->at(colonne.rang(*m_noms))));
    }
    return jour;
}
