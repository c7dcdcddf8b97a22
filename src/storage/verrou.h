#pragma once

#include <QString>

#include <system_error>

/// A lock that programs take in turn. It is the process's own: the system lets go of it when the process
/// ends, however it ends, and the file that carries it means nothing by itself.
class Verrou
{
public:
    explicit Verrou(QString chemin) : m_chemin(std::move(chemin)) {}
    ~Verrou();
    Verrou(const Verrou &) = delete;
    Verrou &operator=(const Verrou &) = delete;

    /// Waits for its turn. @return nothing when it has the lock; std::errc::timed_out when another program
    /// still holds it at the end of the time; else why there can be no lock
    std::error_code prendre(int millisecondes);

private:
    QString m_chemin;
#ifdef Q_OS_UNIX
    int m_fichier = -1;
#else
    void *m_fichier = nullptr;
#endif
};
