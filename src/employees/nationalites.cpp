#include "nationalites.h"

#include "base.h"
#include "dialogue.h"
#include "lieux.h"
#include "texte.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// Columns of a line, from 0. A name is held in less than its columns give.
constexpr qsizetype longueurCode = 3;
constexpr qsizetype colonnesNom = 43;
constexpr qsizetype longueurNom = 40;

/// Reads the next line, without its end. @return false when it can't be read
bool lireLigne(QFile &fichier, QString &ligne)
{
    QByteArray octets = fichier.readLine();
    const bool lue = !octets.isEmpty() && fichier.error() == QFile::NoError;
    if (octets.endsWith('\n'))
        octets.chop(octets.endsWith("\r\n") ? 2 : 1);
    ligne = decoder(octets);
    return lue;
}

bool estFin(const QString &ligne) { return ligne.startsWith(u"End"); }

void stockerLignes(Connexion &cnx, QFile &fichier, QString ligne)
{
    while (!estFin(ligne) && !fichier.atEnd()) {
        if (!lireLigne(fichier, ligne))
            throw ErreurFichier(fichier.errorString());
        if (estFin(ligne))
            break;
        const QStringView nom = Trim(QStringView(ligne).mid(longueurCode, colonnesNom));
        cnx.inserer(u"Nationalite"_s, {{u"ID"_s, Trim(QStringView(ligne).left(longueurCode))},
                                       {u"Libelle"_s, nom.left(longueurNom)}});
    }
}

} // namespace

bool ImporterNationalites(Base &base, Dialogue &dialogue)
{
    QFile fichier(cheminCountry());
    QString entete;
    if (!fichier.open(QIODevice::ReadOnly) || !lireLigne(fichier, entete)) {
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
        stockerLignes(base.Cnx, fichier, entete);
    } catch (const Erreur &) {
        return false; // told by nothing, which is meant: the transaction rolls back
    }
    transaction.commit();
    fichier.close();
    dialogue.informer(u"Table nationalité importée Avec Succès. "_s);
    base.RsNationalite.requery();
    return true;
}
