#include "validators/marque.h"

#include "rules/texte.h"

namespace {

constexpr qsizetype MarqueLongue = 1024;

} // namespace

QString marqueDe(QByteArrayView octets)
{
    while (octets.startsWith(' '))
        octets = octets.sliced(1);
    while (octets.endsWith(' '))
        octets.chop(1);
    QByteArray propre;
    for (const char c : octets) {
        if (c != '\t')
            propre += c;
        if (propre.size() > MarqueLongue)
            break;
    }
    return majuscules(decoder(propre));
}
