#include "rules/dialogue.h"

namespace {

Boite boite(const QString &texte, const QString &titre, Icone icone, Boutons boutons = Boutons::Ok,
            bool premierParDefaut = true)
{
    return {titre.isEmpty() ? TitreApplication.toString() : titre, texte, icone, boutons, premierParDefaut};
}

} // namespace

void Dialogue::avertir(const QString &texte, const QString &titre)
{
    montrer(boite(texte, titre, Icone::Avertissement));
}

void Dialogue::informer(const QString &texte, const QString &titre)
{
    montrer(boite(texte, titre, Icone::Information));
}

void Dialogue::critique(const QString &texte, const QString &titre)
{
    montrer(boite(texte, titre, Icone::Critique));
}

void Dialogue::afficher(const QString &texte, const QString &titre)
{
    montrer(boite(texte, titre, Icone::Aucune));
}

bool Dialogue::demander(const QString &texte, const QString &titre, bool ouiParDefaut, Icone icone)
{
    return montrer(boite(texte, titre, icone, Boutons::OuiNon, ouiParDefaut));
}

bool Dialogue::confirmer(const QString &texte, const QString &titre)
{
    return montrer(boite(texte, titre, Icone::Question, Boutons::OkAnnuler));
}
