#pragma once

#include <QHash>
#include <QString>

#include <functional>

class QWidget;
struct Contexte;

/// Prepares and makes the window of a menu entry, without showing it. It returns nullptr when the window is
/// not to open (it has told why), and throws when what it needs is missing.
using Fabrique = std::function<QWidget *(Contexte &)>;

/// Which menu entry opens which window. Each folder of screens adds its own at start; an entry without a
/// window stays disabled.
class RegistreFenetres
{
public:
    void ajouter(const QString &entree, Fabrique fabrique);
    /// @return an empty function for an entry without a window
    Fabrique fabrique(const QString &entree) const { return m_fabriques.value(entree); }

private:
    QHash<QString, Fabrique> m_fabriques;
};
