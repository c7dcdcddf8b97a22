#pragma once

#include <QStringList>

#include <functional>

class QWidget;

/// What a walk along the roads of the declarations and of a claim left behind.
struct Parcours
{
    // The files that the program exported

    QString fichier; ///< of the annual declaration
    QString fichierDac;
    QString fichierCi;
    /// The printed forms, each a PDF.
    QStringList formulaires;
    /// The texts of all boxes, in the order of their coming.
    QStringList boites;
};

/// Is shown each screen where a clerk has filled it or read it.
using MontrerEcran = std::function<void(QWidget &ecran)>;

/// Starts the program on an empty home folder and walks the whole road of one annual declaration as a clerk
/// does, through its menu and its windows by keys and clicks: campaign, employer, nationalities, twelve
/// employees, header, lines, printed forms, export, validation, comparison with the nominative declarations;
/// then a quarter of the nominative declaration and a claim for bad weather, each with its lines, its export
/// and its validation. A warning, a failure or a control that is missing ends the process with a message.
Parcours parcourirRoute(int argc, char **argv, const MontrerEcran &montrer = {});
