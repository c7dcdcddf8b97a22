#pragma once

#include "rules/identite.h"
#include "storage/enregistrement.h"

#include <QString>
#include <QStringList>

#include <optional>

class Connexion;
class Dialogue;

/// The ten digits of NumeroBlanc, without the key.
inline constexpr QStringView ChiffresBlancs = u"0000000000";
/// A bank account that nobody gave.
inline constexpr QStringView CompteBlanc = u"00000000000000000000";
/// The place of the own nationality in the list, "004".
inline constexpr int RangNational = 3;

/// The fields of an employee as the entry and the change screen hold them. A masked field's text is what it
/// shows, prompt characters included; a list without a choice is an empty text or the place -1.
struct FicheSalarie
{
    /// The check box, and not the digits, makes the entry give a cpt_z.
    bool blancCheck = false;
    QString num_salmask = QString(10, u' ');
    QString clemask = QString(2, u' ');
    QString nomedit;
    QString prenomedit;
    int CmbSexe = -1;
    QString mskdate = QStringLiteral("__/__/____");
    bool presumeCheck = false;
    QString CmbWilaya;
    QString CmbCommune;
    QString sfedit;
    bool etrangerCheck = false;
    int CmbNationalite = RangNational;
    QString MskNumActeNaiss = QString(5, u'_');
    QString MskNin = QString(18, u'_');
    QString TxtPIN;
    QString PrenomPere;
    QString NomMere;
    QString PrenomMere;
    QString profesedit;
    /// Lines end in "\n".
    QString adredit;
    QString villeEdit;
    QString c_postalEdit;
    QString MskNTel = QString(10, u'0');
    QString TxtEmail;
    QString num_cpt_ccpedit;
    QString num_cpt_bancedit = CompteBlanc.toString();

    bool sansNumero() const { return num_salmask == ChiffresBlancs; }

    friend bool operator==(const FicheSalarie &, const FicheSalarie &) = default;
};

/// The number under which an employee was found when his change screen was filled.
struct AncienNumero
{
    /// His row as it was read then.
    Enregistrement ligne;
    /// As stored: with cpt_z, the key of the row.
    QString Num_Salarie;
    /// The digits without the key; blanks on the right when the stored number is short.
    QString chiffres;
    QString cle;
    qint64 cpt_z = 1;
};

/// The fields of the entry at its opening. @param rien a value-initialised record is just that
inline FicheSalarie ficheALOuverture() { return {}; }

/// The fields of the entry after a save: the certificate and the NIN are zeros now, so the next employee
/// without a number and a NIN is checked otherwise than the first.
FicheSalarie ficheApresCreation();

/// What ticking and clearing the foreigner's box write into the other fields.
void cocherEtranger(FicheSalarie &fiche, bool coche);

/// What ticking and clearing the box of an employee without a number write into the number.
void cocherBlanc(FicheSalarie &fiche, bool coche);

/// The change screen's fields from the row of an employee; a Null leaves the field as the entry opens with
/// it.
struct FicheRemplie
{
    FicheSalarie fiche;
    AncienNumero ancien;
};
FicheRemplie remplirFiche(const Enregistrement &ligne, Connexion &cnx);

// The lists, read anew at each opening

/// Code, three blanks and name of every wilaya, in table order.
QStringList listeWilayas(Connexion &cnx);
/// The same of the communes of a wilaya, by code. @param wilaya an item of listeWilayas()
QStringList listeCommunes(Connexion &cnx, QStringView wilaya);
/// The names by ID; the place in this list plus one is the stored IdNat.
QStringList listeNationalites(Connexion &cnx);

/// Whether the list of nationalities can be shown; tells the clerk when it can't, and neither screen opens
/// then.
bool nationalitesImportees(Connexion &cnx, Dialogue &dialogue);
