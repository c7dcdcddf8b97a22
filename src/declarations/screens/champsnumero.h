#pragma once

#include "declarations/salarieligne.h"

#include <functional>

struct ChoixSalarie;
struct Contexte;
class ChampMasque;
class QAbstractButton;
class QLabel;

/// The employee of a line as a screen takes him: ten digits and the key, or picked from the list, and shown
/// in three labels. It holds his cpt_z, which is 1 but for one who was picked.
class ChampsNumero
{
public:
    struct Controles
    {
        ChampMasque *num_saledit;
        ChampMasque *mskcle;
        QAbstractButton *cmdins;
        QLabel *Lab_nom;
        QLabel *lab_prenom;
        QLabel *Lab_date_naiss;
    };

    /// To be called once, with a screen whose controls these are.
    /// @param choisi run when an employee was picked
    void relier(Contexte &contexte, QWidget &ecran, const Controles &controles, std::function<void()> choisi);

    NumeroSaisi lire() const;
    /// Ready for the next line, the cursor on its number.
    void vider();
    /// Opens the entry of employees with the number that nobody has, and waits for its end.
    void creer() const;

private:
    void quitterCle();
    void inserer(const std::function<void()> &choisi);
    void montrer(const SalarieMontre &salarie) const;

    Contexte *m_contexte = nullptr;
    QWidget *m_ecran = nullptr;
    Controles m_controles{};
    qint64 m_cpt_z = 1;
};

/// Shows an employee in the labels of a line screen.
void montrerSalarie(const SalarieMontre &salarie, QLabel &nom, QLabel &prenom, QLabel &naissance);
