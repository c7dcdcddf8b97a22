#pragma once

#include "reference/employeurs.h"

class ChampMasque;
class QLineEdit;

/// The fields that add_emp and mod_emp share, as the rules read them.
struct ChampsEmployeur
{
    ChampMasque *num_empmask;
    ChampMasque *clemask;
    QLineEdit *Rais_SocEdit;
    QLineEdit *AdresseEdit;
    QLineEdit *telEdit;
    QLineEdit *mailEdit;

    /// To be called once: gives the masks their prompts and the telephone its limit.
    void preparer(const QString &inviteDuNumero) const;
    FicheEmployeur lire() const;
    void ecrire(const FicheEmployeur &fiche) const;
    /// Gives the focus to a refused field.
    void reprendre(ChampEmployeur champ) const;
};
