#include "batch/lot.h"
#include "batch/rapport.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

enum CodeSortie { Acceptees = 0, UneRejetee = 1, UneInterrompue = 2, UsageFautif = 64 };

constexpr char usage[] =
    "Usage : das-korvandel-valider [--json] [--format das|dac|ci] FICHIER...\n"
    "\n"
    "Valide des fichiers de déclaration comme les écrans de validation le font.\n"
    "  --json           un objet JSON par fichier, un par ligne\n"
    "  --format FORMAT  das, dac ou ci ; sans lui, la première ligne de chaque fichier décide\n"
    "\n"
    "Code de sortie : 0 tous acceptés, 1 un rejeté, 2 un interrompu ou illisible, 64 usage fautif.\n";

int refuserUsage(const QString &faute)
{
    std::fputs(qUtf8Printable(faute), stderr);
    std::fputs("\n", stderr);
    std::fputs(usage, stderr);
    return UsageFautif;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);

    QCommandLineParser lecteur;
    lecteur.addOption({u"json"_s, {}});
    lecteur.addOption({u"format"_s, {}, u"format"_s});
    lecteur.addOption({{u"h"_s, u"help"_s, u"aide"_s}, {}});
    if (!lecteur.parse(application.arguments())) {
        const QStringList inconnues = lecteur.unknownOptionNames();
        return refuserUsage(inconnues.isEmpty()
                                ? u"Il manque le nom du format, ou une option a une valeur de trop."_s
                                : u"Option inconnue : « %1 »."_s.arg(inconnues.first()));
    }
    if (lecteur.isSet(u"help"_s)) {
        std::fputs(usage, stdout);
        return Acceptees;
    }
    Format format = Format::Inconnu;
    if (lecteur.isSet(u"format"_s)) {
        format = formatDeNom(lecteur.value(u"format"_s));
        if (format == Format::Inconnu)
            return refuserUsage(u"Format inconnu : « %1 »."_s.arg(lecteur.value(u"format"_s)));
    }
    if (lecteur.positionalArguments().isEmpty())
        return refuserUsage(u"Aucun fichier à valider."_s);

    QFile sortie;
    if (!sortie.open(stdout, QIODevice::WriteOnly))
        return UneInterrompue;
    const auto ecrire = lecteur.isSet(u"json"_s) ? ecrireJson : ecrireTexte;
    int code = Acceptees;
    bool ecrit = true;
    validerLot(lecteur.positionalArguments(), format, [&](const Resultat &resultat) {
        ecrire(resultat,
               [&](const QByteArray &morceau) { ecrit = sortie.write(morceau) == morceau.size() && ecrit; });
        const int sien = resultat.verdict == Verdict::Acceptee  ? Acceptees
                         : resultat.verdict == Verdict::Rejetee ? UneRejetee
                                                                : UneInterrompue;
        code = std::max(code, sien);
    });
    if (!sortie.flush() || !ecrit) {
        std::fputs("La sortie n'a pas pu être écrite.\n", stderr);
        return UneInterrompue;
    }
    return code;
}
