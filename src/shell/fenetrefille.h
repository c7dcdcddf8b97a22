#pragma once

#include <QMdiSubWindow>

/// The frame of a screen in the main window. It goes when its screen agrees to close, be it asked by the
/// frame or by a button of the screen that calls close().
class FenetreFille : public QMdiSubWindow
{
    Q_OBJECT

public:
    explicit FenetreFille(QWidget *feuille);

signals:
    void fermee();

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    bool m_fermee = false;
};
