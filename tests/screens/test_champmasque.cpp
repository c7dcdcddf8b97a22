#include "screens/champmasque.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

using namespace Qt::StringLiterals;

/// The masked field as a clerk's hands meet it. In the tables a step is a key, a text to type, or a paste.
class TestChampMasque : public QObject
{
    Q_OBJECT

private:
    static void coller(ChampMasque &champ, const QString &texte)
    {
        QGuiApplication::clipboard()->setText(texte);
        QTest::keyClick(&champ, Qt::Key_V, Qt::ControlModifier);
    }

private slots:
    void gestes_data()
    {
        QTest::addColumn<QString>("masque");
        QTest::addColumn<QString>("invite");
        QTest::addColumn<QString>("depart");
        QTest::addColumn<int>("curseur");   // -1: all selected
        QTest::addColumn<QString>("geste"); // keys; "<" is backspace, ">" delete, "^V..." pastes the rest
        QTest::addColumn<QString>("texte");
        QTest::addColumn<int>("apres");

        const QString date = u"##/##/####"_s;
        const QString huit = u"########"_s;
        const QString n = QString();
        QTest::newRow("vide") << date << u"_"_s << n << 0 << u""_s << u"__/__/____"_s << 0;
        QTest::newRow("vide, invite blanche") << huit << u" "_s << n << 0 << u""_s << u"        "_s << 0;
        QTest::newRow("date tapee") << date << u"_"_s << n << 0 << u"01072024"_s << u"01/07/2024"_s << 10;
        QTest::newRow("date avec barres")
            << date << u"_"_s << n << 0 << u"1/7/2024"_s << u"01/07/2024"_s << 10;
        QTest::newRow("barre derriere deux chiffres")
            << date << u"_"_s << n << 0 << u"01/07/2024"_s << u"01/07/2024"_s << 10;
        QTest::newRow("lettres refusees") << huit << u"_"_s << n << 0 << u"1a2b"_s << u"12______"_s << 2;
        QTest::newRow("trop") << huit << u"_"_s << n << 0 << u"1234567890"_s << u"12345678"_s << 8;
        QTest::newRow("par-dessus") << huit << u"_"_s << u"12345678"_s << 2 << u"99"_s << u"12995678"_s << 4;
        QTest::newRow("meme chiffre") << huit << u"_"_s << u"11______"_s << 0 << u"1"_s << u"11______"_s << 1;
        QTest::newRow("blanc devant") << huit << u"_"_s << n << 0 << u" 123"_s << u" 123____"_s << 4;
        QTest::newRow("effacer au milieu")
            << huit << u"_"_s << u"12345678"_s << 4 << u"<"_s << u"123_5678"_s << 3;
        QTest::newRow("supprimer au milieu")
            << huit << u"_"_s << u"12345678"_s << 4 << u">"_s << u"1234_678"_s << 4;
        QTest::newRow("effacer la barre")
            << date << u"_"_s << u"01/07/2024"_s << 3 << u"<<"_s << u"0_/07/2024"_s << 1;
        QTest::newRow("tout remplacer")
            << date << u"_"_s << u"01/07/2024"_s << -1 << u"3"_s << u"3_/__/____"_s << 1;
        QTest::newRow("tout effacer")
            << date << u"_"_s << u"01/07/2024"_s << -1 << u">"_s << u"__/__/____"_s << 0;
        QTest::newRow("coller une date")
            << date << u"_"_s << n << -1 << u"^V31/12/2023"_s << u"31/12/2023"_s << 10;
        QTest::newRow("coller une date courte")
            << date << u"_"_s << n << -1 << u"^V1/2/2023"_s << u"01/02/2023"_s << 10;
        QTest::newRow("coller un nombre groupe")
            << huit << u"_"_s << n << -1 << u"^V12 345 67"_s << u"1234567_"_s << 7;
        QTest::newRow("coller trop long")
            << huit << u"_"_s << n << -1 << u"^V1234567890123"_s << u"12345678"_s << 8;
        QTest::newRow("coller au milieu")
            << huit << u"_"_s << u"12345678"_s << 6 << u"^V000"_s << u"12345600"_s << 8;
        QTest::newRow("coller un champ a moitie plein")
            << date << u"_"_s << u"01/07/2024"_s << -1 << u"^V31/__/____"_s << u"31/__/____"_s << 10;
        QTest::newRow("coller des lettres")
            << huit << u"_"_s << n << -1 << u"^Vabc\n\t"_s << u"________"_s << 0;
        QTest::newRow("tout caractere") << u"&&&&&&"_s << u" "_s << n << 0 << u"1a_<b"_s << u"1ab   "_s << 3;
        QTest::newRow("coller une reference groupee")
            << u"&&&&&&"_s << u"_"_s << n << -1 << u"^V12 3x"_s << u"123x__"_s << 4;
        QTest::newRow("chiffres d'ailleurs")
            << huit << u"_"_s << n << -1 << u"^V\u0661²"_s << u"________"_s << 0;
    }

    void gestes()
    {
        QFETCH(QString, masque);
        QFETCH(QString, invite);
        QFETCH(QString, depart);
        QFETCH(int, curseur);
        QFETCH(QString, geste);
        ChampMasque champ;
        champ.setMasque(masque);
        champ.setInvite(invite);
        if (!depart.isNull())
            champ.setText(depart);
        if (curseur < 0)
            champ.selectAll();
        else
            champ.setCursorPosition(curseur);

        if (geste.startsWith(u"^V")) {
            coller(champ, geste.sliced(2));
        } else {
            for (const QChar c : geste) {
                if (c == u'<')
                    QTest::keyClick(&champ, Qt::Key_Backspace);
                else if (c == u'>')
                    QTest::keyClick(&champ, Qt::Key_Delete);
                else
                    QTest::keyClicks(&champ, c);
            }
        }
        QTEST(champ.text(), "texte");
        QTEST(champ.cursorPosition(), "apres");
    }

    void parProgramme()
    {
        ChampMasque champ;
        champ.setMasque(u"########"_s);
        champ.setText(u"12345678"_s);
        QCOMPARE(champ.text(), u"12345678"_s);
        champ.setText(u"12"_s);
        QCOMPARE(champ.text(), u"12______"_s);
        champ.setText(u"        "_s); // blanks are entered, and differ from the prompt
        QCOMPARE(champ.text(), u"        "_s);
        QVERIFY(!champ.estVide());
        champ.setText(u""_s);
        QVERIFY(champ.estVide());
        champ.clear();
        QCOMPARE(champ.text(), u"________"_s);
        champ.setText(u"123456789012"_s);
        QCOMPARE(champ.text(), u"12345678"_s);
    }

    void couper()
    {
        ChampMasque champ;
        champ.setMasque(u"##/##/####"_s);
        champ.setText(u"01/07/2024"_s);
        champ.setSelection(3, 2);
        QTest::keyClick(&champ, Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"07"_s);
        QCOMPARE(champ.text(), u"01/__/2024"_s);
        QCOMPARE(champ.cursorPosition(), 3);
        coller(champ, u"12"_s);
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
        QVERIFY(QTest::qWaitForWindowActive(&ecran));
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
