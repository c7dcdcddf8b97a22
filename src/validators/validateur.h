#pragma once

#include "validators/controleligne.h"
#include "validators/cumulsalaires.h"
#include "validators/particularites.h"

#include <QList>
#include <QString>

#include <functional>

class Dialogue;
class LecteurLignes;
class QIODevice;

/// How an extraction ended.
enum class Verdict {
    Acceptee,    ///< it reached its end and the declaration will not be returned
    Rejetee,     ///< it reached its end and the declaration will be returned
    Interrompue, ///< it ended before
};

/// The frame that the validators of all file formats share: the opening of the file and its first lines, the
/// failure path, the summary, the totals. A validator only reads.
class Validateur : public ControleLigne
{
public:
    virtual ~Validateur() = default;
    Validateur(const Validateur &) = delete;
    Validateur &operator=(const Validateur &) = delete;

    /// Empties the lists, but not the words for the print, the labels and the working fields: the start of
    /// every extraction.
    void vider();

    /// The whole extraction of the file at this path; an empty path stands for a cancelled file dialog.
    /// Whatever the file holds is told through the dialogue.
    /// @throws ErreurFichier when the file can't be opened
    Verdict extraire(const QString &chemin, Dialogue &dialogue);

    /// The same for a file of another source, opened here if it is not yet. @param nom the file's name,
    /// without a folder
    Verdict extraire(QIODevice &source, const QString &nom, Dialogue &dialogue);

    /// Called from time to time, and before each box, with the bytes read and those of the whole file.
    std::function<void(qint64 lus, qint64 total)> surAvancement;

    /// A label of the screen: the name of the control and its text as it stands.
    struct Libelle
    {
        QString nom;
        QString texte;
    };
    /// All labels that the extraction fills.
    QList<Libelle> libelles() const;
    /// The two labels that hold the results as text: errors and header first, totals second.
    QList<Libelle> libellesResultat() const;

    /// Name of the file in capitals, without its folder: what the rules about names see.
    const QString &nomFichier() const { return m_nomFichier; }
    /// Whether an extraction has come as far as the totals, since the validator was made.
    bool ongletsPermis() const { return m_ongletsPermis; }
    /// The line of title of the printed list.
    QString titreImpression(const ListesErreurs &listes) const;

    CumulSalaires totalSalaires;

protected:
    explicit Validateur(const Particularites &particularites);

    /// The labels that show the header, and others that the format has of its own.
    virtual QList<Libelle> libellesPropres() const = 0;
    /// The employer's number and the time that the title of the printed list names.
    virtual QString enTitre() const = 0;
    /// Empties the labels and sets the working fields back.
    virtual void reinitialiser() = 0;
    /// Reads and shows the header. @return false to end quietly; a throw takes the failure path
    virtual bool entete(const QString &ligne) = 0;
    /// Checks one data line and adds its wage.
    virtual void ligne(QByteArrayView octets) = 0;
    /// Everything behind the summary: rates, totals, verdict.
    virtual Verdict conclure() = 0;

    /// The dialogue of the running extraction; the labels on the screen are brought up to date first.
    Dialogue &dialogue();
    /// A plain box under the format's own title.
    void dire(const QString &texte);

    /// Which of the format's first lines the file has.
    qsizetype rangMarque() const { return m_rangMarque; }

    /// Adds words to the faults of a header: behind others a blank stands before the marks.
    static void noterFaute(QString &fautes, bool fautif, QStringView mots);
    /// Adds a text behind a line end where the label already holds something.
    static void joindre(QString &libelle, const QString &texte);
    /// Whether all characters are among these.
    static bool faitDe(QStringView texte, QStringView permis);

    /// Adds the wage of the running line and counts the line.
    void compter(Champ salaire);

    /// Shows the totals of the lines and says how they stand to those of the header.
    /// @param montant the label of the header's amount, which gets the form of an amount
    /// @param effectif as the file has it
    void comparerTotaux(QString &montant, QStringView effectif);

    QString m_resultat;  ///< first result label
    QString m_resultat2; ///< second result label

private:
    Verdict derouler(LecteurLignes &lecteur);
    Verdict interrompre(const QString &message, QStringView titre);
    bool premiereLigne(const QString &marque);
    void direEcart(const QString &ecart, const QString &montre, QStringView sujet);

    const Particularites &m_particularites;
    Dialogue *m_dialogue = nullptr;
    QString m_nomFichier;
    QString LabTotSalaires;
    QString LabTotSalaries;
    qsizetype m_rangMarque = 0;
    qint64 m_lus = 0;
    qint64 m_total = 0;
    bool m_ongletsPermis = false;
};
