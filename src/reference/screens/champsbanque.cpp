#include "reference/screens/champsbanque.h"

#include "reference/textesaisi.h"
#include "screens/champmasque.h"
#include "screens/focus.h"

FicheBanque ChampsBanque::lire() const { return {CodeBnq->text(), AbreviatBnq->text(), LibelleBnq->text()}; }

void ChampsBanque::ecrire(const FicheBanque &fiche) const
{
    CodeBnq->setText(fiche.CodeBnq);
    AbreviatBnq->setText(fiche.AbreviatBnq);
    LibelleBnq->setText(fiche.LibelleBnq);
}

void ChampsBanque::reprendre(ChampBanque champ) const
{
    switch (champ) {
    case ChampBanque::CodeBnq:
        return reprendreSaisie(*CodeBnq);
    case ChampBanque::AbreviatBnq:
        return reprendreSaisie(*AbreviatBnq);
    case ChampBanque::LibelleBnq:
        return reprendreSaisie(*LibelleBnq);
    }
}

void ChampsBanque::quitterCode(Dialogue &dialogue) const
{
    QString code = CodeBnq->text();
    if (refuserBlancAuDebut(code, dialogue)) {
        CodeBnq->setText(code);
        CodeBnq->setCursorPosition(0);
    }
}
