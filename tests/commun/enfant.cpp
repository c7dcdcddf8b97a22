#include "tests/commun/enfant.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include <cstdio>
#include <vector>

namespace {

constexpr char marque[] = "--enfant";

void dire()
{
    std::fputc('.', stdout);
    std::fflush(stdout);
}

void lancer(QProcess &enfant, const QStringList &mots)
{
    enfant.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    enfant.start(QCoreApplication::applicationFilePath(), QStringList{QString::fromLatin1(marque)} + mots);
}

enfant::Fin finir(QProcess &enfant, std::optional<qint64> tuerApresMicrosecondes)
{
    if (!enfant.waitForReadyRead())
        qFatal("the child does not begin");
    QElapsedTimer horloge;
    horloge.start();
    if (tuerApresMicrosecondes) {
        QThread::usleep(static_cast<unsigned long>(*tuerApresMicrosecondes));
        enfant.kill();
    }
    enfant.waitForFinished(-1);
    return {horloge.nsecsElapsed() / 1000, enfant.readAllStandardOutput().size() - 1, enfant.exitCode()};
}

} // namespace

std::optional<QStringList> enfant::mots(int argc, char **argv)
{
    if (argc < 2 || qstrcmp(argv[1], marque) != 0)
        return {};
    QStringList mots;
    for (int i = 2; i < argc; ++i)
        mots += QString::fromLocal8Bit(argv[i]);
    return mots;
}

void enfant::commencer() { dire(); }

void enfant::signaler() { dire(); }

enfant::Fin enfant::faire(const QStringList &mots, std::optional<qint64> tuerApresMicrosecondes)
{
    QProcess enfant;
    lancer(enfant, mots);
    return finir(enfant, tuerApresMicrosecondes);
}

QList<enfant::Fin> enfant::faireEnsemble(int combien, const QStringList &mots)
{
    std::vector<QProcess> enfants(static_cast<std::size_t>(combien));
    for (QProcess &un : enfants)
        lancer(un, mots);
    QList<Fin> fins;
    for (QProcess &un : enfants)
        fins += finir(un, {});
    return fins;
}
