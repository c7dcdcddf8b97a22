#pragma once

#include "validators/controleligne.h"

#include <QStringView>

#include <array>
#include <span>

/// What the frame says differently of each file format. All of it is meant.
struct Particularites
{
    QStringView nom;                      ///< of the declaration, in the title of the printed list
    std::span<const QStringView> marques; ///< the first lines that are taken
    QStringView fautePremiereLigne;
    bool anomalieAussi;       ///< a wrong first line takes the failure path as well
    QStringView titreChoix;   ///< of the boxes on no file, another extension, an empty file
    QStringView titreDebut;   ///< of those on the first line and a missing header
    QStringView titreEntete;  ///< of the faults of the header
    QStringView titreSuite;   ///< of all others that have no title of their own; empty: the application's
    QStringView separateur;   ///< a word of the failure box
    bool finApresCompte;      ///< a line end behind the counts in the first result label
    bool motsAvecValeur;      ///< the words for the print show the field's value
    bool apostrophesEnBlancs; ///< in data lines
    std::array<QStringView, 2> resultats; ///< the names of the two result labels

    // The totals of the lines against the header.
    QStringView montantDesLignes;
    QStringView nombreDesLignes;
    QStringView celuiDeLentete;
    QStringView masqueEcart; ///< of the difference of amounts; empty: plain text
    bool egaliteTue;         ///< nothing is said of equal totals
};

/// What the declarations of wages, DAS and DAC, ask differently. All of it is meant.
struct ParticularitesSalaires
{
    Particularites cadre;

    // The name of the file is <employer, 8>_..._<period>
    qsizetype placePeriode;
    qsizetype longueurPeriode;
    QStringView fauteEmployeur; ///< the box
    QStringView labelPeriode;   ///< what the first result label says of another period

    // The faults of the header.
    QStringView numeroNul;
    QStringView numero;
    QStringView montant;

    // The checks of a line.
    Classe nonNumerique;
    QStringView finCleFausse; ///< of the entry on a wrong key
    QStringView motsNom;      ///< behind the label of a missing name
    bool chiffresRefuses;     ///< a name has no digit
    QStringView motsNationaliteVide;
    QStringView motsSansSalaire; ///< of the print, on a time worked without wage
    RegleCode unites;            ///< of the time worked
    int (*dureeMaximale)(QChar unite);
};

extern const ParticularitesSalaires particularitesDas;
extern const ParticularitesSalaires particularitesDac;
extern const Particularites particularitesCi;
