#pragma once

#include <QStringList>

#include <memory>

class QFile;

/// What the program was called with. A file's name may hold bytes that are no UTF-8: they are kept, each as a
/// lone surrogate, so that the file can be opened by the bytes that it was given with.
QStringList lireArguments(int argc, char **argv);

/// The name of the file without its folder, as it is read: such bytes are characters of the code page.
QString nomSansDossier(const QString &chemin);

/// The file of this argument, not yet open.
std::unique_ptr<QFile> fichierDe(const QString &chemin);
