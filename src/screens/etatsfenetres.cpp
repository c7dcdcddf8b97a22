#include "screens/etatsfenetres.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

QString cle(const QWidget &fenetre) { return u"fenetres/"_s + fenetre.objectName() + u"/geometrie"_s; }

} // namespace

QSettings reglages() { return QSettings(u"DAS KORVANDEL"_s, u"DAS KORVANDEL"_s); }

void garderGeometrie(const QWidget &fenetre) { reglages().setValue(cle(fenetre), fenetre.saveGeometry()); }

bool reprendreGeometrie(QWidget &fenetre)
{
    return fenetre.restoreGeometry(reglages().value(cle(fenetre)).toByteArray());
}
