#include "reference/screens/champsemployeur.h"

#include "screens/champmasque.h"
#include "screens/focus.h"

#include <QValidator>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype largeurTelephone = 10;

/// Keeps a telephone number within its width. A pasted number may be grouped: it loses its blanks rather than
/// its last digits.
class LimiteTelephone : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &saisie, int &curseur) const override
    {
        if (saisie.size() <= largeurTelephone)
            return Acceptable;
        const auto estBlanc = [](QChar c) { return c.isSpace(); };
        curseur -= static_cast<int>(std::count_if(saisie.begin(), saisie.begin() + curseur, estBlanc));
        saisie.removeIf(estBlanc);
        return saisie.size() <= largeurTelephone ? Acceptable : Invalid;
    }
};

} // namespace

void ChampsEmployeur::preparer(const QString &inviteDuNumero) const
{
    // A form file can't hold a text of blanks alone.
    num_empmask->setInvite(inviteDuNumero);
    clemask->setInvite(u" "_s);
    telEdit->setValidator(new LimiteTelephone(telEdit));
}

FicheEmployeur ChampsEmployeur::lire() const
{
    return {num_empmask->text(), clemask->text(), Rais_SocEdit->text(),
            AdresseEdit->text(), telEdit->text(), mailEdit->text()};
}

void ChampsEmployeur::ecrire(const FicheEmployeur &fiche) const
{
    num_empmask->setText(fiche.num_empmask);
    clemask->setText(fiche.clemask);
    Rais_SocEdit->setText(fiche.Rais_SocEdit);
    AdresseEdit->setText(fiche.AdresseEdit);
    telEdit->setText(fiche.telEdit);
    mailEdit->setText(fiche.mailEdit);
}

void ChampsEmployeur::reprendre(ChampEmployeur champ) const
{
    switch (champ) {
    case ChampEmployeur::num_empmask:
        return reprendreSaisie(*num_empmask);
    case ChampEmployeur::clemask:
        return reprendreSaisie(*clemask);
    case ChampEmployeur::Rais_SocEdit:
        return reprendreSaisie(*Rais_SocEdit);
    case ChampEmployeur::AdresseEdit:
        return reprendreSaisie(*AdresseEdit);
    case ChampEmployeur::telEdit:
        return reprendreSaisie(*telEdit);
    case ChampEmployeur::mailEdit:
        return reprendreSaisie(*mailEdit);
    }
}
