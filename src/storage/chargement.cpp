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
            for (const ChampFixe &champ : forme.champs)
                champs.append({champ.colonne.toString(), couper(ligne, champ)});
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
            {{u"Code", 1, 3}, {u"Abreviat", 4, 10}, {u"Libelle", 14, 50}}};
}

FichierReference fichierCommunes()
{
    return {cheminCommunes(),
            u"Fichier Communes Inexistant! Veuillez réinstaller l'application DAS SVP!!"_s,
            true,
            {{u"Code", 1, 4}, {u"Libelle", 5, 50}}};
}

FichierReference fichierWilayas()
{
    return {cheminWilayas(),
            u"Fichier Wilayas Inexistant! Veuillez réinstaller l'application DAS SVP!!"_s,
            true,
            {{u"Code", 1, 2}, {u"Libelle", 3, 40}}};
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
        // Another start may have filled it meanwhile.
        if (!cnx.existe(u"SELECT 1 FROM [%1]"_s.arg(table.table())))
            stockerLignes(cnx, table.table(), lecteur, premiere, forme);
        transaction.commit();
        table.requery();
    } catch (const Erreur &) {
        dialogue.critique(u"Format fichier incorrecte !"_s);
        return false;
    }
    return true;
}
