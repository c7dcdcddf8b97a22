#include "batch/lot.h"
#include "batch/rapport.h"
#include "demo/route.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

void ecrire(const QString &chemin, void (Rapport::*rapporter)(const Resultat &),
            const std::vector<Resultat> &resultats)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly))
        qFatal("%s: %s", qPrintable(chemin), qPrintable(fichier.errorString()));
    Rapport rapport([&](std::string_view morceau) {
        fichier.write(morceau.data(), static_cast<qint64>(morceau.size()));
    });
    for (const Resultat &resultat : resultats)
        (rapport.*rapporter)(resultat);
    if (!fichier.flush())
        qFatal("%s: %s", qPrintable(chemin), qPrintable(fichier.errorString()));
}

void dire(const QString &libelle, const QString &chemin)
{
    std::fputs(qUtf8Printable(QString(libelle.leftJustified(24) + QDir::toNativeSeparators(chemin) + u'\n')),
               stdout);
}

} // namespace

/// The demonstration: a small employer's declarations and claim through the real windows, in a folder of its
/// own.
int main(int argc, char **argv)
{
    QTemporaryDir foyer(QDir::tempPath() + u"/das-korvandel-demo-XXXXXX"_s);
    foyer.setAutoRemove(false);
    const QString ecrans = foyer.filePath(u"ecrans"_s);
    if (!foyer.isValid() || !QDir().mkpath(ecrans)) {
        std::fputs("Le dossier de la démonstration ne peut pas être créé.\n", stderr);
        return 1;
    }
    // All that the program keeps, data and settings, goes there and not to the user's own.
    qputenv("HOME", foyer.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", foyer.filePath(u".config"_s).toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "default.warning=false"); // what that platform can't do

    int images = 0;
    const Parcours parcours = parcourirRoute(argc, argv, [&](QWidget &ecran) {
        const QString nom = u"%1-%2.png"_s.arg(++images, 2, 10, QChar(u'0')).arg(ecran.objectName());
        if (!ecran.grab().save(ecrans + u'/' + nom))
            qFatal("%s not written", qPrintable(nom));
    });

    std::vector<Resultat> resultats;
    for (const QString &fichier : {parcours.fichier, parcours.fichierDac, parcours.fichierCi})
        resultats.push_back(validerFichier(fichier, Format::Inconnu));
    const QString rapport = foyer.filePath(u"validation.txt"_s);
    const QString json = foyer.filePath(u"validation.json"_s);
    ecrire(rapport, &Rapport::texte, resultats);
    ecrire(json, &Rapport::json, resultats);

    dire(u"Dossier :"_s, foyer.path());
    dire(u"Déclaration exportée :"_s, parcours.fichier);
    dire(u"Nominative exportée :"_s, parcours.fichierDac);
    dire(u"Arrêt de chantier :"_s, parcours.fichierCi);
    dire(u"Réponse du validateur :"_s, rapport);
    dire(u"La même en JSON :"_s, json);
    for (const QString &formulaire : parcours.formulaires)
        dire(u"Formulaire :"_s, formulaire);
    dire(u"%1 écrans :"_s.arg(images), ecrans);
    const bool acceptees = std::all_of(resultats.begin(), resultats.end(), [](const Resultat &resultat) {
        return resultat.verdict == Verdict::Acceptee;
    });
    std::fputs(acceptees ? "Les déclarations sont acceptées.\n"
                         : "Les déclarations ne sont pas toutes acceptées.\n",
               stdout);
    return acceptees ? 0 : 1;
}
