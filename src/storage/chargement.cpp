#include "chargement.h"

#include "dialogue.h"
#include "lieux.h"
#include "recordset.h"
#include "texte.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// Reads the next line, without its end. @throws ErreurFichier when there is none or it can't be read
QString lireLigne(QFile &fichier)
{
    QByteArray ligne = fichier.readLine();
    if (ligne.isEmpty())
        throw ErreurFichier(u"Le fichier « %1 » n'a plus de ligne à lire."_s.arg(fichier.fileName()));
    if (ligne.endsWith('\n'))
        ligne.chop(ligne.endsWith("\r\n") ? 2 : 1);
    return decoder(ligne);
}

void stockerLignes(Connexion &cnx, const QString &table, QFile &fichier, QString ligne,
                   const FichierReference &forme)
{
    // The end is looked for before the line just read is stored, so a last line that is not "End" is lost:
    // files in use rely on their end mark.
    while (!fichier.atEnd() && ligne.left(3) != u"End") {
        if (!forme.sauteLignesBlanches || !Trim(QStringView(ligne).left(3)).isEmpty()) {
            Champs champs;
            for (const ChampReference &champ : forme.champs)
                champs.append({champ.colonne, Trim(QStringView(ligne).mid(champ.debut, champ.longueur))});
            cnx.inserer(table, champs);
        }
        ligne = lireLigne(fichier);
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

bool ChargerReference(Connexion &cnx, Recordset &table, const FichierReference &forme, Dialogue &dialogue)
{
    QFile fichier(forme.chemin);
    QString premiere;
    try {
        if (!fichier.open(QIODevice::ReadOnly))
            throw ErreurFichier(fichier.errorString());
        premiere = lireLigne(fichier);
    } catch (const ErreurFichier &) {
        dialogue.avertir(forme.messageAbsent);
        return false;
    }
    try {
        table.ouvrir();
        Transaction transaction(cnx);
        stockerLignes(cnx, table.table(), fichier, premiere, forme);
        transaction.commit();
        table.requery();
    } catch (const Erreur &) {
        dialogue.critique(u"Format fichier incorrecte !"_s);
        return false;
    }
    return true;
}
