#include "demo/route.h"

#include "demo/commis.h"
#include "demo/personnel.h"
#include "demo/routeci.h"
#include "demo/routedac.h"
#include "rules/identite.h"
#include "rules/nombre.h"
#include "shell/programme.h"
#include "storage/lieux.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QString Employeur = u"20045017"_s;
const QString Campagne = u"2024"_s;
/// What is keyed for each of the first three quarters of the campaign; the last one gets the rest.
constexpr qint64 SalairesDUnTrimestre = 2'000'000;

QString deuxDecimales(Currency montant) { return formatMasque(montant, u"########0.00"); }

/// The hand that answers the boxes: OK or Oui to each, and to each file dialog the file exported last, or the
/// next printed form where one is to be saved.
class Repondeur : public QObject
{
public:
    explicit Repondeur(Parcours &parcours) : m_parcours(parcours) { qApp->installEventFilter(this); }

    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        if (evenement->type() == QEvent::Show) {
            if (auto *boite = qobject_cast<QMessageBox *>(objet))
                QTimer::singleShot(0, boite, [this, boite] { repondre(*boite); });
            else if (auto *choix = qobject_cast<QFileDialog *>(objet))
                QTimer::singleShot(0, choix, [this, choix] { choisir(*choix); });
        }
        return QObject::eventFilter(objet, evenement);
    }

private:
    void repondre(QMessageBox &boite)
    {
        if (boite.icon() == QMessageBox::Warning || boite.icon() == QMessageBox::Critical)
            qFatal("refused: %s", qPrintable(boite.text()));
        m_parcours.boites += boite.text();
        QAbstractButton *oui = boite.button(QMessageBox::Yes);
        repondre(boite, *(oui ? oui : boite.button(QMessageBox::Ok)));
    }

    void choisir(QFileDialog &choix)
    {
        QString exporte = m_parcours.fichier;
        for (const QString &plusTard : {m_parcours.fichierDac, m_parcours.fichierCi}) {
            if (!plusTard.isEmpty())
                exporte = plusTard;
        }
        const bool sauve = choix.acceptMode() == QFileDialog::AcceptSave;
        champ<QLineEdit>(choix, u"fileNameEdit"_s)
            ->setText(sauve ? m_parcours.formulaires.constLast() : exporte);
        const auto *boutons = champ<QDialogButtonBox>(choix, u"buttonBox"_s);
        repondre(choix, *boutons->button(sauve ? QDialogButtonBox::Save : QDialogButtonBox::Open));
    }

    /// The window behind gets the keys again; a window system does that of itself.
    static void repondre(const QDialog &boite, QAbstractButton &bouton)
    {
        QTest::mouseClick(&bouton, Qt::LeftButton);
        if (QWidget *derriere = boite.parentWidget())
            derriere->activateWindow();
    }

    Parcours &m_parcours;
};

/// The clerk, from the main window on.
class Route : Commis
{
public:
    Route(QMainWindow &principale, Parcours &parcours, const MontrerEcran &montrer)
        : Commis(principale, montrer), m_parcours(parcours)
    {
    }

    void parcourir()
    {
        QApplication::setKeyboardInputInterval(60'000); // on a slow machine a search is one all the same
        m_principale.resize(1280, 800);
        activer(m_principale);
        campagne();
        employeur();
        nationalites();
        salaries();
        declaration();
        validation();
        m_parcours.fichierDac = declarerTrimestre(*this, Employeur, Campagne);
        validerTrimestre(*this);
        declarerArret(*this, Employeur, m_parcours);
        ouvrirMenu({u"wFich"_s, u"wquit"_s});
    }

private:
    void campagne()
    {
        QWidget &ecran = ouvrir({u"wFich"_s, u"wannee"_s}, u"frmannee"_s);
        remplir(ecran, u"cmbannee"_s, Campagne);
        touche(Qt::Key_Return);
        montrer(ecran);
        cliquer(ecran, u"Command1"_s);
    }

    void employeur()
    {
        QWidget &table = ouvrir({u"wFich"_s, u"wImp"_s}, u"Frm_imp"_s);
        dansLaFenetre(u"add_emp"_s, [&](QWidget &saisie) {
            remplir(saisie, u"num_empmask"_s, Employeur);
            remplir(saisie, u"clemask"_s, CleSS(Employeur));
            remplir(saisie, u"Rais_SocEdit"_s, u"SARL BÂTIR & FILS"_s);
            remplir(saisie, u"AdresseEdit"_s, u"14, rue de l'Indépendance, Alger"_s);
            remplir(saisie, u"telEdit"_s, u"0021445566"_s);
            remplir(saisie, u"mailEdit"_s, u"paie@batir.dz"_s);
            montrer(saisie);
            cliquer(saisie, u"Command1"_s);
        });
        cliquer(table, u"ajouterBtn"_s);
        montrer(table);
        cliquer(table, u"cmdclose"_s);
    }

    void nationalites()
    {
        QWidget &ecran = ouvrir({u"wFich"_s, u"wimport"_s, u"wImpTabNat"_s}, u"FrmImpNat"_s);
        cliquer(ecran, u"CmdImport"_s);
        montrer(ecran);
        cliquer(ecran, u"Command1"_s);
    }

    void salaries()
    {
        QWidget &table = ouvrir({u"wFich"_s, u"wsal"_s}, u"frmsalarie"_s);
        dansLaFenetre(u"frm_add_sal"_s, [&](QWidget &saisie) {
            for (const Personne &personne : Personnel) {
                salarie(saisie, personne);
                if (&personne == Personnel)
                    montrer(saisie);
                cliquer(saisie, u"cmdok"_s);
            }
        });
        cliquer(table, u"cmdajt"_s);
        montrer(table);
        cliquer(table, u"cmdclose"_s);
    }

    static void salarie(QWidget &saisie, const Personne &personne)
    {
        const QString numero = texte(personne.numero);
        if (numero.isEmpty()) {
            cliquer(saisie, u"blancCheck"_s);
        } else {
            remplir(saisie, u"num_salmask"_s, numero.left(10));
            remplir(saisie, u"clemask"_s, numero.mid(10));
        }
        const auto saisir = [&](std::initializer_list<std::pair<QString, const char16_t *>> champs) {
            for (const auto &[nom, valeur] : champs)
                remplir(saisie, nom, texte(valeur));
        };
        saisir({{u"nomedit"_s, personne.nom},
                {u"prenomedit"_s, personne.prenom},
                {u"CmbSexe"_s, personne.sexe},
                {u"mskdate"_s, personne.naissance},
                {u"sfedit"_s, personne.situation}});
        if (texte(personne.nationalite).isEmpty()) {
            saisir({{u"CmbWilaya"_s, personne.wilaya},
                    {u"CmbCommune"_s, personne.commune},
                    {u"MskNumActeNaiss"_s, personne.acte},
                    {u"MskNin"_s, personne.nin}});
        } else {
            cliquer(saisie, u"etrangerCheck"_s);
            saisir({{u"CmbNationalite"_s, personne.nationalite}});
        }
        saisir({{u"PrenomPere"_s, personne.prenomPere},
                {u"NomMere"_s, personne.nomMere},
                {u"PrenomMere"_s, personne.prenomMere},
                {u"profesedit"_s, personne.profession},
                {u"adredit"_s, personne.adresse},
                {u"villeEdit"_s, personne.ville},
                {u"c_postalEdit"_s, personne.codePostal},
                {u"MskNTel"_s, personne.telephone},
                {u"num_cpt_ccpedit"_s, personne.ccp}});
    }

    void declaration()
    {
        QWidget &entetes = ouvrir({u"wDecl"_s, u"das"_s, u"wdas"_s}, u"frmentdas"_s);
        for (const Personne &personne : Personnel)
            m_total += Currency::deTexte(texte(personne.salaire));
        remplir(entetes, u"cmbannee"_s, Campagne);
        remplir(entetes, u"cmbemp"_s, Employeur);
        remplir(entetes, u"sumedit"_s, deuxDecimales(m_total));
        touche(Qt::Key_Return);
        taper(QString::number(std::size(Personnel)));
        touche(Qt::Key_Return);

        cliquer(entetes, u"cmddetail"_s);
        auto *lignes = champ(entetes, u"frmlndas"_s);
        activer(*lignes);
        dansLaFenetre(u"frm_add_lndas"_s, [&](QWidget &saisie) {
            for (const Personne &personne : Personnel)
                ligne(saisie, personne);
        });
        cliquer(*lignes, u"cmdajt"_s);
        montrer(*lignes);
        cliquer(*lignes, u"cmdclose"_s);

        activer(m_principale);
        formulaire(entetes, u"Cmdprint"_s, u"DataReport1"_s);
        formulaire(entetes, u"CmdPrintLn"_s, u"DataReport3"_s);
        formulaire(entetes, u"CmdCD"_s, u"DataReport2"_s);
        cliquer(entetes, u"chkChemin"_s);
        montrer(entetes);
        montrer(m_principale);
        m_parcours.fichier = dossierExpor() + u'/' + Employeur + u"_DAS_"_s + Campagne + u".txt"_s;
        cliquer(entetes, u"cmdexpor"_s);
        cliquer(entetes, u"Command1"_s);
    }

    /// Saves a form from its preview.
    void formulaire(const QWidget &entetes, const QString &bouton, const QString &nom)
    {
        dansLaFenetre(nom, [&](QWidget &apercu) {
            montrer(apercu);
            m_parcours.formulaires += QDir::homePath() + u'/' + nom + u".pdf"_s;
            champ<QAction>(apercu, u"EnregistrerPdf"_s)->trigger();
        });
        cliquer(entetes, bouton);
        activer(m_principale);
    }

    void ligne(QWidget &saisie, const Personne &personne)
    {
        const QString numero = texte(personne.numero);
        if (numero.isEmpty()) {
            // Who has no number is picked from the list, where he stands last.
            dansLaFenetre(u"frm_ins_num_sal"_s, [&](QWidget &liste) {
                QTest::keyClick(champ(liste, u"DataGrid1"_s), Qt::Key_End, Qt::ControlModifier);
                montrer(liste);
                cliquer(liste, u"cmdok"_s);
            });
            cliquer(saisie, u"cmdins"_s);
            activer(saisie);
            champ(saisie, u"sal_annueledit"_s)->setFocus(Qt::TabFocusReason);
        } else {
            taper(numero.left(10));
            touche(Qt::Key_Return);
            taper(numero.mid(10));
            touche(Qt::Key_Return);
        }
        attendreFocus(u"sal_annueledit"_s);
        taper(texte(personne.salaire));
        touche(Qt::Key_Return);
        taper(texte(personne.duree));
        touche(Qt::Key_Return);
        attendreFocus(u"mskdate"_s);
        taper(texte(personne.mouvement));
        cliquer(saisie, texte(personne.sens) == u"E" ? u"EOption"_s : u"SOption"_s);
        if (numero.isEmpty())
            montrer(saisie);
        cliquer(saisie, u"cmdok"_s);
        attendreFocus(u"num_saledit"_s);
    }

    void validation()
    {
        QWidget &ecran = ouvrir({u"woutil"_s, u"wvalidate"_s}, u"FrmDasValide"_s);
        cliquer(ecran, u"CmdExtFichier"_s);
        montrer(ecran);
        choisirOnglet(ecran, 1);
        montrer(ecran);
        choisirOnglet(ecran, 2);
        Currency reste = m_total;
        for (const QString &trimestre : {u"TxtT3"_s, u"TxtT4"_s, u"TxtT1"_s}) {
            remplir(ecran, trimestre, QString::number(SalairesDUnTrimestre));
            reste -= Currency::deEntier(SalairesDUnTrimestre);
        }
        remplir(ecran, u"TxtT2"_s, deuxDecimales(reste));
        cliquer(ecran, u"CmdVerifier"_s);
        montrer(ecran);
        cliquer(ecran, u"cmdexit"_s);
    }

    static void choisirOnglet(const QWidget &ecran, int rang)
    {
        QTabBar *onglets = champ<QTabWidget>(ecran, u"SSTab1"_s)->tabBar();
        QTest::mouseClick(onglets, Qt::LeftButton, {}, onglets->tabRect(rang).center());
    }

    Parcours &m_parcours;
    Currency m_total;
};

QMainWindow &fenetrePrincipale()
{
    const auto fenetres = QApplication::topLevelWidgets();
    for (QWidget *fenetre : fenetres) {
        if (fenetre->objectName() == u"MDIForm")
            return *static_cast<QMainWindow *>(fenetre);
    }
    qFatal("no main window");
}

} // namespace

Parcours parcourirRoute(int argc, char **argv, const MontrerEcran &montrer)
{
    Parcours parcours;
    const int code = lancerProgramme(argc, argv, [&](Base &) {
        Repondeur repondeur(parcours);
        Route(fenetrePrincipale(), parcours, montrer).parcourir();
    });
    if (code != 0)
        qFatal("the program ended with code %d", code);
    return parcours;
}
