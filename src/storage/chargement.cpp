#include "storage/chargement.h"

#include "rules/dialogue.h"
#include "rules/lecteurlignes.h"
#include "rules/texte.h"
#include "storage/lieux.h"
#include "storage/recordset.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

void stockerLignes(Connexion &cnx, const QString &table, LecteurLignes &lecteur, QString ligne,
                   const FichierReference &forme)
{
    // The end is looked for before the line just read is stored, so a last line that is not "End" is lost:
    // files in use rely on their end mark.
    while (!lecteur.finie() && ligne.left(3) != u"End") {
        if (!forme.sauteLignesBlanches || !Trim(QStringView(ligne).left(3)).isEmpty()) {
            Champs champs;
            for (const ChampReference &champ : forme.champs)
                champs.append({champ.colonne, Trim(QStringView(ligne).mid(champ.debut, champ.longueur))});
            cnx.inserer(table, champs);
        }
        ligne = decoder(lecteur.lire());
    }
}

} // namespace

FichierReference fichierBanques()
{
    return {cheminBanques(),
            u"Fichier Banques Inexistant! Veuillez réinstaller l'application DAS SVP!!"_s,
            false,
            {{u"Code"_s, 0, 3}, {u"Abreviat"_s, 3, 10}, {u"Libelle"_s, 13, 50}}};
}

FichierReference fichierCommunes()
{
    return {cheminCommunes(),
            u"Fichier Communes Inexistant! Veuillez réinstaller l'application DAS SVP!!"_s,
            true,
            {{u"Code"_s, 0, 4}, {u"Libelle"_s, 4, 50}}};
}

FichierReference fichierWilayas()
{
    return {cheminWilayas(),
            u"Fichier Wilayas Inexistant! Veuillez réinstaller l'application DAS SVP!!"_s,
            true,
            {{u"Code"_s, 0, 2}, {u"Libelle"_s, 2, 40}}};
}

bool chargerReference(Connexion &cnx, Recordset &table, const FichierReference &forme, Dialogue &dialogue)
{
    QFile fichier(forme.chemin);
    LecteurLignes lecteur(fichier);
    QString premiere;
    try {
        ouvrir(fichier, forme.chemin);
        premiere = decoder(lecteur.lire());
    } catch (const ErreurFichier &) {
        dialogue.avertir(forme.messageAbsent);
        return false;
    }
    try {
        table.ouvrir();
        Transaction transaction(cnx);
        stockerLignes(cnx, table.table(), lecteur, premiere, forme);
        transaction.commit();
        table.requery();
    } catch (const Erreur &) {
        dialogue.critique(u"Format fichier incorrecte !"_s);
        return false;
    }
    return true;
}
