#include "rules/lecteurlignes.h"

#include "rules/erreurs.h"

#include <QFile>
#include <QFileInfo>

#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype TailleBloc = 128 * 1024;

constexpr QStringView PasUnFichier = u"c'est un tube ou un périphérique, et non un fichier.";

} // namespace

LecteurLignes::LecteurLignes(QIODevice &source) : m_source(source), m_tampon(TailleBloc, Qt::Uninitialized) {}

/// Reads behind what the buffer still holds. @return false at the end of the file
bool LecteurLignes::remplir()
{
    if (m_epuisee)
        return false;
    if (m_debut > 0) {
        std::memmove(m_tampon.data(), m_tampon.constData() + m_debut,
                     static_cast<std::size_t>(m_fin - m_debut));
        m_fin -= m_debut;
        m_debut = 0;
    }
    if (m_fin == m_tampon.size()) {
        if (m_fin >= LongueurMax)
            throw ErreurFichier(u"Une ligne du fichier dépasse %1 caractères."_s.arg(LongueurMax));
        m_tampon.resize(m_tampon.size() * 2);
    }
    const qint64 lus = m_source.read(m_tampon.data() + m_fin, m_tampon.size() - m_fin);
    if (lus < 0)
        throw ErreurFichier(u"Lecture du fichier impossible : %1"_s.arg(m_source.errorString()));
    m_epuisee = lus == 0;
    m_fin += lus;
    return lus > 0;
}

bool LecteurLignes::finie() { return m_debut == m_fin && !remplir(); }

QByteArrayView LecteurLignes::lire()
{
    ++m_numero;
    qsizetype vus = 0;
    for (;;) {
        const char *debut = m_tampon.constData() + m_debut;
        const auto reste = static_cast<std::size_t>(m_fin - m_debut - vus);
        if (const void *trouve = std::memchr(debut + vus, '\n', reste)) {
            const qsizetype taille = static_cast<const char *>(trouve) - debut;
            m_debut += taille + 1;
            m_octetsLus += taille + 1;
            return {debut, taille > 0 && debut[taille - 1] == '\r' ? taille - 1 : taille};
        }
        vus = m_fin - m_debut;
        if (!remplir())
            break;
    }
    if (vus == 0)
        throw ErreurFichier(u"Le fichier finit avant la ligne attendue."_s);
    const QByteArrayView ligne(m_tampon.constData() + m_debut, vus);
    m_debut = m_fin;
    m_octetsLus += vus;
    return ligne;
}

void ouvrir(QIODevice &source, const QString &nom)
{
    // The usual reasons in our own words: those of Qt and of the system are not always French. They are
    // sought before the opening, for that of a pipe waits until somebody writes to it.
    QString raison;
    const auto *fichier = qobject_cast<const QFile *>(&source);
    if (fichier && !fichier->fileName().isEmpty()) {
        const QFileInfo info(*fichier);
        if (!info.exists())
            raison = u"il n'existe pas."_s;
        else if (info.isDir())
            raison = u"c'est un dossier."_s;
        else if (!info.isFile())
            raison = PasUnFichier.toString();
        else if (!info.isReadable())
            raison = u"vous n'avez pas le droit de le lire."_s;
    }
    if (raison.isEmpty() && !source.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        raison = source.errorString();
    if (raison.isEmpty() && source.isSequential())
        raison = PasUnFichier.toString();
    if (!raison.isEmpty())
        throw ErreurFichier(u"Le fichier « %1 » ne peut pas être ouvert : %2"_s.arg(nom, raison));
}
