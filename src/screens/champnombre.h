#pragma once

#include <QLineEdit>

/// A field for a number: an amount, a count, a code. Its whole content is selected on every way in.
class ChampNombre : public QLineEdit
{
    Q_OBJECT

public:
    explicit ChampNombre(QWidget *parent = nullptr);
};
