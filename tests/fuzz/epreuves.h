#pragma once

#include <QByteArrayView>

#include <stdexcept>

/// What must hold whatever bytes a file is made of. The fuzz targets look for bytes that break it; the tests
/// keep those that once did.

class EpreuveManquee : public std::logic_error
{
public:
    using std::logic_error::logic_error;
};

/// The reader hands out the lines of these bytes, however the device deals them out, and the cutter their
/// fields.
/// @throws EpreuveManquee
void eprouverDecoupe(QByteArrayView octets);

/// A file of these bytes, and good first lines with these bytes behind them, come to an end that fits what
/// was listed and told. @throws EpreuveManquee
void eprouverDas(QByteArrayView octets);
void eprouverDac(QByteArrayView octets);
void eprouverCi(QByteArrayView octets);
