#include "employees/fichesalarie.h"

#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/saisie.h"
#include "rules/texte.h"
#include "storage/connexion.h"

using namespace Qt::StringLiterals;

namespace {

QString article(const Enregistrement &ligne) { return ligne.texte(0) + u"   " + Trim(ligne.texte(1)); }

/// The first item that begins with the code; empty when there is none.
QString articleDe(QStringView code, const QStringList &liste)
{
    for (const QString &un : liste) {
        if (un.startsWith(code))
            return un;
    }
    return {};
}

AncienNumero ancienNumero(const Enregistrement &ligne)
{
    AncienNumero ancien;
    ancien.ligne = ligne;
    ancien.Num_Salarie = ligne.texte(u"Num_Salarie");
    ancien.cpt_z = ligne.entier(u"cpt_z");
    const QStringView numero = Trim(ancien.Num_Salarie);
    const qsizetype longueur = std::max<qsizetype>(numero.size() - 2, 0);
    ancien.chiffres = numero.first(longueur).toString();
    ancien.cle = numero.sliced(longueur).toString();
    CadrerBlancs(ancien.chiffres);
    return ancien;
}

/// A number of fixed length, with the zeros that it lost; the given text when the column holds none.
void remplirZeros(QString &champ, const QString &valeur)
{
    if (!Trim(valeur).isEmpty())
        champ = ComplZeros(valeur, champ.size());
}

void remplirMasque(QString &champ, const QString &valeur)
{
    if (!valeur.isEmpty())
        champ = valeur;
}

} // namespace

FicheSalarie ficheApresCreation()
{
    FicheSalarie fiche;
    fiche.MskNumActeNaiss = QString(5, u'0');
    fiche.MskNin = QString(18, u'0');
    return fiche;
}

void cocherEtranger(FicheSalarie &fiche, bool coche)
{
    fiche.etrangerCheck = coche;
    fiche.CmbNationalite = coche ? -1 : RangNational;
    if (!coche)
        return;
    fiche.MskNumActeNaiss = QString(5, u'0');
    fiche.MskNin = QString(18, u'0');
    fiche.CmbWilaya.clear();
    fiche.CmbCommune.clear();
}

void cocherBlanc(FicheSalarie &fiche, bool coche)
{
    fiche.blancCheck = coche;
    const QChar c = coche ? u'0' : u' ';
    fiche.num_salmask = QString(10, c);
    fiche.clemask = QString(2, c);
}

FicheRemplie remplirFiche(const Enregistrement &ligne, Connexion &cnx)
{
    const AncienNumero ancien = ancienNumero(ligne);
    FicheSalarie fiche;
    fiche.num_salmask = ancien.chiffres;
    fiche.clemask = ancien.cle;
    fiche.nomedit = Trim(ligne.texte(u"nom")).toString();
    fiche.prenomedit = Trim(ligne.texte(u"prenom")).toString();
    fiche.sfedit = ligne.texte(u"sf");
    fiche.PrenomPere = Trim(ligne.texte(u"PrenomPere")).toString();
    fiche.NomMere = Trim(ligne.texte(u"NomMere")).toString();
    fiche.PrenomMere = Trim(ligne.texte(u"PrenomMere")).toString();
    remplirMasque(fiche.MskNin, ligne.texte(u"NIN"));
    remplirMasque(fiche.MskNumActeNaiss, ligne.texte(u"NumActeNaiss"));
    if (!ligne.estNul(u"date_naiss"))
        fiche.mskdate = texteDate(ligne.date(u"date_naiss"));
    remplirZeros(fiche.MskNTel, ligne.texte(u"Telephone"));
    fiche.TxtPIN = ligne.texte(u"CinNumber");
    fiche.TxtEmail = ligne.texte(u"Email");
    fiche.adredit = ligne.texte(u"adresse");
    fiche.num_cpt_ccpedit = ligne.texte(u"num_cpt_ccp");
    fiche.villeEdit = ligne.texte(u"ville");
    fiche.c_postalEdit = ligne.texte(u"c_postal");
    fiche.profesedit = ligne.texte(u"profes");
    remplirZeros(fiche.num_cpt_bancedit, ligne.texte(u"num_cpt_banc"));
    fiche.presumeCheck = ligne.texte(u"presume") == u"O";
    if (!ligne.estNul(u"sexe"))
        fiche.CmbSexe = ligne.texte(u"sexe") == u"M" ? 0 : 1;

    if (ligne.texte(u"etranger") == u"O") {
        cocherEtranger(fiche, true);
        bool lisible = false;
        const int rang = ligne.texte(u"IdNat").toInt(&lisible) - 1;
        if (lisible && rang >= 0 && rang < listeNationalites(cnx).size())
            fiche.CmbNationalite = rang;
    } else if (const QString commune = ligne.texte(u"CommuneNaiss"); !commune.isEmpty()) {
        fiche.CmbWilaya = articleDe(commune.left(2), listeWilayas(cnx));
        if (!fiche.CmbWilaya.isEmpty())
            fiche.CmbCommune = articleDe(commune, listeCommunes(cnx, fiche.CmbWilaya));
    }
    return {fiche, ancien};
}

QStringList listeWilayas(Connexion &cnx)
{
    QStringList liste;
    Requete lignes = cnx.lire(u"SELECT Code, Libelle FROM Wilaya ORDER BY rowid"_s);
    while (lignes.suivante())
        liste += article(lignes);
    return liste;
}

QStringList listeCommunes(Connexion &cnx, QStringView wilaya)
{
    QStringList liste;
    Requete lignes =
        cnx.lire(u"SELECT Code, Libelle FROM Commune WHERE substr(Code, 1, 2) = ? ORDER BY Code"_s,
                 {Trim(wilaya).left(2)});
    while (lignes.suivante())
        liste += article(lignes);
    return liste;
}

QStringList listeNationalites(Connexion &cnx)
{
    QStringList liste;
    Requete lignes = cnx.lire(u"SELECT Libelle FROM Nationalite ORDER BY ID, rowid"_s);
    while (lignes.suivante())
        liste += lignes.texte(0);
    return liste;
}

bool nationalitesImportees(Connexion &cnx, Dialogue &dialogue)
{
    if (cnx.existe(u"SELECT 1 FROM Nationalite LIMIT 1"_s))
        return true;
    dialogue.avertir(u"Veuillez importer la table nationalité en premier"_s);
    return false;
}
