#include "validators/decoupeur.h"

#include "rules/erreurs.h"
#include "rules/texte.h"

#include <cstring>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void refuserLigne(std::size_t champs)
{
    throw ErreurConversion(u"La ligne a moins de %1 champs."_s.arg(champs));
}

} // namespace

void couper(QStringView ligne, std::span<QStringView> champs)
{
    qsizetype debut = 0;
    for (QStringView &champ : champs) {
        const qsizetype fin = ligne.indexOf(u';', debut);
        if (fin < 0)
            refuserLigne(champs.size());
        champ = Trim(ligne.sliced(debut, fin - debut));
        debut = fin + 1;
    }
}

void Decoupeur::decouper(QByteArrayView octets, std::span<QStringView> champs)
{
    // The ends are sought before anything is decoded, so that what stands behind the last wanted field,
    // however long it is, costs nothing.
    m_fins.resize(champs.size());
    const char *reste = octets.begin();
    for (qsizetype &fin : m_fins) {
        const void *trouve = std::memchr(reste, ';', static_cast<std::size_t>(octets.end() - reste));
        if (!trouve)
            refuserLigne(champs.size());
        const char *place = static_cast<const char *>(trouve);
        fin = place - octets.begin();
        reste = place + 1;
    }
    const QStringView ligne = texte(octets.first(reste - octets.begin()));
    qsizetype debut = 0;
    for (std::size_t i = 0; i < champs.size(); ++i) {
        champs[i] = Trim(ligne.sliced(debut, m_fins[i] - debut));
        debut = m_fins[i] + 1;
    }
}

void Decoupeur::decouper(QByteArrayView octets, std::span<const int> largeurs, std::span<QStringView> champs)
{
    QStringView reste = texte(octets);
    for (std::size_t i = 0; i < champs.size(); ++i) {
        const QStringView champ = i + 1 < champs.size() ? debutDe(reste, largeurs[i]) : reste;
        reste = reste.sliced(champ.size());
        champs[i] = Trim(champ);
    }
}

QStringView Decoupeur::texte(QByteArrayView octets)
{
    if (m_tampon.size() < octets.size())
        m_tampon.resize(octets.size());
    decoder(octets, reinterpret_cast<char16_t *>(m_tampon.data()), m_apostrophesEnBlancs);
    return QStringView(m_tampon).first(octets.size());
}
