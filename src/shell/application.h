#pragma once

#include <QApplication>

class DernierRecours;

/// The application, with the net under Qt's event loop: an exception that escapes a handler of Qt's own (a
/// paint, a focus change) goes to the last failure handler. Every label and tool tip shows its text as it
/// stands: what a file or the database holds is never read as HTML.
class Application : public QApplication
{
public:
    Application(int &argc, char **argv);

    void proteger(DernierRecours *dernierRecours) { m_dernierRecours = dernierRecours; }
    bool notify(QObject *recepteur, QEvent *evenement) override;

private:
    DernierRecours *m_dernierRecours = nullptr;
};
