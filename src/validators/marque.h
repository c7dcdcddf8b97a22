#pragma once

#include <QByteArray>
#include <QString>

/// The format mark that a first line holds: trimmed, then without tabs, in capitals. A line that is far too
/// long for any mark comes back cut: it differs from all of them anyway.
QString marqueDe(QByteArrayView octets);
