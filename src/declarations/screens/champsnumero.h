#pragma once

#include "declarations/salarieligne.h"
#include "rules/selon.h"

#include <functional>

struct Contexte;
class ChampMasque;
class QGridLayout;
class QLabel;
class QPushButton;
class QWidget;

/// The employee of a line on its form. In an entry he is typed as ten digits and the key, or picked from the
/// list; in a change he is shown. It holds his cpt_z, which is 1 but for one who was picked.
class ChampsNumero
{
public:
    /// Makes the controls, in the first four rows of the form's fields. To be called once.
    /// @param suivant the field behind them
    void poser(Forme forme, QGridLayout &champs, QWidget &suivant);

    /// Lets an entry work. @param ecran the form @param choisi run when an employee was picked
    void relier(Contexte &contexte, QWidget &ecran, std::function<void()> choisi);

    /// The fields of an entry, in the order of the Enter key.
    QList<QWidget *> champs() const;

    NumeroSaisi lire() const;
    /// Ready for the next line, the cursor on its number.
    void vider();
    /// Opens the entry of employees with the number that nobody has, and waits for its end.
    void creer() const;

    /// Shows the employee of a change.
    void montrer(Connexion &cnx, const QString &numero, qint64 cpt_z) const;

private:
    void poserSaisie(QWidget *feuille);
    void quitterCle();
    void inserer(const std::function<void()> &choisi);
    void montrer(const SalarieMontre &salarie) const;

    Contexte *m_contexte = nullptr;
    QWidget *m_ecran = nullptr;
    qint64 m_cpt_z = 1;

    // Of an entry
    ChampMasque *m_chiffres = nullptr;
    QLabel *m_titreCle = nullptr;
    ChampMasque *m_cle = nullptr;
    QPushButton *m_inserer = nullptr;
    // Of a change
    QLabel *m_numero = nullptr;
    // Of both
    QLabel *m_nom = nullptr;
    QLabel *m_prenom = nullptr;
    QLabel *m_naissance = nullptr;
};
