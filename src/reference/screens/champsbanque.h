#pragma once

#include "reference/banques.h"

class ChampMasque;
class Dialogue;
class QLineEdit;

/// The fields that add_bnq and mod_bnq share, as the rules read them.
struct ChampsBanque
{
    ChampMasque *CodeBnq;
    QLineEdit *AbreviatBnq;
    QLineEdit *LibelleBnq;

    FicheBanque lire() const;
    void ecrire(const FicheBanque &fiche) const;
    /// Gives the focus to a refused field.
    void reprendre(ChampBanque champ) const;
    /// What is done when the code's field is left.
    void quitterCode(Dialogue &dialogue) const;
};
