#include "employees/importsalaries.h"

#include "employees/fichesalarie.h"
#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/fonds.h"
#include "rules/lecteurlignes.h"
#include "rules/texte.h"
#include "storage/base.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A field of a line: where it stands, from 0, and the column that it fills.
struct ChampFichier
{
    QStringView colonne;
    int debut;
    int longueur;
};

constexpr ChampFichier champsEmployeur[] = {
    {u"num_emp", 0, 8},
    {u"rais_soc", 8, 40},
    {u"adresse", 48, 40},
};

constexpr ChampFichier champsSalarie[] = {
    {u"Num_Salarie", 0, 12}, {u"nom", 12, 15},        {u"prenom", 27, 15},  {u"sf", 42, 1},
    {u"date_naiss", 43, 10}, {u"lieu_naiss", 53, 40}, {u"adresse", 93, 40}, {u"profes", 133, 20},
    {u"ville", 153, 50},     {u"c_postal", 203, 5},   {u"presume", 208, 1}, {u"etranger", 209, 1},
};

QStringView couper(QStringView ligne, const ChampFichier &champ)
{
    return Trim(ligne.mid(champ.debut, champ.longueur));
}

/// The next line, only its head when it is overlong: no field stands further back.
QString lireLigne(LecteurLignes &lecteur)
{
    constexpr qsizetype utile = 512;
    const QByteArrayView ligne = lecteur.lire();
    return decoder(ligne.first(std::min(ligne.size(), utile)));
}

/// @return whether the employer is a new one
bool importerEmployeur(Base &base, QStringView ligne, Dialogue &dialogue)
{
    Champs champs;
    for (const ChampFichier &champ : champsEmployeur)
        champs.append({champ.colonne.toString(), couper(ligne, champ)});
    const QStringView numero = couper(ligne, champsEmployeur[0]);
    if (base.Cnx.existe(u"SELECT 1 FROM employeur WHERE num_emp = ?"_s, {numero}))
        return false;
    champs.append({u"tel"_s, u""_s});
    champs.append({u"Mail"_s, u""_s});
    base.RsEmployeur.ajouter(champs);
    dialogue.informer(u"Employeur: %1\n%2\najouté."_s.arg(numero, couper(ligne, champsEmployeur[1])));
    return true;
}

class AjoutSalaries
{
public:
    explicit AjoutSalaries(Connexion &cnx) : m_cnx(cnx)
    {
        QStringList marques;
        for (const ChampFichier &champ : champsSalarie) {
            m_colonnes += champ.colonne.toString();
            marques += u"?"_s;
        }
        // The file has no cpt_z; the lines of declarations refer to the employee by it.
        m_sql = u"INSERT INTO salarie (%1, cpt_z) VALUES (%2, 1)"_s.arg(m_colonnes.join(u", "),
                                                                        marques.join(u", "));
    }

    /// @return false when the table holds the number already
    bool ajouter(QStringView ligne)
    {
        if (m_cnx.existe(u"SELECT 1 FROM salarie WHERE Num_Salarie = ?"_s, {couper(ligne, champsSalarie[0])}))
            return false;
        Valeurs valeurs;
        for (const ChampFichier &champ : champsSalarie) {
            const QStringView texte = couper(ligne, champ);
            valeurs += champ.colonne == u"date_naiss" ? Valeur(lireDate(texte)) : Valeur(texte);
        }
        m_cnx.executer(m_sql, valeurs, m_colonnes);
        return true;
    }

private:
    Connexion &m_cnx;
    QStringList m_colonnes;
    QString m_sql;
};

ImportSalaries importer(LecteurLignes &lecteur, Base &base, Dialogue &dialogue, const SuiviImport &suivi)
{
    ImportSalaries resultat;
    resultat.employeurAjoute = importerEmployeur(base, lireLigne(lecteur), dialogue);
    suivi.avancer(0);
    AjoutSalaries salaries(base.Cnx);
    while (!lecteur.finie()) {
        ++(salaries.ajouter(lireLigne(lecteur)) ? resultat.ajoutes : resultat.ignores);
        suivi.avancer(resultat.ajoutes + resultat.ignores);
    }
    resultat.fait = true;
    return resultat;
}

} // namespace

ImportSalaries importerSalaries(Base &base, Dialogue &dialogue, const SuiviImport &suivi)
{
    const QString chemin = dialogue.choisirFichier(u"Importation de salariés"_s,
                                                   u"Fichiers texte (*.txt);;Tous les fichiers (*)"_s);
    if (chemin.isEmpty())
        return {};
    ImportSalaries resultat;
    try {
        QFile fichier(chemin);
        ouvrir(fichier, chemin);
        LecteurLignes lecteur(fichier);
        if (lireLigne(lecteur) != fonds::MarqueSalaries) {
            dialogue.avertir(u"Fichier incorrect! Importation échouée!!"_s);
            return {};
        }
        Transaction transaction(base.Cnx);
        resultat = importer(lecteur, base, dialogue, suivi);
        transaction.commit();
    } catch (const Erreur &) {
        return {}; // without a word: that is required
    }
    suivi.compter(resultat);
    dialogue.informer(u"Lecture Du Fichier Effectuée Avec Succès !  Résultat Affiché !"_s);
    base.RsSalarie.requery();
    return resultat;
}
