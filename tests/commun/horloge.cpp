#include "tests/commun/horloge.h"

#include "rules/date.h"

namespace {

QDate arretee;

} // namespace

void arreterHorloge(QDate jour) { arretee = jour; }

QDate aujourdhui() { return arretee.isValid() ? arretee : QDate::currentDate(); }
