#include "storage/schema.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

Colonne texte(const QString &nom, int largeur) { return {nom, Genre::Texte, largeur, false}; }

Colonne code(const QString &nom, int largeur) { return {nom, Genre::Texte, largeur, true}; }

Colonne entier(const QString &nom) { return {nom, Genre::Entier, SansLimite, false}; }

/// The number of a declaration: an older file may have none, which is kept as it stands.
Colonne numero(const QString &nom) { return {nom, Genre::Entier, SansLimite, false, true}; }

Colonne montant(const QString &nom) { return {nom, Genre::Montant, SansLimite, false}; }

Colonne jour(const QString &nom) { return {nom, Genre::Jour, SansLimite, false}; }

/// What the values of the column must satisfy; empty when all are good.
QString condition(const Colonne &colonne)
{
    const QString nom = u"[%1]"_s.arg(colonne.nom);
    switch (colonne.genre) {
    case Genre::Texte:
        if (colonne.largeur == SansLimite)
            return {};
        return colonne.jamaisVide ? u"length(%1) BETWEEN 1 AND %2"_s.arg(nom).arg(colonne.largeur)
                                  : u"length(%1) <= %2"_s.arg(nom).arg(colonne.largeur);
    case Genre::Entier:
        return (colonne.videAdmis ? u"%1 = '' OR "_s.arg(nom) : QString()) +
               u"%1 IS NULL OR typeof(%1) = 'integer' AND %1 BETWEEN -2147483648 AND 2147483647"_s.arg(nom);
    case Genre::Montant: // a count of ten-thousandths
        return u"%1 IS NULL OR typeof(%1) = 'integer'"_s.arg(nom);
    case Genre::Jour: // the modifier makes date() turn 31 February into March; a real day comes back as it is
        return u"%1 IS date(%1, '+0 days')"_s.arg(nom);
    }
    return {};
}

QString definition(const Table &table, const Colonne &colonne)
{
    const QString type = colonne.type();
    QStringList mots{u"[%1]"_s.arg(colonne.nom), type};
    if (colonne.genre == Genre::Texte)
        mots += u"COLLATE NOCASE"_s;
    if (table.cle.contains(colonne.nom))
        mots += u"NOT NULL"_s;
    // An ascending key of one whole number would be the rowid itself: its order would not be that of entry,
    // and Null would get a number of its own instead of being refused.
    if (colonne.genre == Genre::Entier && table.cle == QStringList{colonne.nom})
        mots += u"PRIMARY KEY DESC"_s;
    if (const QString regle = condition(colonne); !regle.isEmpty())
        mots += u"CONSTRAINT [%1.%2 %3] CHECK (%4)"_s.arg(table.nom, colonne.nom, type, regle);
    return mots.join(u' ');
}

QString entreCrochets(const QStringList &noms) { return u"[%1]"_s.arg(noms.join(u"], [")); }

QList<Table> faireTables()
{
    return {
        {u"employeur"_s,
         {texte(u"num_emp"_s, 8), texte(u"rais_soc"_s, 40), texte(u"adresse"_s, 50), texte(u"tel"_s, 10),
          texte(u"Mail"_s, 40)},
         {u"num_emp"_s},
         {}},
        // The first 17 columns are the oldest layout; 18, 22 and 28 columns are the later ones.
        {u"salarie"_s,
         {texte(u"Num_Salarie"_s, 12),
          entier(u"cpt_z"_s),
          texte(u"nom"_s, 30),
          texte(u"prenom"_s, 30),
          texte(u"sf"_s, 1),
          jour(u"date_naiss"_s),
          texte(u"adresse"_s, 50),
          texte(u"ville"_s, 50),
          texte(u"c_postal"_s, 5),
          texte(u"num_cpt_ccp"_s, 20),
          texte(u"num_cpt_banc"_s, 20),
          texte(u"profes"_s, 25),
          texte(u"banque"_s, 3),
          texte(u"agence_banque"_s, 5),
          texte(u"etranger"_s, 1),
          texte(u"lieu_naiss"_s, 40),
          texte(u"presume"_s, 1),
          texte(u"SEXE"_s, 1),
          texte(u"Telephone"_s, 10),
          texte(u"Email"_s, 40),
          texte(u"CinNumber"_s, 15),
          texte(u"IdNat"_s, 3),
          texte(u"NumActeNaiss"_s, 5),
          texte(u"NIN"_s, 18),
          texte(u"CommuneNaiss"_s, 4),
          texte(u"PrenomPere"_s, 40),
          texte(u"NomMere"_s, 40),
          texte(u"PrenomMere"_s, 40)},
         {u"Num_Salarie"_s, u"cpt_z"_s},
         // Search by name and the order of the nominative lines; then the searches for a person who holds a
         // NIN or an account already.
         {{u"salarie_nom"_s, {u"nom"_s, u"prenom"_s, u"date_naiss"_s}},
          {u"salarie_nin"_s, {u"NIN"_s}},
          {u"salarie_ccp"_s, {u"num_cpt_ccp"_s}},
          {u"salarie_banc"_s, {u"num_cpt_banc"_s}}}},
        {u"annee"_s, {entier(u"annee"_s), texte(u"compagne"_s, SansLimite)}, {u"annee"_s}, {}},
        {u"entete_das"_s,
         {texte(u"num_emp"_s, 8), entier(u"annee"_s), numero(u"Type"_s), montant(u"sum_annuel"_s),
          entier(u"total_salarie"_s), montant(u"sum_calc"_s), entier(u"total_calc"_s)},
         {u"num_emp"_s, u"annee"_s, u"Type"_s},
         {}},
        // The lines of a header; the wage makes their sum readable from the index alone. Those of an employee
        // are found by the key.
        {u"ligne_das"_s,
         {texte(u"num_salarie"_s, 12), entier(u"cpt_z"_s), entier(u"annee"_s), texte(u"num_emp"_s, 8),
          numero(u"type_das"_s), montant(u"sal_annuel"_s), entier(u"nbj_travail"_s), texte(u"type_dure"_s, 1),
          texte(u"date_es"_s, 10), texte(u"type_date_es"_s, 1)},
         {u"num_salarie"_s, u"cpt_z"_s, u"annee"_s, u"num_emp"_s, u"type_das"_s},
         {{u"ligne_das_entete"_s, {u"num_emp"_s, u"annee"_s, u"type_das"_s, u"sal_annuel"_s}}}},
        {u"Periode"_s, {texte(u"Code"_s, 6), texte(u"Etat"_s, 1)}, {u"Code"_s}, {}},
        {u"Banque"_s,
         {code(u"Code"_s, 3), texte(u"Abreviat"_s, 10), texte(u"Libelle"_s, 50)},
         {u"Code"_s},
         {}},
        {u"Commune"_s, {code(u"Code"_s, 4), texte(u"Libelle"_s, 50)}, {u"Code"_s}, {}},
        {u"Wilaya"_s, {code(u"Code"_s, 2), texte(u"Libelle"_s, 40)}, {u"Code"_s}, {}},
        {u"Nationalite"_s, {texte(u"ID"_s, 3), texte(u"Libelle"_s, 40)}, {}, {}},
        // Effectif_Calc holds a count and is a Currency all the same: the layout of the databases in use.
        {u"Entete_Dac"_s,
         {texte(u"NumEmployeur"_s, 10), texte(u"Periode"_s, 6), montant(u"Assiette"_s),
          entier(u"Effectif_total"_s), entier(u"Effectif_Reel"_s), entier(u"Type_Dac"_s),
          montant(u"Assiette_Calc"_s), montant(u"Effectif_Calc"_s)},
         {u"NumEmployeur"_s, u"Periode"_s, u"Type_Dac"_s},
         {}},
        {u"Ligne_Dac"_s,
         {texte(u"NumSalarie"_s, 12), entier(u"cpt_z"_s), texte(u"Periode"_s, 6), entier(u"Type_dac"_s),
          texte(u"NumEmployeur"_s, 12), montant(u"Assiette"_s), entier(u"NBJT"_s), texte(u"Type_Nbjt"_s, 1),
          jour(u"Date_ES"_s), texte(u"Type_ES"_s, 1)},
         {u"NumSalarie"_s, u"cpt_z"_s, u"Periode"_s, u"Type_dac"_s, u"NumEmployeur"_s},
         {{u"ligne_dac_entete"_s, {u"NumEmployeur"_s, u"Periode"_s, u"Type_dac"_s, u"Assiette"_s}}}},
        {u"Entete_CI"_s,
         {texte(u"N_Identifiant"_s, 18), texte(u"N_employeur"_s, 8), jour(u"date_arret"_s),
          jour(u"Date_reprise"_s), entier(u"Effect_Mis_arret"_s), montant(u"Montant_Indemnise"_s),
          montant(u"sum_calc"_s), montant(u"ChargePat"_s), montant(u"ChargeCp"_s), montant(u"ChargeCi"_s),
          entier(u"total_calc"_s), entier(u"HTS"_s), texte(u"NCompteBnq"_s, 20), texte(u"LibAgBnq"_s, 30),
          texte(u"Telephone"_s, 10)},
         {u"N_Identifiant"_s},
         {{u"entete_ci_employeur"_s, {u"N_employeur"_s, u"date_arret"_s}}}},
        // The lines of a header are found by the key.
        {u"Detail_CI"_s,
         {texte(u"N_Identif"_s, 18), texte(u"N_SecSoc"_s, 12), entier(u"Cpt_z"_s), jour(u"Date_embauche"_s),
          jour(u"date_arret"_s), jour(u"Date_reprise"_s), entier(u"Nb_Heure"_s),
          montant(u"Salaire_Horaire"_s), montant(u"Mt_Indemnise"_s)},
         {u"N_Identif"_s, u"N_SecSoc"_s, u"Cpt_z"_s},
         {{u"detail_ci_salarie"_s, {u"N_SecSoc"_s, u"Cpt_z"_s}}}},
    };
}

} // namespace

QString Colonne::type() const
{
    switch (genre) {
    case Genre::Texte:
        return largeur == SansLimite ? u"text"_s : u"char(%1)"_s.arg(largeur);
    case Genre::Entier:
        return u"Integer"_s;
    case Genre::Montant:
        return u"Currency"_s;
    case Genre::Jour:
        return u"Date"_s;
    }
    return {};
}

QString Table::creation() const
{
    QStringList lignes;
    for (const Colonne &colonne : colonnes)
        lignes += definition(*this, colonne);
    const bool cleDansColonne = lignes.join(u' ').contains(u"PRIMARY KEY");
    if (!cle.isEmpty() && !cleDansColonne)
        lignes += u"PRIMARY KEY (%1)"_s.arg(entreCrochets(cle));
    return u"CREATE TABLE [%1] (\n  %2\n)"_s.arg(nom, lignes.join(u",\n  "));
}

QStringList Table::creationIndex() const
{
    QStringList ordres;
    for (const Index &un : index)
        ordres +=
            u"CREATE INDEX IF NOT EXISTS [%1] ON [%2] (%3)"_s.arg(un.nom, nom, entreCrochets(un.colonnes));
    return ordres;
}

QString Table::ajoutColonne(qsizetype rang) const
{
    return u"ALTER TABLE [%1] ADD COLUMN %2"_s.arg(nom, definition(*this, colonnes[rang]));
}

const QList<Table> &tablesDuSchema()
{
    static const QList<Table> tables = faireTables();
    return tables;
}

const Table &tableDuSchema(QStringView nom)
{
    const QList<Table> &tables = tablesDuSchema();
    const auto trouvee = std::find_if(tables.begin(), tables.end(), [nom](const Table &table) {
        return nom.compare(table.nom, Qt::CaseInsensitive) == 0;
    });
    Q_ASSERT(trouvee != tables.end());
    return *trouvee;
}
