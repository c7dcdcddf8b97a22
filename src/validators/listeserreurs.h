#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/// A growing list of texts, held in one block as bytes of the code page, so that a million entries stay
/// small.
class ListeTextes
{
public:
    void ajouter(QStringView texte);
    void vider();

    qsizetype taille() const { return static_cast<qsizetype>(m_fins.size()); }
    QString operator[](qsizetype i) const;
    /// The same, as it is held.
    QByteArrayView octets(qsizetype i) const
    {
        return QByteArrayView(m_octets).sliced(debut(i), longueur(i));
    }
    /// The longest text; empty for an empty list.
    QString plusLong() const { return m_fins.empty() ? QString() : (*this)[m_rangPlusLong]; }

private:
    qsizetype debut(qsizetype i) const { return i == 0 ? 0 : m_fins[static_cast<std::size_t>(i - 1)]; }
    qsizetype longueur(qsizetype i) const { return m_fins[static_cast<std::size_t>(i)] - debut(i); }

    QByteArray m_octets;
    std::vector<qsizetype> m_fins;
    qsizetype m_rangPlusLong = 0;
};

/// One set of five parallel lists, entry i of each being the same error. ListeErrRejet and its four
/// companions, or their harmless twins, whose names end in "ok".
class ListesErreurs
{
public:
    /// The texts of one extraction take no more than so many bytes: millions of errors, and no file can ask
    /// for any amount of memory.
    static constexpr qsizetype TailleMax = 1024 * 1024 * 1024;

    /// @throws ErreurFichier beyond TailleMax
    void ajouter(QStringView entree, qint64 ligne, QStringView numero, QStringView nom, QStringView mots);

    /// Empties the lists for a new extraction, all but the words: those of earlier extractions stay in front
    /// of the new ones, and the print pairs by rank. That is required.
    void vider();

    qsizetype taille() const { return Entrees.taille(); }

    /// What the clerk reads: ListeErrRejet or ListeErrOK.
    ListeTextes Entrees;
    /// Number of the data line: ListeO or ListeOok.
    std::vector<qint64> O;
    /// Social-security number: ListeN or ListeNok.
    ListeTextes N;
    /// Surname, a blank, first name: ListeNP or ListeNPok.
    ListeTextes NP;
    /// Words of the error for the print: ListeE or ListeEok.
    ListeTextes E;

private:
    qsizetype m_octets = 0;
};
