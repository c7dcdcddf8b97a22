#include "screens/champmasque.h"

#include "rules/texte.h"

#include <QMouseEvent>
#include <QValidator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Every edit of a line edit, typed, pasted, dropped or set by the program, passes its validator, which may
/// rewrite the text: so the mask is kept in one place.
class GardeMasque : public QValidator
{
public:
    explicit GardeMasque(ChampMasque *champ) : QValidator(champ), m_champ(champ) {}

    State validate(QString &saisie, int &curseur) const override
    {
        saisie = m_champ->masquer(saisie, curseur);
        return Acceptable;
    }

private:
    ChampMasque *m_champ;
};

} // namespace

ChampMasque::ChampMasque(QWidget *parent) : ChampNombre(parent)
{
    setValidator(new GardeMasque(this));
    connect(this, &QLineEdit::textChanged, this, [this](const QString &texte) { m_texte = texte; });
}

void ChampMasque::setMasque(const QString &masque)
{
    m_masque = masque;
    m_texte = vide();
    setText(m_texte);
    setCursorPosition(0);
}

void ChampMasque::setInvite(const QString &invite)
{
    m_invite = invite;
    setMasque(m_masque);
}

QString ChampMasque::vide() const
{
    QString texte = m_masque;
    for (qsizetype i = 0; i < texte.size(); ++i) {
        if (estLibre(i))
            texte[i] = m_invite[0];
    }
    return texte;
}

bool ChampMasque::accepte(qsizetype place, QChar c) const
{
    if (m_masque[place] == u'&')
        return c.isPrint();
    return estChiffre(c) || c == u' ' || c == m_invite[0];
}

/// Whether the text is one that the field can hold as it stands.
bool ChampMasque::estConforme(const QString &texte) const
{
    if (texte.size() != m_masque.size())
        return false;
    for (qsizetype i = 0; i < texte.size(); ++i) {
        if (estLibre(i) ? !accepte(i, texte[i]) : texte[i] != m_masque[i])
            return false;
    }
    return true;
}

/// The place of the next separator of the mask when it is this character, else -1.
qsizetype ChampMasque::separateurDevant(QChar c, qsizetype place) const
{
    while (place < m_masque.size() && estLibre(place))
        ++place;
    return place < m_masque.size() && m_masque[place] == c ? place : -1;
}

/// A separator that is typed early ends its group: "1/" means 01.
void ChampMasque::completerGroupe(QString &texte, qsizetype place, qsizetype separateur) const
{
    qsizetype debut = place;
    while (debut > 0 && estLibre(debut - 1))
        --debut;
    const QString chiffres = texte.sliced(debut, place - debut);
    if (!chiffres.isEmpty() && chiffresSeuls(chiffres))
        texte.replace(debut, separateur - debut, chiffres.rightJustified(separateur - debut, u'0'));
}

QString ChampMasque::masquer(const QString &saisie, int &curseur) const
{
    if (estConforme(saisie))
        return saisie;

    // What stands behind the cursor has stayed; in front of it, what is common has. Between the two the old
    // text went and the new one came.
    const qsizetype fin =
        std::clamp<qsizetype>(m_texte.size() - (saisie.size() - curseur), 0, m_texte.size());
    qsizetype debut = 0;
    while (debut < std::min<qsizetype>(fin, curseur) && saisie[debut] == m_texte[debut])
        ++debut;
    QString venu = saisie.sliced(debut, curseur - debut);

    QString texte = m_texte;
    const QString rien = vide();
    texte.replace(debut, fin - debut, rien.sliced(debut, fin - debut));

    // A pasted number may be grouped; the blanks of a text as long as the field are its own.
    if (venu.size() > 1 && venu.size() != m_masque.size())
        venu.remove(u' ');
    qsizetype place = debut;
    for (const QChar c : std::as_const(venu)) {
        if (place < texte.size() && !estLibre(place) && c == m_masque[place]) {
            ++place;
            continue;
        }
        if (place > 0 && !estLibre(place - 1) && c == m_masque[place - 1])
            continue; // the separator behind which the cursor waits already
        if (const qsizetype separateur = separateurDevant(c, place); separateur > place) {
            completerGroupe(texte, place, separateur);
            place = separateur + 1;
            continue;
        }
        qsizetype libre = place;
        while (libre < texte.size() && !estLibre(libre))
            ++libre;
        if (libre == texte.size())
            break;
        if (!accepte(libre, c))
            continue;
        texte[libre] = c;
        place = libre + 1;
    }
    // Behind the last digit of a group the cursor waits behind the separator.
    while (!venu.isEmpty() && place < texte.size() && !estLibre(place))
        ++place;
    curseur = static_cast<int>(place);
    return texte;
}

void ChampMasque::mouseReleaseEvent(QMouseEvent *evenement)
{
    ChampNombre::mouseReleaseEvent(evenement);
    // A click into an empty field means its beginning.
    if (estVide() && !hasSelectedText())
        setCursorPosition(0);
}
