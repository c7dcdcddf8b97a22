#include "demo/routeci.h"

#include "demo/commis.h"
#include "demo/personnel.h"
#include "rules/date.h"
#include "rules/nombre.h"
#include "storage/lieux.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// The fund pays to postal accounts alone.
const QString Compte = u"00700123012345678938"_s;

/// A line of the claim.
struct Arrete
{
    const Personne &personne;
    QString embauche;
    QString heures;
    QString salaire;
};

QList<Arrete> arretes()
{
    // The newcomer, who has no number, stands last.
    return {{Personnel[0], u"01092012"_s, u"40"_s, u"512.50"_s},
            {Personnel[2], u"01072023"_s, u"37.5"_s, u"298.75"_s},
            {Personnel[std::size(Personnel) - 1], u"10062024"_s, u"24"_s, u"240"_s}};
}

/// What the lines will add up to.
Currency total()
{
    Currency somme;
    for (const Arrete &un : arretes())
        somme += LireMontant(formatProduit({un.heures, un.salaire, u"0.75"}, u"0.00"));
    return somme;
}

QString touchesDe(QDate jour) { return texteDate(jour).remove(u'/'); }

void saisirEntete(const Commis &commis, QWidget &ecran, const QString &employeur)
{
    const QDate reprise = aujourdhui().addDays(-3);
    remplir(ecran, u"cmbemp"_s, employeur);
    touche(Qt::Key_Return);
    touche(Qt::Key_Return); // the telephone is that of the employer
    for (const QString &saisie : {QString(employeur + u"0000000001"), touchesDe(reprise.addDays(-7)),
                                  touchesDe(reprise), QString::number(arretes().size()), total().texte()}) {
        taper(saisie);
        touche(Qt::Key_Return);
    }
    for (const QString &charge : {u"SS26"_s, u"SS1221"_s, u"SS0375"_s}) {
        attendreFocus(charge);
        touche(Qt::Key_F4);
        touche(Qt::Key_Return);
    }
    remplir(ecran, u"CmbHS"_s, u"40"_s);
    remplir(ecran, u"CmbBnq"_s, Compte.first(3));
    touche(Qt::Key_Return);
    for (const QString &saisie : {Compte.sliced(3, 5), Compte}) {
        taper(saisie);
        touche(Qt::Key_Return);
    }
    taper(u"Poste du port"_s);
    commis.montrer(ecran);
    touche(Qt::Key_Return);
}

void saisirLigne(const Commis &commis, QWidget &saisie, const Arrete &arrete)
{
    const QDate reprise = aujourdhui().addDays(-3);
    const QString numero = texte(arrete.personne.numero);
    if (numero.isEmpty()) {
        dansLaFenetre(u"frm_ins_num_sal"_s, [&](QWidget &liste) {
            QTest::keyClick(champ(liste, u"DataGrid1"_s), Qt::Key_End, Qt::ControlModifier);
            cliquer(liste, u"cmdok"_s);
        });
        cliquer(saisie, u"cmdins"_s);
        activer(saisie);
    } else {
        for (const QString &partie : {numero.left(10), numero.mid(10)}) {
            taper(partie);
            touche(Qt::Key_Return);
        }
    }
    remplir(saisie, u"MskDateEmbauche"_s, arrete.embauche);
    for (const QString &touches :
         {touchesDe(reprise.addDays(-7)), touchesDe(reprise), arrete.heures, arrete.salaire}) {
        touche(Qt::Key_Return);
        taper(touches);
    }
    if (numero.isEmpty())
        commis.montrer(saisie);
    touche(Qt::Key_Return);
    attendreFocus(u"num_saledit"_s);
}

} // namespace

void declarerArret(const Commis &commis, const QString &employeur, Parcours &parcours)
{
    QWidget &entetes = commis.ouvrir({u"wDecl"_s, u"wci"_s, u"wTraitCi"_s}, u"FrmEntCi"_s);
    saisirEntete(commis, entetes, employeur);
    cliquer(entetes, u"cmddetail"_s);
    auto *lignes = champ(entetes, u"frmlnCi"_s);
    activer(*lignes);
    dansLaFenetre(u"frm_add_LnCi"_s, [&](QWidget &saisie) {
        for (const Arrete &arrete : arretes())
            saisirLigne(commis, saisie, arrete);
    });
    cliquer(*lignes, u"cmdajt"_s);
    commis.montrer(*lignes);
    cliquer(*lignes, u"cmdclose"_s);

    activer(*entetes.window());
    cliquer(entetes, u"chkChemin"_s);
    cliquer(entetes, u"cmdexpor"_s);
    cliquer(entetes, u"Command1"_s);

    parcours.fichierCi = dossierExpor() + u'/' + employeur + u"0000000001_CI .txt"_s;
    QWidget &validation = commis.ouvrir({u"woutil"_s, u"wValidListNom"_s}, u"FrmFileCI"_s);
    cliquer(validation, u"CmdExtFichier"_s);
    commis.montrer(validation);
    cliquer(validation, u"cmdexit"_s);
}
