#pragma once

#include <QObject>

class Connexion;
class DernierRecours;
class Grille;
class QKeyEvent;
class QLineEdit;
class Recordset;

/// The search in a list of employees by typing, in the grid itself or in a field beside it: each key goes to
/// the first one whose name or number begins so. A key that nobody is left for is not taken.
class FrappeSalaries : public QObject
{
    Q_OBJECT

public:
    FrappeSalaries(Grille &grille, QLineEdit &champ, Connexion &cnx, Recordset &salaries,
                   DernierRecours &dernierRecours);

    /// The next key begins a new search.
    void oublier();

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    bool dansLaGrille(const QKeyEvent &touche);
    bool dansLeChamp(QKeyEvent &touche);
    void chercher(const QString &texte);

    Grille &m_grille;
    QLineEdit &m_champ;
    Connexion &m_cnx;
    Recordset &m_salaries;
    DernierRecours &m_dernierRecours;
    QString m_trouve; ///< the text for which somebody was there
};
