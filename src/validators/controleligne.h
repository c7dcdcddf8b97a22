#pragma once

#include "rules/date.h"
#include "validators/champsligne.h"
#include "validators/decoupeur.h"
#include "validators/listeserreurs.h"

/// How grave an error of a line is.
enum class Classe {
    RejetDur,      ///< listed as reject; the declaration will be returned
    Rejet,         ///< listed as reject
    SansIncidence, ///< the fund puts it right by itself
};

/// A field that holds one of some letters.
struct RegleCode
{
    QStringView lettres;
    QStringView mots;
    Classe classe = Classe::SansIncidence;
    QStringView remplacement = {}; ///< the fund's own letter
    QStringView motsListe = {};    ///< where the print has other words
};

/// The running line of a file, its fields by name, and what the checks find in it: the two sets of lists with
/// their counters. A check that fires lists its error.
class ControleLigne : protected ChampsLigne
{
public:
    ListesErreurs rejets;
    ListesErreurs sansIncidence;
    qint64 nbErrRejet = 0;
    qint64 nbErrOK = 0;
    qint64 nbLignes = 0;

protected:
    /// @param motsAvecValeur whether the words for the print show the field's value as the entry does
    ControleLigne(bool motsAvecValeur, bool apostrophesEnBlancs)
        : m_decoupeur(apostrophesEnBlancs), m_motsAvecValeur(motsAvecValeur)
    {
    }
    ~ControleLigne() = default;

    void vider();

    /// Cuts a line of the file. @param colonnes the fields in the order of the file
    /// @param largeurs of a line of fixed columns; without them the fields end at ";"
    void decouper(QByteArrayView octets, std::span<const Champ> colonnes, std::span<const int> largeurs = {});

    QStringView &valeur(Champ champ) { return m_champs[champ]; }
    QStringView valeur(Champ champ) const { return m_champs[champ]; }
    /// Whether a code is this letter.
    bool est(Champ champ, QChar lettre) const
    {
        return m_champs[champ].size() == 1 && m_champs[champ][0] == lettre;
    }

    /// A day that a rule can't do without. @throws ErreurConversion where there is none
    static QDate jour(const std::optional<QDate> &date, QStringView texte)
    {
        return date ? *date : lireDate(texte);
    }

    // Rewriting in place.
    void enMajuscules(Champ champ);
    void oterBlancs(Champ champ);
    /// An amount: no blanks, "." for ",".
    void normaliserMontant(Champ champ);

    // How an entry begins. apresLigne stands before the number of the line.
    /// "Ligne N°:", the number of the line and the social-security number.
    QString prefixe(QStringView apresLigne = u"") const;
    /// The same with surname and first name.
    QString prefixeNoms(QStringView apresLigne = u"") const;

    /// Lists an error. @param mots for the print
    void signaler(Classe classe, const QString &entree, const QString &mots);
    /// Entry with names and these words, which the print has too.
    void signalerMots(Classe classe, const QString &mots);
    /// Entry with names, label, " = ", value and words. @param motsListe where the print has other words
    void signalerValeur(Classe classe, Champ champ, QStringView mots, QStringView motsListe = {});

    /// Whether the field is a number and not negative.
    bool CtrlNumerique(Champ champ, Classe nonNumerique = Classe::RejetDur);
    bool nonNegatif(Champ champ);
    /// Turns the field into capitals. @return whether it holds one of the letters
    bool CtrlCode(Champ champ, const RegleCode &regle);
    /// The same for a telephone or mail address, which may be empty.
    void CtrlCode(Champ champ, bool (*valide)(QStringView));
    /// The day of the field. @param motsVide what the print says behind the label where the field is empty
    std::optional<QDate> CtrlDate(Champ champ, QStringView motsVide = u" est Vide",
                                  QStringView apresLigne = u"");
    /// Whether somebody born on the day that this field holds may work in this year.
    bool CtrlAge(double annee, int ageMinimal, QStringView motsJeune = {}, QStringView motsVieux = {});
    /// A text of some length.
    void CtrlTexte(Champ champ, qsizetype longueurMinimale);
    /// The time worked and the wage are both zero, or neither.
    void CtrlDureeEtSalaire(double duree, QStringView salaire, QStringView motsSansSalaire);

    bool rejetDur = false;

private:
    Decoupeur m_decoupeur;
    std::array<QStringView, NombreChamps> m_champs;
    std::vector<QStringView> m_coupes; ///< in the order of the file
    const bool m_motsAvecValeur;
};
