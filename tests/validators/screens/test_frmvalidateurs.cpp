#include "storage/base.h"
#include "tests/screens/banc.h"
#include "tests/validators/fichierdessai.h"
#include "validators/screens/frmdacvalide.h"
#include "validators/screens/frmfileci.h"

#include <QTemporaryDir>

/// What the screens of nominative declarations and claims have of their own.
class TestFrmValidateurs : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dossier;
    Base m_base;
    Banc m_banc{m_base};

    void extraire(QWidget &ecran, const FichierDessai &essai, const QString &nom, const QString &entete,
                  const QString &titre)
    {
        QFile fichier(m_dossier.filePath(nom));
        QVERIFY(fichier.open(QIODevice::WriteOnly));
        fichier.write(encoder(QStringList{essai.marque, entete, essai.bonneLigne}.join(u'\n')));
        fichier.close();
        m_banc.dialogue.attendreFichier(fichier.fileName());
        m_banc.dialogue.attendreBoite(
            u"Extraction Terminée avec Nombre Erreurs : \n  - De Rejet : 0\n  - Sans Incidence : 0"_s, titre);
        cliquer(ecran, u"CmdExtFichier"_s);
        QVERIFY(m_banc.dialogue.acheve());
    }

private slots:
    void dac()
    {
        const QString titre = u"DAC INFO"_s;
        {
            FrmDacValide ecran(m_banc.contexte);
            extraire(ecran, essaiDac, essaiDac.nom, u"12345678;2024T1;2;50000,5;3;1,5;"_s, titre);
            QCOMPARE(
                textes(ecran, u"LabEmpl LabAnn LabNumDAC LabSalDAC LabNbDAC LabNbDACReel LabTotSalaires "
                              "LabTotSalaries LabDAC LabDAC2"_s),
                u"12345678|2024T1|2|50 000.50|3|2|50 000.50|1|Nbre Erreurs De Rejet : 0 ,  Sans Incidence : "
                "0|Total Lignes DAC = Entête DAC\nTotal Nb Salariés Lignes DAC < Entête DAC de  -2"_s);
        }
        // March has the bounds of the period before it, whichever window that was in.
        FrmDacValide ecran(m_banc.contexte);
        extraire(ecran, essaiDac, u"12345678_DAC_NOMINATIVE_202403.txt"_s,
                 u"12345678;202403;1;50000,5;1;1;"_s, titre);
        QCOMPARE(texte(ecran, u"LabAnn"_s), u"202403"_s);
        m_banc.dialogue.attendreFichier({});
        m_banc.dialogue.attendreBoite(u"Aucun fichier n'a été sélectionné !!!"_s, u"Dac INFO"_s);
        cliquer(ecran, u"CmdExtFichier"_s);
        QCOMPARE(textes(ecran, u"LabAnn LabNbDACReel LabDAC LabDAC2"_s), u"|||"_s);
    }

    void ci()
    {
        FrmFileCI ecran(m_banc.contexte);
        extraire(
            ecran, essaiCi, essaiCi.nom,
            u"123456780000000001;05/01/2024;12/01/2024;3000,1;1;780.03;366,31;11.25;40;00712345678901234561;"
            "AGENCE;;"_s,
            u"Fichier Déclaration nominative CI"_s);
        QCOMPARE(
            textes(ecran, u"LabEmpl LabRef LabDateArret LabDateReprise LabMtIndemnise LabEffectif LabChg26 "
                          "LabCh1221 LabChg0375 LabNCompte LanBanque LabTotSalaires LabTotSalaries LabDAS "
                          "LabDAS2"_s),
            u"12345678|0000000001|05/01/2024|12/01/2024|3 000.10|1|780.03|366.31|11.25|00712345678901234561|"
            "AGENCE|3 000.00|1|Nbre Erreurs De Rejet : 0 ,  Sans Incidence : 0|Cumul Montant indemnisé du "
            "Fichier "
            "déclaration nominative < Entête Fichier de  -.1"_s);
    }
};

QTEST_MAIN(TestFrmValidateurs)
#include "test_frmvalidateurs.moc"
