#pragma once

#include "rules/calendrier.h"
#include "validators/validateursalaires.h"

/// The fund's rules over a nominative declaration (DAC).
class ValidateurDac : public ValidateurSalaires
{
public:
    static constexpr int NombreColonnes = 25;

    /// @param bornes those of the program, which a code without bounds of its own leaves as they are; without
    /// them the validator has some to itself
    explicit ValidateurDac(BornesDePeriode *bornes = nullptr);

protected:
    QList<Libelle> libellesPropres() const override;
    void reinitialiser() override;
    bool entete(const QString &ligne) override;
    void ligne(QByteArrayView octets) override;
    Verdict conclure() override;

private:
    void decouperLigne(QByteArrayView octets);
    void ctrlNumeroSalarie();
    void ctrlNaissance();
    void ctrlParents();
    void ctrlEtatCivil();
    void ctrlMouvement();
    void ctrlEntreeSortie();
    bool dateDansPeriode(QDate date);
    void ctrlDureeEtSmig(QDate date);
    /// Lists an error of the movement. @param motsListe behind its letter, for the print
    void signalerMouvement(const QString &entree, const QString &motsListe);

    double m_restant = 0;
    QString LabNbDACReel;

    BornesDePeriode m_propres;
    BornesDePeriode &m_bornes;
    // The days that the bounds name and the year of the code; where they name none, the rule fails that
    // needs one.
    std::optional<QDate> m_debut;
    std::optional<QDate> m_fin;
    std::optional<double> m_annee;

    std::optional<QDate> m_dateES; ///< the day of the entry or leaving
};
