#pragma once

#include <QString>

class Dialogue;

/// Why a check stopped: nothing is written, and the clerk was told. There is one kind of refusal for all
/// checks; what else a screen must know stands in a struct around it.
struct Refus
{
    /// The objectName of the control that gets the focus; empty when the focus stays where it is.
    QStringView controle;
    /// What was told; empty when the clerk said no to a question.
    QString texte;

    friend bool operator==(const Refus &, const Refus &) = default;
};

/// Tells the fault as a warning. @param controle a literal: the refusal keeps no copy of it
Refus refuser(Dialogue &dialogue, QStringView controle, const QString &texte, const QString &titre = {});
