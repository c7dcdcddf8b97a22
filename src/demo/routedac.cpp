#include "demo/routedac.h"

#include "demo/commis.h"
#include "demo/personnel.h"
#include "rules/nombre.h"
#include "storage/lieux.h"

using namespace Qt::StringLiterals;

namespace {

/// The campaign's last one: who has left before it, or has no number yet, is not in it.
const QString Trimestre = u"T2"_s;

void ouvrirPeriodes(const Commis &commis, const QString &campagne)
{
    commis.ouvrirMenu({u"woutil"_s, u"wActiverDac"_s});
    QWidget &periodes = commis.ouvrir({u"wFich"_s, u"wPeriode"_s}, u"frmPeriode"_s);
    remplir(periodes, u"cmbannee"_s, campagne);
    remplir(periodes, u"CmbMois"_s, Trimestre);
    cliquer(periodes, u"cmb_add"_s);
    commis.montrer(periodes);
    cliquer(periodes, u"Command1"_s);
}

QList<const Personne *> presents()
{
    QList<const Personne *> tous;
    for (const Personne &personne : Personnel) {
        if (!texte(personne.jours).isEmpty())
            tous += &personne;
    }
    return tous;
}

/// Movement and unit are keyed once, and stay.
void saisirLigne(const Commis &commis, QWidget &saisie, const Personne &personne, bool premiere)
{
    attendreFocus(u"DataGrid1"_s);
    taper(texte(personne.numero));
    touche(Qt::Key_Return);
    if (premiere) {
        taper(u"e"_s);
        touche(Qt::Key_Return);
    }
    attendreFocus(u"MskDateES"_s);
    taper(texte(personne.mouvement));
    touche(Qt::Key_Return);
    taper(texte(personne.assiette));
    touche(Qt::Key_Return);
    if (premiere) {
        taper(u"j"_s);
        touche(Qt::Key_Return);
        cliquer(saisie, u"ChkDE"_s);
        cliquer(saisie, u"ChKNbh"_s);
        champ(saisie, u"TxtNbJT"_s)->setFocus(Qt::TabFocusReason);
        commis.montrer(saisie);
    }
    attendreFocus(u"TxtNbJT"_s);
    taper(texte(personne.jours));
    touche(Qt::Key_Return);
}

void saisirLignes(const Commis &commis, QWidget &entetes)
{
    cliquer(entetes, u"cmddetail"_s);
    QWidget &lignes = *champ(entetes, u"frmlndac"_s);
    activer(lignes);
    dansLaFenetre(u"frm_add_Lndac"_s, [&](QWidget &saisie) {
        const QList<const Personne *> tous = presents();
        for (const Personne *personne : tous)
            saisirLigne(commis, saisie, *personne, personne == tous.first());
        commis.montrer(saisie);
    });
    cliquer(lignes, u"cmdajt"_s);
    commis.montrer(lignes);
    cliquer(lignes, u"cmdclose"_s);
}

} // namespace

QString declarerTrimestre(const Commis &commis, const QString &employeur, const QString &campagne)
{
    ouvrirPeriodes(commis, campagne);
    Currency total;
    for (const Personne *personne : presents())
        total += Currency::deTexte(texte(personne->assiette));

    QWidget &entetes = commis.ouvrir({u"wDecl"_s, u"wdecmentrim"_s, u"wTraitDecNom"_s}, u"frmDecNom"_s);
    remplir(entetes, u"CmbPeriode"_s, campagne + Trimestre);
    remplir(entetes, u"cmbemp"_s, employeur);
    remplir(entetes, u"sumedit"_s, total.texte());
    touche(Qt::Key_Return);
    taper(QString::number(presents().size()));
    touche(Qt::Key_Return);
    saisirLignes(commis, entetes);

    activer(*entetes.window());
    cliquer(entetes, u"chkChemin"_s);
    commis.montrer(entetes);
    cliquer(entetes, u"cmdexpor"_s);
    cliquer(entetes, u"Command1"_s);
    return dossierExpor() + u'/' + employeur + u"_DAC_NOMINATIVE_"_s + campagne + Trimestre + u".txt"_s;
}

void validerTrimestre(const Commis &commis)
{
    QWidget &ecran = commis.ouvrir({u"woutil"_s, u"wValideDac"_s}, u"FrmDacValide"_s);
    cliquer(ecran, u"CmdExtFichier"_s);
    commis.montrer(ecran);
    cliquer(ecran, u"cmdexit"_s);
}
