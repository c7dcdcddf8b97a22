#pragma once

#include "validators/validateursalaires.h"

/// The fund's rules over an annual declaration of wages (DAS).
class ValidateurDas : public ValidateurSalaires
{
public:
    static constexpr int NombreColonnes = 31;

    ValidateurDas();

protected:
    QList<Libelle> libellesPropres() const override;
    void reinitialiser() override;
    bool entete(const QString &ligne) override;
    void ligne(QByteArrayView octets) override;
    Verdict conclure() override;

private:
    void DecouperLigneDas(QByteArrayView octets);
    void ctrlNumeroSalarie();
    bool SsManquantTolere();
    void ctrlParents();
    void ctrlNaissance();
    void ctrlEntreeSortie();
    bool CtrlDureeDates();

    void annoncerTaux();
    void nommerOnglets();

    qint64 m_annee = 0;
    QString periodeCampagne;
    QString dateLimiteSS;
    // The days that the texts above and the campaign's bounds name; a year of odd form has none, and fails
    // where a rule needs one.
    std::optional<QDate> m_limiteSS;
    std::optional<QDate> m_debutCampagne;
    std::optional<QDate> m_finCampagne;

    std::optional<QDate> m_dateES; ///< the day of the entry or leaving, as the line has it
    qint64 nbSSValides = 0;
    double tauxSS = 0;
    double tauxNin = 0;

    QList<Libelle> m_onglets;
};
