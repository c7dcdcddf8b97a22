#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

/// The lines of a file, read in large blocks: memory holds one block, or the longest line.
/// Only LF ends a line and only the CR right before it is dropped; a last line without an end is a line, and
/// nothing stands behind the last end.
class LecteurLignes
{
public:
    /// Longer lines are refused, so that no file can ask for any amount of memory.
    static constexpr qsizetype LongueurMax = 256 * 1024 * 1024;

    explicit LecteurLignes(QIODevice &source);

    /// Whether there is no further line. @throws ErreurFichier when the file can't be read
    bool finie();

    /// The next line without its end; valid until the next call.
    /// @throws ErreurFichier at the end, when the file can't be read, and for a line beyond LongueurMax
    QByteArrayView lire();

    /// The number of the line read last, from 1; behind a failure of lire() that of the line that failed.
    qint64 numero() const { return m_numero; }

    /// Bytes of the lines handed out so far, their ends included.
    qint64 octetsLus() const { return m_octetsLus; }

private:
    bool remplir();

    QIODevice &m_source;
    QByteArray m_tampon;
    qsizetype m_debut = 0;
    qsizetype m_fin = 0;
    bool m_epuisee = false;
    qint64 m_octetsLus = 0;
    qint64 m_numero = 0;
};

/// Opens a file for reading; a pipe or a device is refused. @param nom what the refusal calls it
/// @throws ErreurFichier with the reason
void ouvrir(QIODevice &source, const QString &nom);
