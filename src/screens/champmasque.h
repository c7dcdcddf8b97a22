#pragma once

#include "screens/champnombre.h"

/// A field of fixed length with a mask such as "##/##/####": "#" and "9" take a digit or a blank, "&" takes
/// any character, every other one stands for itself. Its text is always what it shows, prompt characters
/// included, as the rules read it: "__/__/____" when nothing is entered. A separator typed early ends its
/// group, "1/" giving 01. Typing and pasting overwrite; deleting puts the prompt back without moving what
/// stands behind.
class ChampMasque : public ChampNombre
{
    Q_OBJECT
    Q_PROPERTY(QString masque READ masque WRITE setMasque)
    Q_PROPERTY(QString invite READ invite WRITE setInvite)

public:
    explicit ChampMasque(QWidget *parent = nullptr);

    QString masque() const { return m_masque; }
    void setMasque(const QString &masque);

    /// The prompt, one character: "_" or a blank.
    QString invite() const { return m_invite; }
    void setInvite(const QString &invite);

    /// The text of the field with nothing entered.
    QString vide() const;
    bool estVide() const { return text() == vide(); }

    /// The text that the field takes on when an edit of its present text has left `saisie`, and where the
    /// cursor stands then. @param curseur place of the cursor behind the edit
    QString masquer(const QString &saisie, int &curseur) const;

protected:
    void mouseReleaseEvent(QMouseEvent *evenement) override;

private:
    bool estLibre(qsizetype place) const { return QStringView(u"#9&").contains(m_masque[place]); }
    /// Whether the free place takes the character.
    bool accepte(qsizetype place, QChar c) const;

    bool estConforme(const QString &texte) const;
    qsizetype separateurDevant(QChar c, qsizetype place) const;
    void completerGroupe(QString &texte, qsizetype place, qsizetype separateur) const;

    QString m_masque;
    QString m_invite = QStringLiteral("_");
    QString m_texte; ///< the text before the edit under way
};
