#include "screens/champmasque.h"
#include "tests/commun/cas.h"
#include "tests/screens/banc.h"

using namespace Qt::StringLiterals;

/// The masked field as a clerk's hands meet it. In the tables a step is a key, a text to type, or a paste.
class TestChampMasque : public QObject
{
    Q_OBJECT

    struct Cas
    {
        const char *nom;
        QString masque;
        QString depart;
        int curseur;   // -1: all selected
        QString geste; // keys; "<" is backspace, ">" delete, "^V..." pastes the rest
        QString texte;
        int apres;
    };

private slots:
    void gestes_data()
    {
        const QString date = u"##/##/####"_s;
        const QString pleine = u"01/07/2024"_s;
        const QString huit = u"########"_s;
        const QString plein = u"12345678"_s;
        const QString reference = u"&&&&&&"_s;
        lignesDuTest<Cas>(
            {{"vide", date, {}, 0, {}, u"__/__/____"_s, 0},
             {"date tapee", date, {}, 0, u"01072024"_s, pleine, 10},
             {"date avec barres", date, {}, 0, u"1/7/2024"_s, pleine, 10},
             {"barre derriere deux chiffres", date, {}, 0, pleine, pleine, 10},
             {"barre derriere un chiffre", date, {}, 0, u"01/7/"_s, u"01/07/____"_s, 6},
             {"barre derriere rien", date, {}, 1, u"/"_s, u"__/__/____"_s, 3},
             {"lettres refusees", huit, {}, 0, u"1a2b"_s, u"12______"_s, 2},
             {"trop", huit, {}, 0, u"1234567890"_s, plein, 8},
             {"par-dessus", huit, plein, 2, u"99"_s, u"12995678"_s, 4},
             {"meme chiffre", huit, u"11______"_s, 0, u"1"_s, u"11______"_s, 1},
             {"blanc devant", huit, {}, 0, u" 123"_s, u" 123____"_s, 4},
             {"effacer au milieu", huit, plein, 4, u"<"_s, u"123_5678"_s, 3},
             {"supprimer au milieu", huit, plein, 4, u">"_s, u"1234_678"_s, 4},
             {"effacer la barre", date, pleine, 3, u"<<"_s, u"0_/07/2024"_s, 1},
             {"tout remplacer", date, pleine, -1, u"3"_s, u"3_/__/____"_s, 1},
             {"tout effacer", date, pleine, -1, u">"_s, u"__/__/____"_s, 0},
             {"coller une date", date, {}, -1, u"^V31/12/2023"_s, u"31/12/2023"_s, 10},
             {"coller une date courte", date, {}, -1, u"^V1/2/2023"_s, u"01/02/2023"_s, 10},
             {"coller un nombre groupe", huit, {}, -1, u"^V12 345 67"_s, u"1234567_"_s, 7},
             {"coller trop long", huit, {}, -1, u"^V1234567890123"_s, plein, 8},
             {"coller au milieu", huit, plein, 6, u"^V000"_s, u"12345600"_s, 8},
             {"coller a moitie plein", date, pleine, -1, u"^V31/__/____"_s, u"31/__/____"_s, 10},
             {"coller des lettres", huit, {}, -1, u"^Vabc\n\t"_s, u"________"_s, 0},
             {"tout caractere", reference, {}, 0, u"1ax<b"_s, u"1ab___"_s, 3},
             {"coller une reference groupee", reference, {}, -1, u"^V12 3x"_s, u"123x__"_s, 4},
             {"chiffres d'ailleurs", huit, {}, -1, u"^V\u0661²"_s, u"________"_s, 0}});
    }

    void gestes()
    {
        QFETCH(Cas, cas);
        ChampMasque champ;
        champ.setMasque(cas.masque);
        champ.show();
        champ.setFocus();
        Banc::activer(champ);
        if (!cas.depart.isNull())
            champ.setText(cas.depart);
        if (cas.curseur < 0)
            champ.selectAll();
        else
            champ.setCursorPosition(cas.curseur);

        if (cas.geste.startsWith(u"^V")) {
            coller(cas.geste.sliced(2));
        } else {
            for (const QChar c : cas.geste) {
                if (c == u'<')
                    touche(Qt::Key_Backspace);
                else if (c == u'>')
                    touche(Qt::Key_Delete);
                else
                    taper(c);
            }
        }
        QCOMPARE(champ.text(), cas.texte);
        QCOMPARE(champ.cursorPosition(), cas.apres);
    }

    void parProgramme()
    {
        ChampMasque champ;
        champ.setMasque(u"########"_s);
        // Blanks are entered, and differ from the prompt.
        for (const auto &[mis, vu] : {std::pair{u"12345678"_s, u"12345678"_s},
                                      {u"12"_s, u"12______"_s},
                                      {u"        "_s, u"        "_s},
                                      {u""_s, u"________"_s},
                                      {u"123456789012"_s, u"12345678"_s}}) {
            champ.setText(mis);
            QCOMPARE(champ.text(), vu);
            QCOMPARE(champ.estVide(), mis.isEmpty());
        }
        champ.clear();
        QVERIFY(champ.estVide());
        champ.setInvite(u" "_s);
        QCOMPARE(champ.text(), u"        "_s);
    }

    void couper()
    {
        ChampMasque champ;
        champ.setMasque(u"##/##/####"_s);
        champ.setText(u"01/07/2024"_s);
        champ.show();
        champ.setFocus();
        Banc::activer(champ);
        champ.setSelection(3, 2);
        touche(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"07"_s);
        QCOMPARE(champ.text(), u"01/__/2024"_s);
        QCOMPARE(champ.cursorPosition(), 3);
        coller(u"12"_s);
        QCOMPARE(champ.text(), u"01/12/2024"_s);
    }

    /// The click that brings the focus selects all, even of a hand that trembles; the next one places the
    /// cursor, and a drag selects a part.
    void clics()
    {
        QWidget ecran;
        auto *autre = new QLineEdit(&ecran);
        auto *champ = new ChampNombre(&ecran);
        champ->setText(u"600000"_s);
        champ->move(0, 50);
        ecran.show();
        Banc::activer(ecran);
        const int milieu = champ->height() / 2;
        const auto glisser = [&](int jusqua) {
            autre->setFocus();
            QTest::mousePress(champ, Qt::LeftButton, {}, {2, milieu});
            QTest::mouseMove(champ, {jusqua, milieu});
            QTest::mouseRelease(champ, Qt::LeftButton, {}, {jusqua, milieu});
            return champ->selectedText();
        };
        QCOMPARE(glisser(4), u"600000"_s);
        QTest::mouseClick(champ, Qt::LeftButton, {}, {2, milieu});
        QCOMPARE(champ->selectedText(), QString());
        QCOMPARE(champ->cursorPosition(), 0);
        const QString partie = glisser(champ->fontMetrics().horizontalAdvance(u"600"_s) + 4);
        QVERIFY2(partie.size() > 1 && partie.size() < 6, qPrintable(partie));
    }
};

QTEST_MAIN(TestChampMasque)
#include "test_champmasque.moc"
