#include "screens/champnombre.h"

#include "screens/selectionentree.h"

ChampNombre::ChampNombre(QWidget *parent) : QLineEdit(parent) { selectionnerALEntree(*this); }
