#pragma once

#include "validators/decoupeur.h"
#include "validators/listeserreurs.h"

#include <QList>
#include <QString>
#include <QStringList>

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

/// How grave an error of a line is.
enum class Classe {
    RejetDur,      ///< listed as reject; the declaration will be returned
    Rejet,         ///< listed as reject
    SansIncidence, ///< the fund puts it right by itself
};

/// A sum of wages to the hundredth, exact as far as 64 bits reach.
class CumulSalaires
{
public:
    /// @throws ErreurConversion when no floating-point number holds the sum
    void ajouter(double entier, int centiemes);
    double valeur() const
    {
        const auto entier = static_cast<double>(m_centiemes / 100);
        return entier + static_cast<double>(m_centiemes % 100) / 100 + m_debordement;
    }

private:
    qint64 m_centiemes = 0;
    double m_debordement = 0;
};

/// The frame that the validators of all file formats share: the opening of the file and its first lines, the
/// lists and their counters, the failure path, the summary. A validator only reads.
class Validateur
{
public:
    Validateur() = default;
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

    /// The same for data that is open already. @param nom the file's name, without a folder
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
    virtual QList<Libelle> libelles() const = 0;
    /// The two labels that hold the results as text: errors and header first, totals second.
    QList<Libelle> libellesResultat() const;

    /// Name of the file in capitals, without its folder: what the rules about names see.
    const QString &nomFichier() const { return m_nomFichier; }
    /// Whether an extraction has come as far as the totals, since the validator was made.
    bool ongletsPermis() const { return m_ongletsPermis; }
    /// The line of title of the printed list.
    virtual QString titreImpression(const ListesErreurs &listes) const = 0;

    ListesErreurs rejets;
    ListesErreurs sansIncidence;
    qint64 nbErrRejet = 0;
    qint64 nbErrOK = 0;
    qint64 nbLignes = 0;
    CumulSalaires totalSalaires;

protected:
    /// Names of the two result labels.
    virtual QStringList nomsResultat() const = 0;
    /// Title of the boxes about the file as such.
    virtual QString titreInfo() const = 0;
    /// Empties the labels and sets the working fields back.
    virtual void reinitialiser() = 0;
    /// Tests the format mark: the first line, trimmed, without tabs, in capitals.
    /// @return false to end quietly; a throw takes the failure path
    virtual bool premiereLigne(const QString &marque) = 0;
    /// Reads and shows the header. @return false to end quietly
    virtual bool entete(const QString &ligne) = 0;
    /// Checks one data line and adds its wage.
    virtual void ligne(QByteArrayView octets) = 0;
    /// Everything behind the summary: rates, totals, verdict.
    virtual Verdict conclure() = 0;

    /// The dialogue of the running extraction; the labels on the screen are brought up to date first.
    Dialogue &dialogue();

    /// Cuts a data line; its fields are valid until the next line.
    void decouper(QByteArrayView octets, std::span<QStringView> champs)
    {
        m_decoupeur.decouper(octets, champs);
    }
    /// The characters of a field of the running line, for rewriting in place.
    static QChar *caracteres(QStringView champ) { return const_cast<QChar *>(champ.data()); }
    /// The field in capitals, in place.
    static void enMajuscules(QStringView champ);
    /// The field without its blanks, in place.
    static void oterBlancs(QStringView &champ);

    /// Who the running line is about, for the entries.
    struct Personne
    {
        QStringView numero;
        QStringView nom;
        QStringView prenom;
    };
    void situer(const Personne &personne) { m_personne = personne; }
    /// "Ligne N°:", the number of the line and the social-security number. @param apresLigne stands before
    /// the number
    QString prefixe(QStringView apresLigne = u"") const;
    /// The same with surname and first name.
    QString prefixeNoms(QStringView apresLigne = u"") const;
    /// Lists an error of the running line.
    void signaler(Classe classe, const QString &entree, const QString &mots);
    /// Entry with names, label, " = ", value and words; its words are label, " = ", value and motsListe.
    void signalerValeur(Classe classe, QStringView label, QStringView valeur, QStringView mots,
                        QStringView motsListe);
    void signalerValeur(Classe classe, QStringView label, QStringView valeur, QStringView mots);

    /// Adds the wage of the running line, digits with a "." as separator, and counts the line.
    /// Decimals behind the second are dropped. @throws ErreurConversion when one of the first two is no digit
    void ajouterSalaire(QStringView salaire);

    /// Adds a text behind a line end where the label already holds something.
    static void joindre(QString &libelle, const QString &texte);
    /// Whether all characters are among these.
    static bool faitDe(QStringView texte, QStringView permis);

    bool rejetDur = false;
    QString m_resultat;  ///< first result label
    QString m_resultat2; ///< second result label

    void permettreOnglets() { m_ongletsPermis = true; }

private:
    Verdict derouler(LecteurLignes &lecteur);
    Verdict interrompre(const QString &message);

    Dialogue *m_dialogue = nullptr;
    QString m_nomFichier;
    Decoupeur m_decoupeur;
    Personne m_personne;
    qint64 m_lus = 0;
    qint64 m_total = 0;
    bool m_ongletsPermis = false;
};
