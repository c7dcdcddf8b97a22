#include "employees/nationalites.h"

#include "rules/dialogue.h"
#include "rules/lecteurlignes.h"
#include "rules/texte.h"
#include "storage/base.h"
#include "storage/lieux.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// Columns of a line, from 0. A name is held in less than its columns give.
constexpr qsizetype longueurCode = 3;
constexpr qsizetype colonnesNom = 43;
constexpr qsizetype longueurNom = 40;

bool estFin(const QString &ligne) { return ligne.startsWith(u"End"); }

void stockerLignes(Connexion &cnx, LecteurLignes &lecteur, QString ligne)
{
    while (!estFin(ligne) && !lecteur.finie()) {
        ligne = decoder(lecteur.lire());
        if (estFin(ligne))
            break;
        const QStringView nom = Trim(QStringView(ligne).mid(longueurCode, colonnesNom));
        cnx.inserer(u"Nationalite"_s, {{u"ID"_s, Trim(QStringView(ligne).left(longueurCode))},
                                       {u"Libelle"_s, nom.left(longueurNom)}});
    }
}

} // namespace

bool importerNationalites(Base &base, Dialogue &dialogue)
{
    QFile fichier(cheminCountry());
    LecteurLignes lecteur(fichier);
    QString entete;
    try {
        ouvrir(fichier, fichier.fileName());
        entete = decoder(lecteur.lire());
    } catch (const ErreurFichier &) {
        dialogue.avertir(u"Fichier Country Inexistant! Importation échouée!!"_s);
        return false;
    }
    // From here, so that of two programs only one finds the table empty.
    Transaction transaction(base.Cnx);
    if (base.Cnx.existe(u"SELECT 1 FROM Nationalite"_s)) {
        dialogue.avertir(u"l'importation a été déja effectué"_s);
        return false;
    }
    try {
        stockerLignes(base.Cnx, lecteur, entete);
    } catch (const Erreur &) {
        return false; // told by nothing, which is meant: the transaction rolls back
    }
    transaction.commit();
    fichier.close();
    dialogue.informer(u"Table nationalité importée Avec Succès. "_s);
    base.RsNationalite.requery();
    return true;
}
