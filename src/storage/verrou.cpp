#include "storage/verrou.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <qt_windows.h>
#endif

namespace {

/// Between two tries, in milliseconds.
constexpr unsigned long pas = 20;

} // namespace

#ifdef Q_OS_UNIX

std::error_code Verrou::prendre(int millisecondes)
{
    const QByteArray chemin = QFile::encodeName(m_chemin);
    for (QDeadlineTimer delai(millisecondes);; QThread::msleep(pas)) {
        m_fichier = open(chemin.constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
        if (m_fichier < 0)
            return {errno, std::generic_category()};
        if (flock(m_fichier, LOCK_EX | LOCK_NB) == 0) {
            // Who had it before may have taken the file away since it was opened here.
            struct stat pris, present;
            if (fstat(m_fichier, &pris) == 0 && stat(chemin.constData(), &present) == 0 &&
                pris.st_dev == present.st_dev && pris.st_ino == present.st_ino)
                return {};
        } else if (errno != EWOULDBLOCK) {
            const std::error_code erreur(errno, std::generic_category());
            close(m_fichier);
            m_fichier = -1;
            return erreur;
        }
        close(m_fichier);
        m_fichier = -1;
        if (delai.hasExpired())
            return std::make_error_code(std::errc::timed_out);
    }
}

Verrou::~Verrou()
{
    if (m_fichier < 0)
        return;
    unlink(QFile::encodeName(m_chemin).constData());
    close(m_fichier);
}

#else

std::error_code Verrou::prendre(int millisecondes)
{
    for (QDeadlineTimer delai(millisecondes);; QThread::msleep(pas)) {
        HANDLE fichier = CreateFileW(reinterpret_cast<const wchar_t *>(m_chemin.utf16()), GENERIC_WRITE, 0,
                                     nullptr, OPEN_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        if (fichier != INVALID_HANDLE_VALUE) {
            m_fichier = fichier;
            return {};
        }
        const DWORD code = GetLastError();
        if (code != ERROR_SHARING_VIOLATION && code != ERROR_ACCESS_DENIED)
            return {static_cast<int>(code), std::system_category()};
        if (delai.hasExpired())
            return code == ERROR_SHARING_VIOLATION
                       ? std::make_error_code(std::errc::timed_out)
                       : std::error_code(static_cast<int>(code), std::system_category());
    }
}

Verrou::~Verrou()
{
    if (m_fichier)
        CloseHandle(m_fichier);
}

#endif
