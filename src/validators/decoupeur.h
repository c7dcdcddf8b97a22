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
    explicit Decoupeur(bool apostrophesEnBlancs = true) : m_apostrophesEnBlancs(apostrophesEnBlancs) {}

    /// Cuts a line at ";" and trims each field. The fields lie one behind the other in a buffer of the
    /// cutter, and are valid, and may be rewritten in place, until the next call.
    /// @throws ErreurConversion for a line with fewer ends of fields
    void decouper(QByteArrayView octets, std::span<QStringView> champs);
    /// The same for a line of fixed columns: the last field goes to the line's end, and where the line ends
    /// early fields are empty.
    void decouper(QByteArrayView octets, std::span<const int> largeurs, std::span<QStringView> champs);

private:
    QStringView texte(QByteArrayView octets);

    const bool m_apostrophesEnBlancs;
    QString m_tampon;
    std::vector<qsizetype> m_fins;
};
