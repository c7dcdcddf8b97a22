#pragma once

#include "validators/validateur.h"

/// The fund's rules over a bad-weather claim (CI), in the fixed columns of version 1.0 and in the fields
/// of 2.0.
class ValidateurCi : public Validateur
{
public:
    static constexpr int NombreColonnes = 11;

    ValidateurCi();

protected:
    QList<Libelle> libellesPropres() const override;
    QString enTitre() const override;
    void reinitialiser() override;
    bool entete(const QString &ligne) override;
    void ligne(QByteArrayView octets) override;
    Verdict conclure() override;

private:
    /// Header of the file, as text.
    struct Entete
    {
        QString employeur;
        QString reference;
        QString dateArret;
        QString dateReprise;
        QString montant;
        QString effectif;
        std::array<QString, 3> charges;
        QString compte;
        QString banque;
    };

    static Entete lireEntete(const QString &ligne, bool colonnesFixes);
    bool nomConforme();
    void direFautesEntete();
    void afficherEntete();
    void ctrlDatesChantier();
    void ctrlCharges();
    void ctrlCompte();

    void decouperLigne(QByteArrayView octets);
    void ctrlNumeroSalarie();
    void ctrlVide(Champ champ);
    void ctrlNaissance();
    void ctrlDebutNumero();
    std::optional<QDate> ctrlJour(Champ champ, QStringView texteChantier,
                                  const std::optional<QDate> &jourChantier);
    void ctrlIndemnite(double duree);

    bool colonnesFixes() const { return rangMarque() == 0; }

    Entete m_entete;
    Entete m_affiche; ///< LabEmpl, LabRef and the like
    // The days and the year of the header's dates; where they hold none, the rule fails that needs one.
    std::optional<QDate> m_arret;
    std::optional<QDate> m_reprise;
    std::optional<double> m_annee;
};
