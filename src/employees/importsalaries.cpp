#include "employees/importsalaries.h"

#include "rules/colonnesfixes.h"
#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/fonds.h"
#include "rules/lecteurlignes.h"
#include "storage/base.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr ChampFixe champsEmployeur[] = {
    {u"num_emp", 1, 8},
    {u"rais_soc", 9, 40},
    {u"adresse", 49, 40},
};

constexpr ChampFixe champsSalarie[] = {
    {u"Num_Salarie", 1, 12}, {u"nom", 13, 15},        {u"prenom", 28, 15},  {u"sf", 43, 1},
    {u"date_naiss", 44, 10}, {u"lieu_naiss", 54, 40}, {u"adresse", 94, 40}, {u"profes", 134, 20},
    {u"ville", 154, 50},     {u"c_postal", 204, 5},   {u"presume", 209, 1}, {u"etranger", 210, 1},
};

/// @return whether the employer is a new one
bool importerEmployeur(Base &base, QStringView ligne, Dialogue &dialogue)
{
    Champs champs;
    for (const ChampFixe &champ : champsEmployeur)
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

/// The file has no cpt_z; the lines of declarations refer to the employee by it.
QStringList colonnesSalarie()
{
    QStringList colonnes;
    for (const ChampFixe &champ : champsSalarie)
        colonnes += champ.colonne.toString();
    return colonnes << u"cpt_z"_s;
}

Valeurs valeursSalarie(QStringView ligne)
{
    Valeurs valeurs;
    for (const ChampFixe &champ : champsSalarie) {
        const QStringView texte = couper(ligne, champ);
        valeurs += champ.colonne == u"date_naiss" ? Valeur(convertir(texte, champ, lireDate)) : Valeur(texte);
    }
    return valeurs << 1;
}

ImportSalaries importer(LecteurLignes &lecteur, Base &base, Dialogue &dialogue, const SuiviImport &suivi)
{
    ImportSalaries resultat;
    resultat.employeurAjoute =
        importerEmployeur(base, lireColonnes(lecteur, derniereColonne(champsEmployeur)), dialogue);
    resultat.fait = suivi.avancer(0);
    Insertion salaries(base.Cnx, u"salarie"_s, colonnesSalarie());
    while (resultat.fait && !lecteur.finie()) {
        const QString ligne = lireColonnes(lecteur, derniereColonne(champsSalarie));
        if (base.Cnx.existe(u"SELECT 1 FROM salarie WHERE Num_Salarie = ?"_s,
                            {couper(ligne, champsSalarie[0])})) {
            ++resultat.ignores;
        } else {
            salaries.ajouter(valeursSalarie(ligne));
            ++resultat.ajoutes;
        }
        resultat.fait = suivi.avancer(resultat.ajoutes + resultat.ignores);
    }
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
        if (QLatin1String(lecteur.lire()) != fonds::MarqueSalaries) {
            dialogue.avertir(u"Fichier incorrect! Importation échouée!!"_s);
            return {};
        }
        Transaction transaction(base.Cnx);
        resultat = importer(lecteur, base, dialogue, suivi);
        if (!resultat.fait)
            return {};
        transaction.commit();
    } catch (const Erreur &) {
        return {}; // without a word: that is required
    }
    suivi.compter(resultat);
    dialogue.informer(u"Lecture Du Fichier Effectuée Avec Succès !  Résultat Affiché !"_s);
    base.RsSalarie.requery();
    return resultat;
}
