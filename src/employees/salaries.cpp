#include "employees/salaries.h"

#include "rules/dialogue.h"
#include "rules/texte.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

bool chercherSalaries(Recordset &salaries, CritereSalarie critere, QStringView texte)
{
    const QStringView debut = Trim(texte);
    if (salaries.vide() || debut.isEmpty() || critere == CritereSalarie::Aucun)
        return false;
    salaries.ouvrir(commencePar(critere == CritereSalarie::Nom ? u"nom"_s : u"Num_Salarie"_s, debut));
    return true;
}

void montrerTousSalaries(Recordset &salaries)
{
    const Enregistrement courant = salaries.courant();
    salaries.ouvrir();
    if (!courant.estVide()) {
        salaries.allerA(salaries.chercher(
            {{u"Num_Salarie"_s, courant.texte(u"Num_Salarie")}, {u"cpt_z"_s, courant.entier(u"cpt_z")}}));
    }
}

int trouverSalarie(Connexion &cnx, const Recordset &salaries, QStringView texte)
{
    const auto trouver = [&](const Condition &condition, const QString &ordre) {
        const Enregistrement premier =
            cnx.premiere(u"SELECT Num_Salarie, cpt_z FROM salarie WHERE %1 ORDER BY %2 LIMIT 1"_s.arg(
                             condition.sql, ordre),
                         condition.valeurs);
        if (premier.estVide())
            return -1;
        return salaries.chercher({{u"Num_Salarie"_s, Valeur::brute(premier.valeur(0))},
                                  {u"cpt_z"_s, Valeur::brute(premier.valeur(1))}});
    };
    if (chiffresSeuls(texte))
        return trouver(commencePar(u"Num_Salarie"_s, texte), u"Num_Salarie, cpt_z"_s);
    const QString parNom = u"nom, prenom, date_naiss, rowid"_s;
    int ligne = trouver(commencePar(u"nom"_s, texte), parNom);
    // Names have blanks too: each one may be that in front of the first name.
    for (qsizetype blanc = texte.indexOf(u' '); ligne < 0 && blanc >= 0;
         blanc = texte.indexOf(u' ', blanc + 1)) {
        const Condition nom{u"nom = ?"_s, {texte.first(blanc)}};
        const QStringView prenom = texte.sliced(blanc + 1);
        ligne = trouver(prenom.isEmpty() ? nom : nom && commencePar(u"prenom"_s, prenom), parNom);
    }
    return ligne;
}

QString nationaliteSalarie(Connexion &cnx, QStringView numero)
{
    const Enregistrement premiere = cnx.premiere(
        u"SELECT Libelle FROM Nationalite WHERE ID = (SELECT IdNat FROM salarie WHERE Num_Salarie = ? "
        "AND IdNat IN (SELECT ID FROM Nationalite) ORDER BY rowid LIMIT 1) ORDER BY rowid LIMIT 1"_s,
        {Trim(numero)});
    return premiere.estVide() ? QString() : Trim(premiere.texte(0)).toString();
}

void supprimerSalarie(Base &base, Dialogue &dialogue)
{
    const Enregistrement courant = base.RsSalarie.courant();
    if (courant.estVide())
        return;
    if (!dialogue.demander(u"Confirmer la Suppression?"_s, u"Confirmation"_s))
        return;
    if (base.Cnx.existe(u"SELECT 1 FROM ligne_das WHERE num_salarie = ? AND cpt_z = ?"_s,
                        {courant.texte(u"Num_Salarie"), courant.entier(u"cpt_z")})) {
        dialogue.avertir(u"Il Existe Une ou Plusieurs Lignes DAS pour ce Salarié, Supprimez Les d'abord"_s);
        return;
    }
    base.RsSalarie.supprimer(courant);
}
