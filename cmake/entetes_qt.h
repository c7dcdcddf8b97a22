// The headers of Qt and of the standard library that most files use, compiled once. No file relies on it:
// each includes what it uses.
#pragma once

#include <QAbstractTableModel>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QDialog>
#include <QFile>
#include <QHash>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QList>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringBuilder>
#include <QTableView>
#include <QTimer>
#include <QVariant>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <utility>
#include <vector>
