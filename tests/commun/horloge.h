#pragma once

#include <QDate>

/// From now on it is that day, in every part of the program.
void arreterHorloge(QDate jour);
