#pragma once

#include <QByteArray>
#include <QString>

#include <span>
#include <vector>

/// Cuts the line at ";" and trims each field. The line must hold an end for every field; what stands behind
/// the last of them is ignored. @throws ErreurConversion for a shorter line
void couper(QStringView ligne, std::span<QStringView> champs);

/// Decodes the data lines of a file and cuts them into fields.
class Decoupeur
{
public:
    /// Cuts a line, in which apostrophes count as blanks. The fields lie one behind the other in a buffer of
    /// the cutter, and are valid, and may be rewritten in place, until the next call.
    /// @throws ErreurConversion for a line with fewer ends of fields
    void decouper(QByteArrayView octets, std::span<QStringView> champs);

private:
    QString m_tampon;
    std::vector<qsizetype> m_fins;
};
