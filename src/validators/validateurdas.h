#pragma once

#include "validators/validateur.h"

#include <QDate>

#include <array>
#include <optional>

/// The fund's rules over an annual declaration of wages (DAS).
class ValidateurDas : public Validateur
{
public:
    static constexpr int NombreChamps = 31;

    QList<Libelle> libelles() const override;
    QString titreImpression(const ListesErreurs &listes) const override;

protected:
    QStringList nomsResultat() const override;
    QString titreInfo() const override;
    void reinitialiser() override;
    bool premiereLigne(const QString &marque) override;
    bool entete(const QString &ligne) override;
    void ligne(QByteArrayView octets) override;
    Verdict conclure() override;

private:
    /// Header of the file, as text.
    struct Entete
    {
        QString employeur;
        QString annee;
        QString numero;
        QString total;
        QString effectif;
    };

    /// The fields of a line that rules speak of, by their place.
    enum Champ {
        NumSalarie = 1,
        Nom = 2,
        Prenom = 3,
        SituationFamiliale = 4,
        DateNaissance = 5,
        Adresse = 7,
        Presume = 10,
        Etranger = 11,
        CompteCCP = 12,
        CompteBancaire = 13,
        SalaireAnnuel = 17,
        DureeTravaillee = 18,
        TypeDuree = 19,
        DateEntreeSortie = 20,
        TypeEntreeSortie = 21,
        Categorie = 22,
        Telephone = 23,
        Mail = 24,
        Nationalite = 26,
        PrenomPere = 27,
        NomMere = 28,
        PrenomMere = 29,
        Nin = 30,
        ActeNaissance = 31,
    };
    /// What the messages call a field.
    static QStringView label(Champ champ);

    QStringView &valeur(Champ champ) { return m_champs[static_cast<std::size_t>(champ - 1)]; }

    QString CtrlEnteteDas() const;
    void AfficherEnteteDas();
    void ViderEnteteDas();

    void DecouperLigneDas(QByteArrayView octets);
    void CtrlNumerique(Champ champ);
    void CtrlCode(Champ champ);
    void CtrlDate(Champ champ);
    void CtrlTexte(Champ champ);
    bool SsManquantTolere();
    bool CtrlDureeDates();

    void ctrlNumeroSalarie();
    void ctrlNin();
    void ctrlDuree();
    void ctrlNationalite();
    void ctrlComptes();
    void ctrlTypeDuree();
    void ctrlEntreeSortie();
    bool etranger();
    bool national();

    void annoncerTaux();
    void comparerTotaux();
    void nommerOnglets();

    Entete m_entete;
    qint64 m_annee = 0;
    QString periodeCampagne;
    QString dateLimiteSS;
    // The days that the texts above and the campaign's bounds name; a year of odd form has none, and fails
    // where a rule needs one.
    std::optional<QDate> m_limiteSS;
    std::optional<QDate> m_debutCampagne;
    std::optional<QDate> m_finCampagne;
    std::optional<QDate> m_lendemainCampagne;

    std::array<QStringView, NombreChamps> m_champs;
    double m_duree = 0;            ///< the time worked of the running line
    std::optional<QDate> m_dateES; ///< the day of the entry or leaving, as the line has it
    qint64 nbSSValides = 0;
    qint64 nbNationaux = 0;
    qint64 nbSansCompte = 0;
    qint64 nbNinValides = 0;
    qint64 nbNationauxEntres = 0;
    double tauxSS = 0;
    double tauxSansCompte = 0;
    double tauxNin = 0;

    Entete m_affiche; ///< LabEmpl, LabAnn, LabNumDAS, LabSalDAS, LabNbDAS
    QString LabTotSalaires;
    QString LabTotSalaries;
    QList<Libelle> m_onglets;
};
