#pragma once

#include <QList>
#include <QString>

#include <functional>

// What a printed form holds, as data: no routine that makes one knows how it is painted. Lengths are in
// millimetres of an A4 sheet, heights of letters in points. "\n" ends a line; texts too long for their place
// are wrapped.

enum class Alignement { Gauche, Centre, Droite };

struct Cellule
{
    QString texte = {};
    /// 0 for a share of what the other cells of the row leave.
    double largeur = 0;
    double corps = 10;
    bool gras = false;
    Alignement alignement = Alignement::Gauche;
    /// Whether the cell is shaded, as that of a caption.
    bool grisee = false;
    /// The side of the fund's logo at the left of the cell, which may reach below the row; 0 for none.
    double logo = 0;
};

/// Cells side by side, as high as the highest of them.
struct Rangee
{
    QList<Cellule> cellules = {};
    /// Whether the cells are boxes.
    bool reglee = false;
    /// The least height; texts stand in the middle of it, and of boxes, else at the top.
    double hauteur = 0;
    /// What is left free above.
    double avant = 0;
};

struct Colonne
{
    QString titre = {};
    double largeur = 0;
    Alignement alignement = Alignement::Gauche;
};

/// Rows of the same columns, read when they are laid out and painted: a row is never parted between two pages
/// unless it is longer than a page.
struct Tableau
{
    QList<Colonne> colonnes = {};
    double corps = 10;
    /// Whether it has lines, and its titles on each page.
    bool regle = true;
    qsizetype nombre = 0;
    std::function<QString(qsizetype rang, int colonne)> cellule = {};
};

/// A document on sheets of A4.
struct Document
{
    /// Name of the window that shows it.
    QString nom = {};
    /// Title of that window and of the print job.
    QString titre = {};
    /// Name offered for a file.
    QString fichier = {};
    bool paysage = false;
    double marge = 15;
    /// Side of a square to be cut out, in which all stands; 0 for the whole sheet.
    double vignette = 0;
    /// The head of each page, above the table. A document without a table is its head.
    QList<Rangee> tete = {};
    Tableau tableau = {};
    /// Whether "Page n de m" stands at the foot.
    bool numerote = false;
};
