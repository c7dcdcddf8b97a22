#include "decoupeur.h"

#include "erreurs.h"
#include "texte.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Beyond this length a line is cut short behind its last wanted field before anything else is done with it.
constexpr qsizetype LigneLongue = 64 * 1024;

[[noreturn]] void refuserLigne(std::size_t champs)
{
    throw ErreurConversion(u"La ligne a moins de %1 champs."_s.arg(champs));
}

/// The bytes of a long line up to the last ";" that counts.
QByteArrayView raccourcir(QByteArrayView octets, std::size_t champs)
{
    qsizetype fin = -1;
    for (std::size_t i = 0; i < champs; ++i) {
        fin = octets.indexOf(';', fin + 1);
        if (fin < 0)
            refuserLigne(champs);
    }
    return octets.first(fin + 1);
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
    if (octets.size() > LigneLongue)
        octets = raccourcir(octets, champs.size());
    if (m_tampon.size() < octets.size())
        m_tampon.resize(std::max(octets.size(), LigneLongue));
    decoder(octets, reinterpret_cast<char16_t *>(m_tampon.data()), true);
    couper(QStringView(m_tampon).first(octets.size()), champs);
}
