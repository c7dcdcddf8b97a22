#include "das/importdas.h"

#include "rules/colonnesfixes.h"
#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/fonds.h"
#include "rules/lecteurlignes.h"
#include "storage/base.h"

#include <QFile>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView sansNumero = u"000000000000";

/// The two forms. They differ in the length of a line: in the first one the last four fields are empty.
struct Version
{
    QStringView marque;
    qsizetype longueur;
};

constexpr Version versions[] = {{fonds::MarqueDas1, 358}, {fonds::MarqueDas2, 426}};

enum class Forme { Texte, Majuscules, Jour, Montant, Entier };

struct ChampImport : ChampFixe
{
    Forme forme = Forme::Texte;
    /// What an empty field stands for.
    QStringView siVide = {};
};

constexpr ChampFixe champNumEmp{u"num_emp", 1, 8};
constexpr ChampFixe champAnnee{u"annee", 9, 4};
constexpr ChampFixe champType{u"Type", 13, 2};
constexpr ChampFixe champSomme{u"sum_annuel", 15, 15};
constexpr ChampFixe champEffectif{u"total_salarie", 30, 5};

constexpr ChampFixe champNumero{u"Num_Salarie", 1, 12};

// The 30 columns from 271 on are not read.
constexpr ChampImport champsSalarie[] = {
    {{u"nom", 13, 30}},
    {{u"prenom", 43, 30}},
    {{u"sf", 73, 1}, Forme::Majuscules},
    {{u"date_naiss", 74, 10}, Forme::Jour},
    {{u"lieu_naiss", 84, 40}},
    {{u"adresse", 124, 50}},
    {{u"ville", 174, 50}},
    {{u"c_postal", 224, 5}},
    {{u"presume", 229, 1}, Forme::Majuscules, u"N"},
    {{u"etranger", 230, 1}, Forme::Majuscules, u"N"},
    {{u"num_cpt_ccp", 231, 20}},
    {{u"num_cpt_banc", 251, 20}},
    {{u"profes", 301, 25}},
    {{u"SEXE", 358, 1}, Forme::Majuscules, u"M"},
    {{u"Telephone", 359, 10}, Forme::Majuscules},
    {{u"Email", 369, 40}, Forme::Majuscules},
    {{u"CinNumber", 409, 15}, Forme::Majuscules},
    {{u"IdNat", 424, 3}, Forme::Majuscules},
};

constexpr ChampImport champsLigne[] = {
    {{u"sal_annuel", 326, 15}, Forme::Montant},           {{u"nbj_travail", 341, 5}, Forme::Entier},
    {{u"type_dure", 346, 1}, Forme::Majuscules},          {{u"date_es", 347, 10}},
    {{u"type_date_es", 357, 1}, Forme::Majuscules, u"E"},
};

Valeur valeurDe(QStringView ligne, const ChampImport &champ)
{
    const QStringView lu = couper(ligne, champ);
    const QStringView texte = lu.isEmpty() ? champ.siVide : lu;
    switch (champ.forme) {
    case Forme::Texte:
        return texte;
    case Forme::Majuscules:
        return majuscules(texte);
    case Forme::Jour:
        return convertir(texte, champ, lireDate);
    case Forme::Montant:
        return convertir(texte, champ, LireMontant);
    case Forme::Entier:
        return convertir(texte, champ, lireEntier);
    }
    return {};
}

/// The columns of these fields behind others that come from elsewhere, and their values in the same order.
QStringList colonnes(QStringList devant, std::span<const ChampImport> champs)
{
    for (const ChampImport &champ : champs)
        devant += champ.colonne.toString();
    return devant;
}

Valeurs valeurs(Valeurs devant, QStringView ligne, std::span<const ChampImport> champs)
{
    for (const ChampImport &champ : champs)
        devant += valeurDe(ligne, champ);
    return devant;
}

/// Why an import stops; told when nothing of it is left.
struct Arret
{
    QString texte;
    QString titre;
};

const QString titreInterruption = u"Interruption de l'importation"_s;

/// One file on its way into the database.
class Importation
{
public:
    Importation(Base &base, LecteurLignes &lecteur);

    std::optional<Arret> lire(const Avancement &avancement);
    /// Shows what has come in shared lists; a new employer, campaign and header are the current ones.
    void montrer();

    const QString &employeur() const { return m_employeur; }

private:
    std::optional<Arret> lireEntete(QStringView ligne);
    void lireLigne(QStringView ligne);

    Base &m_base;
    LecteurLignes &m_lecteur;
    Insertion m_salaries;
    Insertion m_lignes;
    QString m_employeur;
    bool m_employeurNouveau = false;
    bool m_campagneNouvelle = false;
    qint64 m_annee = 0;
    Valeur m_type;
    /// The highest cpt_z of all employees.
    qint64 m_cpt_z = 0;
};

Importation::Importation(Base &base, LecteurLignes &lecteur)
    : m_base(base), m_lecteur(lecteur),
      m_salaries(base.Cnx, u"salarie"_s,
                 colonnes({u"Num_Salarie"_s, u"cpt_z"_s, u"banque"_s, u"agence_banque"_s}, champsSalarie)),
      m_lignes(base.Cnx, u"ligne_das"_s,
               colonnes({u"num_salarie"_s, u"cpt_z"_s, u"num_emp"_s, u"annee"_s, u"type_das"_s}, champsLigne))
{
}

std::optional<Arret> Importation::lire(const Avancement &avancement)
try {
    const QLatin1String marque(m_lecteur.lire());
    const auto *version = std::find_if(std::begin(versions), std::end(versions),
                                       [&](const Version &une) { return marque == une.marque; });
    if (version == std::end(versions))
        return Arret{u"Fichier incorrect! Importation échouée!!"_s, {}};
    if (const auto arret = lireEntete(lireColonnes(m_lecteur, derniereColonne({&champEffectif, 1}))))
        return arret;

    bool continuer = avancement(0);
    for (qint64 lignes = 1; continuer && !m_lecteur.finie(); ++lignes) {
        lireLigne(lireColonnes(m_lecteur, version->longueur));
        continuer = avancement(lignes);
    }
    if (!continuer) {
        return Arret{
            u"Importation arrêtée à la ligne %1 : rien n'a été enregistré."_s.arg(m_lecteur.numero()),
            titreInterruption};
    }
    return {};
} catch (const Erreur &erreur) {
    throw Erreur(u"Ligne %1 : %2"_s.arg(m_lecteur.numero()).arg(erreur.texte()));
}

std::optional<Arret> Importation::lireEntete(QStringView ligne)
{
    Connexion &cnx = m_base.Cnx;
    m_employeur = couper(ligne, champNumEmp).toString();
    m_annee = convertir(couper(ligne, champAnnee), champAnnee, lireEntier);
    if (m_annee < fonds::PremiereCampagne || m_annee > aujourdhui().year())
        return Arret{u"L'année de campagne de cette DAS est incorrecte"_s, titreInterruption};

    m_employeurNouveau = !cnx.existe(u"SELECT 1 FROM employeur WHERE num_emp = ?"_s, {m_employeur});
    if (m_employeurNouveau) {
        cnx.inserer(u"employeur"_s, {{u"num_emp"_s, m_employeur},
                                     {u"rais_soc"_s, u" "},
                                     {u"adresse"_s, u" "},
                                     {u"tel"_s, u" "},
                                     {u"Mail"_s, u" "}});
    }
    if (cnx.existe(u"SELECT 1 FROM entete_das WHERE num_emp = ? AND annee = ?"_s, {m_employeur, m_annee}))
        return Arret{u"Veuillez supprimer l'entête DAS saisie, avant importation DAS !"_s, {}};
    m_campagneNouvelle = !cnx.existe(u"SELECT 1 FROM annee WHERE annee = ?"_s, {m_annee});
    if (m_campagneNouvelle) {
        // The years stand the other way round than in the campaigns made by hand, with two blanks between:
        // this is meant.
        cnx.inserer(u"annee"_s,
                    {{u"annee"_s, m_annee},
                     {u"compagne"_s, u"du 01/07/%1  au 30/06/%2"_s.arg(m_annee + 1).arg(m_annee)}});
    }
    m_cpt_z = cnx.premiere(u"SELECT max(cpt_z) FROM salarie"_s).entier(0, 0);

    // An empty number of the declaration is kept as it stands.
    const QString type = sansBlancs(couper(ligne, champType));
    m_type = type.isEmpty() ? Valeur(type) : Valeur(convertir(type, champType, lireEntier));
    cnx.inserer(u"entete_das"_s,
                {{u"num_emp"_s, m_employeur},
                 {u"annee"_s, m_annee},
                 {u"Type"_s, m_type},
                 {u"sum_annuel"_s, convertir(couper(ligne, champSomme), champSomme, LireMontant)},
                 {u"total_salarie"_s, convertir(couper(ligne, champEffectif), champEffectif, lireEntier)},
                 {u"sum_calc"_s, Currency()},
                 {u"total_calc"_s, 0}});
    return {};
}

void Importation::lireLigne(QStringView ligne)
{
    const QStringView lu = couper(ligne, champNumero);
    const QStringView numero = lu.isEmpty() ? sansNumero : lu;
    const bool aUnNumero = numero != sansNumero;
    // A number stands for its employee whatever his cpt_z; the line has 1 all the same: this is meant.
    const qint64 cpt_z = aUnNumero ? 1 : ++m_cpt_z;
    const Valeurs salarie = valeurs({numero, cpt_z, u"", u""}, ligne, champsSalarie);
    if (!aUnNumero || !m_base.Cnx.existe(u"SELECT 1 FROM salarie WHERE Num_Salarie = ?"_s, {numero}))
        m_salaries.ajouter(salarie);
    m_lignes.ajouter(valeurs({numero, cpt_z, m_employeur, m_annee, m_type}, ligne, champsLigne));
}

void Importation::montrer()
{
    const auto relire = [](Recordset &liste, const Champs &nouvelle) {
        liste.requery();
        liste.allerA(liste.chercher(nouvelle));
    };
    if (m_employeurNouveau)
        relire(m_base.RsEmployeur, {{u"num_emp"_s, m_employeur}});
    if (m_campagneNouvelle)
        relire(m_base.RsAnnee, {{u"annee"_s, m_annee}});
    relire(m_base.RsEnteteDas, {{u"num_emp"_s, m_employeur}, {u"annee"_s, m_annee}});
    m_base.RsSalarie.requery();
    m_base.RsLigneDas.requery();
}

} // namespace

bool importerDas(Base &base, Dialogue &dialogue, const Avancement &avancement)
{
    const QString chemin = dialogue.choisirFichier(u"Importation données DAS"_s,
                                                   u"Fichiers texte (*.txt);;Tous les fichiers (*)"_s);
    if (chemin.isEmpty())
        throw ErreurFichier(u"Aucun fichier n'a été choisi."_s);
    QFile fichier(chemin);
    ouvrir(fichier, chemin);
    LecteurLignes lecteur(fichier);
    Importation importation(base, lecteur);
    std::optional<Arret> arret;
    {
        Transaction transaction(base.Cnx);
        arret = importation.lire(avancement);
        if (!arret)
            transaction.commit();
    }
    if (arret) {
        dialogue.avertir(arret->texte, arret->titre);
        return false;
    }
    fichier.close();
    dialogue.informer(u"Importation du fichier DAS effectuée avec succès!"_s);
    dialogue.informer(u"Veuillez complèter les informations de cet employeur SVP  :  "_s +
                      importation.employeur());
    importation.montrer();
    return true;
}
