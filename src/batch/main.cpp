#include "batch/arguments.h"
#include "batch/lot.h"
#include "batch/rapport.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <new>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

enum CodeSortie {
    Acceptees = 0,
    UneRejetee = 1,
    UneInterrompue = 2,
    UsageFautif = 64,
    RessourcesManquantes = 70,
};

constexpr char usage[] =
    "Usage : das-korvandel-valider [--json] [--format das|dac|ci] FICHIER...\n"
    "\n"
    "Valide des fichiers de déclaration comme les écrans de validation le font.\n"
    "  --json           un objet JSON par fichier, un par ligne\n"
    "  --format FORMAT  das, dac ou ci ; sans lui, la première ligne de chaque fichier décide\n"
    "\n"
    "Code de sortie : 0 tous acceptés, 1 un rejeté, 2 un interrompu ou illisible, 64 usage fautif,\n"
    "70 ni mémoire ni fil d'exécution à avoir : les fichiers qui restaient n'ont pas été validés.\n";

int refuserUsage(const QString &faute)
{
    std::fputs(qUtf8Printable(faute), stderr);
    std::fputs("\n", stderr);
    std::fputs(usage, stderr);
    return UsageFautif;
}

int codeDe(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Acceptee:
        return Acceptees;
    case Verdict::Rejetee:
        return UneRejetee;
    case Verdict::Interrompue:
        break;
    }
    return UneInterrompue;
}

int valider(int argc, char **argv)
{
    QCoreApplication application(argc, argv);

    QCommandLineParser lecteur;
    lecteur.addOption({u"json"_s, {}});
    lecteur.addOption({u"format"_s, {}, u"format"_s});
    lecteur.addOption({{u"h"_s, u"help"_s, u"aide"_s}, {}});
    if (!lecteur.parse(lireArguments(argc, argv))) {
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

    // A report comes in large pieces: the library need take no memory to gather them.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    bool ecrit = true;
    Rapport rapport([&](std::string_view morceau) {
        ecrit = std::fwrite(morceau.data(), 1, morceau.size(), stdout) == morceau.size() && ecrit;
    });
    const bool json = lecteur.isSet(u"json"_s);
    int code = Acceptees;
    validerLot(lecteur.positionalArguments(), format, [&](const Resultat &resultat) {
        if (json)
            rapport.json(resultat);
        else
            rapport.texte(resultat);
        code = std::max(code, codeDe(resultat.verdict));
    });
    if (!ecrit) {
        std::fputs("La sortie n'a pas pu être écrite.\n", stderr);
        return UneInterrompue;
    }
    return code;
}

} // namespace

int main(int argc, char *argv[])
{
    try {
        return valider(argc, argv);
    } catch (const std::bad_alloc &) {
        std::fputs("Mémoire insuffisante : les fichiers qui restaient n'ont pas été validés.\n", stderr);
    } catch (const std::system_error &) {
        std::fputs("Aucun fil d'exécution ne peut être lancé : rien n'a été validé.\n", stderr);
    }
    return RessourcesManquantes;
}
