#include "declarations/champsexport.h"

#include "declarations/declaration.h"
#include "rules/date.h"
#include "rules/erreurs.h"
#include "rules/texte.h"
#include "storage/base.h"

#include <QIODevice>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView finDeLigne = u"\r\n";

void ecrire(QIODevice &fichier, QStringView ligne)
{
    const QByteArray octets = encoder(ligne);
    if (fichier.write(octets) != octets.size())
        throw ErreurFichier(u"Le fichier ne peut pas être écrit.\n%1"_s.arg(fichier.errorString()));
}

QString enForme(const Enregistrement &rangee, Col colonne, Forme forme)
{
    switch (forme) {
    case Forme::TelQuel:
        return rangee.texte(colonne);
    case Forme::Coupe:
        return Trim(rangee.texte(colonne)).toString();
    case Forme::Jour:
        return texteDate(rangee.date(colonne));
    case Forme::Montant:
        return rangee.montant(colonne).texte(SepAutre);
    case Forme::Entier:
        return QString::number(rangee.entier(colonne));
    }
    return {};
}

bool comptePourNul(const QString &texte, Inacheve inacheve)
{
    switch (inacheve) {
    case Inacheve::Garde:
        return false;
    case Inacheve::SiRienSaisi:
        return !texte.isEmpty() && std::all_of(texte.begin(), texte.end(), [](QChar c) { return c == u'_'; });
    case Inacheve::SiIncomplet:
        return texte.contains(u'_');
    }
    return false;
}

QString texteDuChamp(const ChampExport &champ, const Enregistrement &rangee, Col colonne, QString &precedent)
{
    const bool nul = rangee.estNul(colonne);
    const QString texte = nul ? QString() : enForme(rangee, colonne, champ.forme);
    if (nul || comptePourNul(texte, champ.inacheve)) {
        if (champ.reporte)
            return precedent;
        if (!champ.siNul)
            throw ErreurConversion(u"une valeur obligatoire manque."_s);
        return champ.siNul->toString();
    }
    if (champ.siVide && texte.isEmpty())
        return champ.siVide->toString();
    if (champ.reporte)
        precedent = texte;
    return champ.largeur > 0 ? texte.left(champ.largeur).leftJustified(champ.largeur, u' ') : texte;
}

/// The line of one row. @param ou where the row stands, for the text of a failure
/// @param precedents the fields of the line before, one for each field
QString ligneDe(const Enregistrement &rangee, std::span<const ChampExport> champs, bool parRang,
                const QString &ou, QStringList &precedents)
{
    QString ligne;
    for (qsizetype i = 0; i < static_cast<qsizetype>(champs.size()); ++i) {
        const ChampExport &champ = champs[static_cast<std::size_t>(i)];
        try {
            const Col colonne = parRang ? Col(static_cast<int>(i)) : Col(champ.colonne);
            ligne += texteDuChamp(champ, rangee, colonne, precedents[i]);
        } catch (const ErreurConversion &erreur) {
            throw ErreurConversion(u"%1, colonne « %2 » : %3"_s.arg(ou, champ.colonne, erreur.texte()));
        }
        ligne += u';';
    }
    return ligne + finDeLigne;
}

QStringList aucunPrecedent(std::span<const ChampExport> champs)
{
    return QStringList(static_cast<qsizetype>(champs.size()));
}

} // namespace

void ecrireDeclaration(Base &base, const GenreDeclaration &genre, const FormatExport &format,
                       const Enregistrement &entete, const CleDeclaration &cle, QIODevice &fichier)
{
    ecrire(fichier, QString(format.marque + finDeLigne));
    QStringList precedents = aucunPrecedent(format.entete);
    ecrire(fichier, ligneDe(entete, format.entete, false, u"En-tête"_s, precedents));

    QStringList colonnes;
    for (const ChampExport &champ : format.ligne)
        colonnes += champ.colonne.toString();
    Requete rangees = base.Cnx.lire(u"SELECT "_s + colonnes.join(u", ") + lignesEtSalaries(base, genre, cle),
                                    lignesDe(genre, cle).valeurs);
    precedents = aucunPrecedent(format.ligne);
    for (qint64 numero = 1; rangees.suivante(); ++numero)
        ecrire(fichier, ligneDe(rangees, format.ligne, true, u"Ligne %1"_s.arg(numero), precedents));
}
