#include "declarations/exportdeclaration.h"

#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/texte.h"
#include "storage/connexion.h"
#include "storage/lieux.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void echouer(const QString &chemin, const QString &cause)
{
    throw ErreurFichier(
        u"Le fichier « %1 » ne peut pas être écrit.\n%2"_s.arg(QDir::toNativeSeparators(chemin), cause));
}

/// Opens the file in place of what is there and writes it.
void ecrireFichier(const QString &chemin, const ExportDeclaration &declaration)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly))
        echouer(chemin, fichier.errorString());
    declaration.ecrire(fichier);
    if (!fichier.flush())
        echouer(chemin, fichier.errorString());
}

QString ecrireAuDossierFixe(const ExportDeclaration &declaration)
{
    const QString chemin = dossierExpor() + u'/' + declaration.nomFige;
    try {
        ecrireFichier(chemin, declaration);
    } catch (const Erreur &erreur) {
        throw ErreurFatale(erreur.texte());
    }
    return chemin;
}

QString ecrireOuLeCommisVeut(const ExportDeclaration &declaration, Dialogue &dialogue)
{
    const QString chemin = dialogue.choisirDestination(declaration.titre, declaration.nomPropose,
                                                       u"Fichiers texte (*.txt);;Tous les fichiers (*)"_s);
    if (chemin.isEmpty())
        dialogue.afficher(u"Nom de fichier incorrect"_s);
    else
        ecrireFichier(chemin, declaration);
    return chemin;
}

QString exporterAuChoix(const ExportDeclaration &declaration, Dialogue &dialogue)
{
    try {
        return declaration.controler() ? ecrireOuLeCommisVeut(declaration, dialogue) : QString();
    } catch (const Erreur &) {
        if (!declaration.echec.isEmpty())
            dialogue.critique(declaration.echec);
        return {};
    }
}

QString texteRequis(const Enregistrement &rangee, int colonne)
{
    const QVariant valeur = rangee.valeur(colonne);
    if (valeur.isNull())
        throw ErreurConversion(u"une valeur obligatoire manque."_s);
    return valeur.toString();
}

void ecrireOctets(QIODevice &fichier, const QByteArray &octets)
{
    if (fichier.write(octets) != octets.size())
        throw ErreurFichier(u"Le fichier ne peut pas être écrit.\n%1"_s.arg(fichier.errorString()));
}

constexpr QStringView finDeLigne = u"\r\n";

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
    return true;
}

QString colonnesExport(std::span<const ChampExport> champs)
{
    QStringList colonnes;
    for (const ChampExport &champ : champs)
        colonnes += champ.colonne.toString();
    return colonnes.join(u", ");
}

void ecrireLignes(QIODevice &fichier, Requete &rangees, std::span<const ChampExport> champs)
{
    QString ligne;
    QString reporte;
    for (qint64 numero = 1; rangees.suivante(); ++numero) {
        ligne.resize(0);
        for (std::size_t i = 0; i < champs.size(); ++i) {
            try {
                champs[i].ecrire(ligne, rangees, static_cast<int>(i), reporte);
            } catch (const ErreurConversion &erreur) {
                throw ErreurConversion(u"Ligne %1, colonne « %2 » : %3"_s.arg(
                    QString::number(numero), champs[i].colonne, erreur.texte()));
            }
            ligne += u';';
        }
        ligne += finDeLigne;
        ecrireOctets(fichier, encoder(ligne));
    }
}

void ecrireLigne(QIODevice &fichier, QStringView ligne)
{
    ecrireOctets(fichier, encoder(ligne) + encoder(finDeLigne));
}

namespace ecriture {

void telQuel(QString &ligne, const Enregistrement &rangee, int colonne, QString &)
{
    ligne += texteRequis(rangee, colonne);
}

void coupe(QString &ligne, const Enregistrement &rangee, int colonne, QString &)
{
    ligne += Trim(texteRequis(rangee, colonne));
}

void jour(QString &ligne, const Enregistrement &rangee, int colonne, QString &)
{
    texteRequis(rangee, colonne);
    ligne += texteDate(rangee.date(colonne));
}

void montant(QString &ligne, const Enregistrement &rangee, int colonne, QString &)
{
    ligne += rangee.montant(colonne).texte(SepAutre);
}

void entier(QString &ligne, const Enregistrement &rangee, int colonne, QString &)
{
    ligne += QString::number(rangee.entier(colonne));
}

void telQuelOuVide(QString &ligne, const Enregistrement &rangee, int colonne, QString &)
{
    ligne += rangee.texte(colonne);
}

void coupeOuVide(QString &ligne, const Enregistrement &rangee, int colonne, QString &)
{
    ligne += Trim(rangee.texte(colonne));
}

} // namespace ecriture
