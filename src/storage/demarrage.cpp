#include "storage/demarrage.h"

#include "rules/dialogue.h"
#include "storage/base.h"
#include "storage/chargement.h"
#include "storage/disque.h"
#include "storage/installation.h"
#include "storage/lieux.h"
#include "storage/schema.h"

#include <QDebug>

using namespace Qt::StringLiterals;

namespace {

/// Tables that are created together when one of them can't be opened.
struct Groupe
{
    QStringList tables;
    QString message;
};

/// Opens a table that was delivered with the database: nothing creates it. That it is missing is told and the
/// program goes on; a file that can't be read is the end.
void ouvrirLivree(Recordset &table)
{
    try {
        table.ouvrir();
    } catch (const ErreurSql &erreur) {
        if (erreur.fichierEnCause())
            throw ErreurFatale(erreur.texte());
        throw;
    }
}

/// Widens salarie from one of the older layouts, all columns or none.
/// @return false when the table has a number of columns that no layout had
bool elargirSalarie(Base &base)
{
    const Table &salarie = tableDuSchema(u"salarie");
    const int colonnes = base.RsSalarie.columnCount();
    if (colonnes == salarie.colonnes.size())
        return true;
    if (colonnes != 17 && colonnes != 18 && colonnes != 22)
        return false;
    Transaction transaction(base.Cnx);
    for (qsizetype rang = colonnes; rang < salarie.colonnes.size(); ++rang)
        base.CmdSql.definir(salarie.ajoutColonne(rang));
    transaction.commit();
    base.RsSalarie.ouvrir();
    return true;
}

void creer(Base &base, const Table &table)
{
    try {
        base.CmdSql.definir(table.creation());
        for (const QString &ordre : table.creationIndex())
            base.CmdSql.definir(ordre);
    } catch (const ErreurBase &erreur) {
        throw ErreurBase(u"La table « %1 » n'a pas pu être créée.\n%2"_s.arg(table.nom, erreur.texte()));
    }
}

/// Creates the tables of the group. A kill leaves all of them or none; but when one can't be created, those
/// before it stay, and the next start goes on from there.
/// @param cause why the opening failed: what the clerk must know when the creation fails too
void creer(Base &base, const Groupe &groupe, const ErreurBase &cause)
{
    try {
        Transaction transaction(base.Cnx);
        try {
            for (const QString &nom : groupe.tables) {
                creer(base, tableDuSchema(nom));
            }
        } catch (const ErreurBase &) {
            try {
                transaction.commit();
            } catch (const ErreurBase &) {
                // The first failure is the one to tell.
            }
            throw;
        }
        transaction.commit();
    } catch (const ErreurBase &erreur) {
        throw ErreurFatale(u"%1\n\nCause première : %2"_s.arg(erreur.texte(), cause.texte()));
    }
}

/// Opens the recordsets; when one fails, whatever the cause, the group's tables are created.
/// @return false when they were and the program must end
bool ouvrirGroupe(Base &base, const Groupe &groupe, const QList<Recordset *> &recordsets, Dialogue &dialogue)
{
    try {
        for (Recordset *recordset : recordsets)
            recordset->ouvrir();
        return true;
    } catch (const ErreurBase &cause) {
        creer(base, groupe, cause);
    }
    dialogue.informer(groupe.message);
    return false;
}

/// Makes the indexes that a database from elsewhere lacks. They serve speed alone, so no start fails for one.
void completerIndex(Connexion &cnx)
{
    try {
        QStringList presents;
        Requete noms = cnx.lire(u"SELECT name FROM sqlite_master WHERE type = 'index'"_s);
        while (noms.suivante())
            presents += noms.texte(0);
        for (const Table &table : tablesDuSchema()) {
            for (qsizetype i = 0; i < table.index.size(); ++i) {
                if (!presents.contains(table.index[i].nom, Qt::CaseInsensitive))
                    cnx.definir(table.creationIndex().at(i));
            }
        }
    } catch (const ErreurBase &erreur) {
        qWarning("%s", erreur.what());
    }
}

} // namespace

Demarrage demarrer(Base &base, Dialogue &dialogue)
{
    installerSiAbsente();
    fermerAuxAutres(dossierDas());
    base.OuvrirBase(cheminBase());

    ouvrirLivree(base.RsSalarie);
    if (!elargirSalarie(base)) {
        dialogue.critique(u"Format fichier incorrecte !"_s);
        return Demarrage::Interrompu;
    }
    ouvrirLivree(base.RsLigneDas);
    ouvrirLivree(base.RsEnteteDas);

    // annee and employeur are delivered, yet a failure of theirs counts as the claims' tables missing; the
    // creation of these fails then, and the program ends.
    if (!ouvrirGroupe(
            base,
            {{u"Entete_CI"_s, u"Detail_CI"_s},
             u"tables EnteteCI et Detail_Ci crées, Veuillez relancer une seconde fois l'application, SVP"_s},
            {&base.RsEnteteCi, &base.RsDetailCi, &base.RsAnnee, &base.RsEmployeur}, dialogue))
        return Demarrage::FinProgramme;

    if (!ouvrirGroupe(
            base,
            {{u"Periode"_s}, u"table Période crée, Veuillez relancer une seconde fois l'application, SVP"_s},
            {&base.RsPeriode}, dialogue))
        return Demarrage::FinProgramme;
    if (!ouvrirGroupe(
            base,
            {{u"Entete_Dac"_s, u"Ligne_Dac"_s},
             u"tables Entete Dac et Ligne_Dac crées, Veuillez relancer une seconde fois l'application, SVP"_s},
            {&base.RsEnteteDac, &base.RsLigneDac}, dialogue))
        return Demarrage::FinProgramme;
    if (!ouvrirGroupe(base,
                      {{u"Nationalite"_s},
                       u"table Nationalité crée, Veuillez relancer une seconde fois l'application, SVP"_s},
                      {&base.RsNationalite}, dialogue))
        return Demarrage::FinProgramme;

    struct Reference
    {
        Groupe groupe;
        Recordset &recordset;
        FichierReference fichier;
    };
    const Reference references[] = {
        {{{u"Banque"_s}, u"table Banque crée, Veuillez relancer une seconde fois l'application, SVP"_s},
         base.RsBanque,
         fichierBanques()},
        {{{u"Commune"_s}, u"table communes crée, Veuillez relancer une seconde fois l'application, SVP"_s},
         base.RsCommune,
         fichierCommunes()},
        {{{u"Wilaya"_s}, u"table Wilaya crée, Veuillez relancer une seconde fois l'application, SVP"_s},
         base.RsWilaya,
         fichierWilayas()}};
    for (const Reference &reference : references) {
        if (!ouvrirGroupe(base, reference.groupe, {&reference.recordset}, dialogue))
            return Demarrage::FinProgramme;
        if (reference.recordset.vide() &&
            !chargerReference(base.Cnx, reference.recordset, reference.fichier, dialogue))
            return Demarrage::Interrompu;
    }

    completerIndex(base.Cnx);
    return Demarrage::Complet;
}
