#include "declarations/transfert.h"

#include "declarations/declaration.h"
#include "declarations/entetes.h"
#include "rules/dialogue.h"
#include "storage/base.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The column of the lines that goes with one of the header's key.
QString colonneDeLigne(const GenreDeclaration &genre, const QString &enTete)
{
    const auto paire = std::find_if(genre.cle.begin(), genre.cle.end(),
                                    [&](const PaireCle &une) { return une.entete == enTete; });
    return paire->ligne;
}

/// The columns of a line, and what a copy has in them.
class Copie
{
public:
    Copie(Base &base, const TransfertLignes &transfert, const ChoixTransfert &choix, const Recordset &lignes)
        : m_lignes(lignes), m_salarie(transfert.entetes.genre.salarie)
    {
        const GenreDeclaration &genre = transfert.entetes.genre;
        const QString periode = colonneDeLigne(genre, transfert.entetes.periode);
        const QString type = colonneDeLigne(genre, transfert.entetes.type);
        QStringList noms;
        for (int i = 0; i < lignes.columnCount(); ++i) {
            noms += lignes.nomColonne(i);
            std::optional<Valeur> &autre = m_remplaces.emplace_back();
            if (noms.last().compare(periode, Qt::CaseInsensitive) == 0)
                autre = Valeur(choix.destination);
            else if (transfert.type && noms.last().compare(type, Qt::CaseInsensitive) == 0)
                autre = Valeur(*transfert.type);
        }
        m_insertion.emplace(base.Cnx, lignes.table(), noms);
    }

    void ajouter(int rang)
    {
        const Enregistrement source = m_lignes.ligne(rang);
        if (source.estVide())
            return; // another program has deleted it since it was shown
        Valeurs valeurs;
        for (std::size_t i = 0; i < m_remplaces.size(); ++i) {
            valeurs += m_remplaces[i].value_or(Valeur::brute(source.valeur(static_cast<int>(i))));
        }
        try {
            m_insertion->ajouter(valeurs);
        } catch (const ErreurBase &erreur) {
            throw ErreurBase(
                u"Ligne %1, salarié %2 : %3\nLes lignes précédentes ont été transférées."_s.arg(rang + 1).arg(
                    source.texte(m_salarie), erreur.texte()));
        }
    }

private:
    const Recordset &m_lignes;
    const QString &m_salarie;
    std::vector<std::optional<Valeur>> m_remplaces;
    std::optional<Insertion> m_insertion;
};

void copier(Base &base, const TransfertLignes &transfert, const ChoixTransfert &choix,
            const Recordset &lignes)
{
    Transaction transaction(base.Cnx);
    Copie copie(base, transfert, choix, lignes);
    try {
        for (int rang = 0; rang < lignes.nombre(); ++rang)
            copie.ajouter(rang);
    } catch (const ErreurBase &) {
        transaction.commit();
        throw;
    }
    transaction.commit();
}

} // namespace

Condition lignesATransferer(const TransfertLignes &transfert, const QString &employeur,
                            const QString &periode)
{
    const GenreDeclaration &genre = transfert.entetes.genre;
    return {u"[%1] = ? AND [%2] = ?"_s.arg(colonneDeLigne(genre, transfert.entetes.periode),
                                           colonneDeLigne(genre, genre.employeur)),
            {periode, employeur}};
}

bool employeursPresents(Base &base, Dialogue &dialogue)
{
    base.RsEmployeur.requery();
    if (!base.RsEmployeur.vide())
        return true;
    dialogue.avertir(u"table employeur vide !!!!, opération non autorisée "_s);
    return false;
}

bool transferer(Base &base, const TransfertLignes &transfert, const ChoixTransfert &choix,
                const Recordset &lignes, Dialogue &dialogue)
{
    const auto refuser = [&](const QString &texte, const QString &titre = {}) {
        dialogue.avertir(texte, titre);
        return false;
    };
    const TransfertLignes::Textes &textes = transfert.textes;
    const GenreDeclaration &genre = transfert.entetes.genre;
    if (choix.destination.isEmpty())
        return refuser(textes.sansDestination);
    if (choix.source == choix.destination)
        return refuser(textes.memePeriode);
    const QString entetes = u"SELECT 1 FROM [%1] WHERE [%2] = ? AND [%3] = ?"_s.arg(
        (base.*genre.entetes).table(), transfert.entetes.periode, genre.employeur);
    const Valeurs cle{choix.destination, choix.employeur};
    if (!base.Cnx.existe(entetes, cle))
        return refuser(textes.sansEntete);
    if (!base.Cnx.existe(entetes + u" AND [%1] = 1"_s.arg(transfert.entetes.type), cle))
        return refuser(textes.nonPrincipale.arg(choix.destination));
    const Condition deja = lignesATransferer(transfert, choix.employeur, choix.destination);
    if (base.Cnx.existe(u"SELECT 1 FROM [%1] WHERE %2"_s.arg((base.*genre.lignes).table(), deja.sql),
                        deja.valeurs))
        return refuser(textes.lignesPresentes, textes.titreLignesPresentes);

    const auto relire = [&] {
        for (Recordset *liste : {&(base.*genre.lignes), &(base.*genre.entetes)}) {
            if (liste->estOuvert())
                liste->requery();
        }
    };
    try {
        copier(base, transfert, choix, lignes);
    } catch (const Erreur &) {
        relire();
        throw;
    }
    relire();
    dialogue.informer(u"Transfert effectué avec succès, veuillez redemarrer l'application SVP"_s);
    return true;
}
