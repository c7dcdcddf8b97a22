#pragma once

#include "validators/validateur.h"

/// What the validators of the two declarations of wages share: the header, the identity of an employee, his
/// accounts, the time that he worked.
class ValidateurSalaires : public Validateur
{
protected:
    explicit ValidateurSalaires(const ParticularitesSalaires &particularites);

    /// Header of the file, as text.
    struct Entete
    {
        QString employeur;
        QString periode; ///< the year of a campaign, the code of a period
        QString numero;
        QString total;
        QString effectif;
    };

    QString enTitre() const override;
    void reinitialiser() override;

    /// The header against the name of the file.
    bool nomConforme();
    /// The faults of the header that both declarations know.
    QString fautesEntete() const;
    /// Shows them, if there are any.
    void direFautesEntete(const QString &fautes);

    bool etranger() const { return est(Etranger, u'O'); }
    bool national() const { return est(Etranger, u'N'); }

    // The checks of a line, in no order of theirs.
    void ctrlEtranger();
    /// Whether date of birth, length and key of the social-security number are right.
    bool ctrlNumero();
    bool acteConcorde() const;
    void ctrlNin();
    void ctrlNationalite();
    void ctrlPresume();
    void ctrlComptes();
    /// Whether a name is missing.
    bool nomAbsent(Champ champ) const;
    /// @param montre what the entry shows in front of the label
    void signalerNom(Classe classe, Champ champ, const QString &montre);
    /// Surname and first name.
    void ctrlNoms();
    void ctrlSalaire();
    /// The time worked: a number that goes with the wage.
    void ctrlDuree();
    /// The unit of the time worked, and the most that may stand there.
    void ctrlUnite();
    void ctrlContacts();

    /// Share of the nationals without an account, in per cent.
    double partSansCompte() const;

    Entete m_entete;
    Entete m_affiche;   ///< LabEmpl, LabAnn and the like
    double m_duree = 0; ///< the time worked of the running line
    qint64 nbNationaux = 0;
    qint64 nbSansCompte = 0;
    qint64 nbNinValides = 0;
    qint64 nbNationauxEntres = 0;
    double tauxSansCompte = 0;

private:
    const ParticularitesSalaires &m_particularites;
};
