#pragma once

#include <QDate>
#include <QString>

/// The campaign of a year runs from 1 July of the year before to 30 June.
QDate debutCampagne(int annee);
QDate finCampagne(int annee);
/// The first day of the campaign's last month: who entered from then on may lack a social-security number.
QDate limiteSansNumero(int annee);

/// First and last day, dd/mm/yyyy, of the period that was asked for last; both empty before the first one.
/// The program keeps one for its lifetime, every file of the batch validator its own.
struct BornesDePeriode
{
    QString DateDebutPeriode;
    QString DateFinPeriode;
};

/// Sets the bounds of a period code: four characters of the year, then the month 01 to 12 or the quarter T1
/// to T4. March ("03"), like any code that is none, leaves the bounds of the period before: that is required.
void BornesPeriode(QStringView code, BornesDePeriode &bornes);
