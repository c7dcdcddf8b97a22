#pragma once

#include <QString>

#include <array>
#include <string_view>

class Dialogue;

/// The controls of a form that its checks can refuse, by objectName. A name is looked up while the program is
/// compiled, so that no refusal can carry one that is not in the list.
template <std::size_t Nombre>
struct Controles
{
    std::array<QStringView, Nombre> noms;

    template <std::size_t... L>
    consteval Controles(const char16_t (&...liste)[L]) : noms{QStringView(liste)...}
    {
    }

    template <std::size_t L>
    consteval QStringView operator[](const char16_t (&voulu)[L]) const
    {
        for (const QStringView nom : noms) {
            if (std::u16string_view(nom.utf16(), static_cast<std::size_t>(nom.size())) == voulu)
                return nom;
        }
        throw "no such control";
    }
};
template <std::size_t... L>
Controles(const char16_t (&...liste)[L]) -> Controles<sizeof...(L)>;

/// Why a check stopped: nothing is written, and the clerk was told. There is one kind of refusal for all
/// checks; what else a screen must know stands in a struct around it.
struct Refus
{
    /// The objectName of the control that gets the focus, one of its form's Controles; empty when the focus
    /// stays where it is.
    QStringView controle;
    /// What was told; empty when the clerk said no to a question.
    QString texte;

    friend bool operator==(const Refus &, const Refus &) = default;
};

/// Tells the fault as a warning. @param controle out of the Controles: the refusal keeps no copy of it
Refus refuser(Dialogue &dialogue, QStringView controle, const QString &texte, const QString &titre = {});
