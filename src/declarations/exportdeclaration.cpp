#include "declarations/exportdeclaration.h"

#include "rules/dialogue.h"
#include "rules/erreurs.h"
#include "storage/disque.h"
#include "storage/lieux.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Opens the file in place of what is there and writes it.
void ecrireFichier(const QString &chemin, const ExportDeclaration &declaration)
{
    QFile fichier(chemin);
    if (!creerPrive(fichier))
        throw erreurEcriture(chemin, fichier.errorString());
    declaration.ecrire(fichier);
    std::error_code erreur = mettreSurDisque(fichier);
    if (!erreur)
        erreur = mettreNomsSurDisque(QFileInfo(chemin).absolutePath());
    if (erreur)
        throw erreurEcriture(chemin, causeSysteme(erreur));
}

QString ecrireAuDossierFixe(const ExportDeclaration &declaration)
{
    const QString chemin = dossierExpor() + u'/' + nomDeFichier(declaration.nomFige);
    try {
        ecrireFichier(chemin, declaration);
    } catch (const Erreur &erreur) {
        if (declaration.fatalAuDossierFixe)
            throw ErreurFatale(erreur.texte());
        throw;
    }
    return chemin;
}

QString ecrireOuLeCommisVeut(const ExportDeclaration &declaration, Dialogue &dialogue)
{
    const QString chemin =
        dialogue.choisirDestination(declaration.titre, nomDeFichier(declaration.nomPropose),
                                    u"Fichiers texte (*.txt);;Tous les fichiers (*)"_s);
    const QString sansFichier = u"Nom de fichier incorrect"_s;
    if (!chemin.isEmpty())
        ecrireFichier(chemin, declaration);
    else if (declaration.titreSansFichier.isEmpty())
        dialogue.afficher(sansFichier);
    else
        dialogue.avertir(sansFichier, declaration.titreSansFichier);
    return chemin;
}

QString exporterAuChoix(const ExportDeclaration &declaration, Dialogue &dialogue)
{
    using enum ExportDeclaration::Gardien;
    bool garde = declaration.gardien == DesLeControle;
    try {
        if (!declaration.controler())
            return {};
        garde = declaration.gardien != Aucun;
        return ecrireOuLeCommisVeut(declaration, dialogue);
    } catch (const Erreur &) {
        if (!garde)
            throw;
        if (!declaration.echec.isEmpty())
            dialogue.critique(declaration.echec);
        return {};
    }
}

} // namespace

bool exporter(const ExportDeclaration &declaration, bool cheminFige, Dialogue &dialogue)
{
    QString chemin;
    if (!cheminFige)
        chemin = exporterAuChoix(declaration, dialogue);
    else if (declaration.controler())
        chemin = ecrireAuDossierFixe(declaration);
    if (chemin.isEmpty())
        return false;
    dialogue.informer(declaration.succes + QDir::toNativeSeparators(chemin));
    try {
        if (declaration.ensuite)
            declaration.ensuite();
    } catch (const Erreur &) { // the file stands, and that is what counts
    }
    return true;
}
