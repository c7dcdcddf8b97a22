#include "tests/storage/surdisque.h"

#include <QFile>

#include <cerrno>

namespace {

int refus = 0;

} // namespace

QSet<QString> &misSurDisque()
{
    static QSet<QString> noms;
    return noms;
}

void refuserLeDisque(int erreur) { refus = erreur; }

extern "C" int fsync(int fichier)
{
    misSurDisque() += QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(fichier));
    errno = refus;
    return refus == 0 ? 0 : -1;
}
