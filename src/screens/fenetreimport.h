#pragma once

#include "rules/avancement.h"

#include <QElapsedTimer>
#include <QWidget>

#include <memory>

namespace Ui {
class FenetreImport;
}
struct Contexte;

/// The window of an import: its button, the bar that turns and the count of lines while it runs, and a button
/// to stop it. While an import runs this button alone takes input in the whole program, so that nothing that
/// another window writes joins its transaction, and the window can't be left.
class FenetreImport : public QWidget
{
    Q_OBJECT

public:
    ~FenetreImport() override;

protected:
    /// @param invitation what the clerk is to choose
    FenetreImport(Contexte &contexte, const QString &nom, const QString &titre, const QString &invitation);

    /// Adds what the screen has of its own, below the bar.
    void placer(QWidget *resultats);

    /// What the import button does; failures go to the last failure handler.
    virtual void importer() = 0;
    /// Runs the import proper with its bar. Whatever ends it, the button comes back and the bar goes.
    void executer(const std::function<void(const Avancement &)> &import);

    void closeEvent(QCloseEvent *evenement) override;
    bool eventFilter(QObject *objet, QEvent *evenement) override;

    Contexte &m_contexte;

private:
    bool avancer(qint64 lignes);
    void montrerCours(bool enCours);

    std::unique_ptr<Ui::FenetreImport> m_ui;
    QElapsedTimer m_depuisPeinture;
    bool m_enCours = false;
    bool m_arret = false;
};
