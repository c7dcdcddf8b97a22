#include "rules/calendrier.h"
#include "rules/date.h"
#include "rules/erreurs.h"
#include "rules/identite.h"
#include "rules/nombre.h"
#include "rules/saisie.h"
#include "rules/texte.h"
#include "tests/commun/dialoguescenario.h"

#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Currency)

class TestRules : public QObject
{
    Q_OBJECT

private slots:
    void codePage()
    {
        QByteArray tous(256, Qt::Uninitialized);
        for (int i = 0; i < 256; ++i)
            tous[i] = static_cast<char>(i);
        const QString texte = decoder(tous);
        QCOMPARE(encoder(texte), tous); // the five bytes without a character survive as well
        QCOMPARE(texte[0x80], QChar(0x20AC));
        QCOMPARE(texte[0x81], QChar(0x81));
        QCOMPARE(texte[0xE9], u'é');
        QCOMPARE(encoder(u"Œuvre \u4E2D"), QByteArray("\x8Cuvre ?"));

        // The second decoder turns apostrophes into blanks, wherever they stand among the special bytes.
        QString ligne(5, Qt::Uninitialized);
        decoder(QByteArrayView("l'\xE9\x80'"), reinterpret_cast<char16_t *>(ligne.data()), true);
        QCOMPARE(ligne, u"l é€ "_s);
        decoder(QByteArrayView("l'\xE9\x80'"), reinterpret_cast<char16_t *>(ligne.data()), false);
        QCOMPARE(ligne, u"l'é€'"_s);
    }

    void textes()
    {
        QCOMPARE(Trim(u"  a b\t "), u"a b\t");
        QCOMPARE(Trim(u"\u00A0 "), u"\u00A0");
        QCOMPARE(Trim(u"   "), u"");
        QCOMPARE(sansBlancs(u" 1 0\u00A00 "), u"10\u00A00"_s);
        QCOMPARE(sansBlancsFinaux(u" a  "), u" a");
        QCOMPARE(majuscules(u"é à ÿ œ ß µ ƒ z'1"), u"É À Ÿ Œ ß µ ƒ Z'1"_s);
        QVERIFY(chiffresSeuls(u""));
        QVERIFY(!chiffresSeuls(u"12\u0663")); // a digit of another script is none
    }

    void numerique_data()
    {
        QTest::addColumn<QString>("texte");
        QTest::addColumn<bool>("numerique");
        QTest::addColumn<double>("val");

        QTest::newRow("entier") << u"12"_s << true << 12.0;
        QTest::newRow("blancs aux bouts") << u"  12 "_s << true << 12.0;
        QTest::newRow("blanc dedans") << u"1 234.5"_s << false << 1234.5;
        QTest::newRow("virgule") << u"12,5"_s << true << 12.0;
        QTest::newRow("point final") << u"5."_s << true << 5.0;
        QTest::newRow("point initial") << u".5"_s << true << 0.5;
        QTest::newRow("signe") << u"-3.25"_s << true << -3.25;
        QTest::newRow("plus") << u"+3"_s << true << 3.0;
        QTest::newRow("signe seul") << u"-"_s << false << 0.0;
        QTest::newRow("point seul") << u"."_s << false << 0.0;
        QTest::newRow("vide") << u""_s << false << 0.0;
        QTest::newRow("deux points") << u"1.2.3"_s << false << 1.2;
        QTest::newRow("exposant") << u"1e3"_s << false << 1.0;
        QTest::newRow("hexa") << u"&H10"_s << false << 0.0;
        QTest::newRow("lettres derriere") << u"12abc"_s << false << 12.0;
        QTest::newRow("signe au milieu") << u"1-2"_s << false << 1.0;
        QTest::newRow("signe separe") << u"- 5"_s << false << -5.0;
        QTest::newRow("deux signes") << u"--5"_s << false << 0.0;
        QTest::newRow("insecable") << u"1\u00A0000"_s << false << 1.0;
        QTest::newRow("vingt chiffres") << u"12345678901234567890"_s << true << 12345678901234567890.0;
        QTest::newRow("negatif long") << u"-1234567890123456"_s << true << -1234567890123456.0;
    }

    void numerique()
    {
        QFETCH(QString, texte);
        QFETCH(bool, numerique);
        QFETCH(double, val);
        QCOMPARE(EstNumerique(texte), numerique);
        QCOMPARE(Val(texte), val);
    }

    void montants_data()
    {
        QTest::addColumn<QString>("texte");
        QTest::addColumn<qint64>("compte"); // ten-thousandths
        QTest::addColumn<QString>("simple");

        QTest::newRow("champ montre") << u"990 000.50"_s << Q_INT64_C(9'900'005'000) << u"990000.5"_s;
        QTest::newRow("virgule") << u"12,34"_s << Q_INT64_C(123'400) << u"12.34"_s;
        QTest::newRow("sans entier") << u"-.5"_s << Q_INT64_C(-5'000) << u"-0.5"_s;
        QTest::newRow("zero negatif") << u"-0"_s << Q_INT64_C(0) << u"0"_s;
        QTest::newRow("pair reste") << u"0.00025"_s << Q_INT64_C(2) << u"0.0002"_s;
        QTest::newRow("impair monte") << u"0.00035"_s << Q_INT64_C(4) << u"0.0004"_s;
        QTest::newRow("au-dela du demi") << u"0.000250001"_s << Q_INT64_C(3) << u"0.0003"_s;
        QTest::newRow("negatif impair") << u"-0.00035"_s << Q_INT64_C(-4) << u"-0.0004"_s;
        QTest::newRow("limite") << u"922337203685477.5807"_s << std::numeric_limits<qint64>::max()
                                << u"922337203685477.5807"_s;
        QTest::newRow("entier long") << u"100000"_s << Q_INT64_C(1'000'000'000) << u"100000"_s;
    }

    void montants()
    {
        QFETCH(QString, texte);
        QFETCH(qint64, compte);
        QFETCH(QString, simple);
        const Currency montant = LireMontant(texte);
        QCOMPARE(montant.dixMilliemes(), compte);
        QCOMPARE(montant.texte(), simple);
        QCOMPARE(montant.texte(SepAutre), QString(simple).replace(u'.', u','));
    }

    void montantsRefuses()
    {
        for (const QString &texte : {u""_s, u"abc"_s, u"1.2,3"_s, u"922337203685477.5808"_s,
                                     u"99999999999999999999"_s, u"922337203685477.58075"_s})
            QVERIFY_THROWS_EXCEPTION(ErreurConversion, LireMontant(texte));
        const Currency max = Currency::deDixMilliemes(std::numeric_limits<qint64>::max());
        const Currency min = Currency::deDixMilliemes(std::numeric_limits<qint64>::min());
        const Currency un = Currency::deEntier(1);
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, max + un);
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, min - un);
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, -min);
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, max * 2);
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, Currency::deEntier(Q_INT64_C(1'000'000'000'000'000)));
        QCOMPARE(min.texte(), u"-922337203685477.5808"_s);
        QCOMPARE((un - Currency::deEntier(3)).texte(), u"-2"_s);
        DetecterDecimale();
    }

    void masques_data()
    {
        QTest::addColumn<double>("valeur");
        QTest::addColumn<QString>("masque");
        QTest::addColumn<QString>("attendu");

        const QString montant = u"## ### ### ###.00"_s;
        QTest::newRow("groupes") << 1234567.5 << montant << u"1 234 567.50"_s;
        QTest::newRow("trois chiffres") << 999.0 << montant << u"999.00"_s;
        QTest::newRow("sous un") << 0.5 << montant << u".50"_s;
        QTest::newRow("zero") << 0.0 << montant << u".00"_s;
        QTest::newRow("demi") << 5.625 << montant << u"5.63"_s;
        QTest::newRow("demi binaire") << 6.105 << montant << u"6.11"_s;
        QTest::newRow("retenue") << 999.995 << montant << u"1 000.00"_s;
        QTest::newRow("negatif") << -1234.5 << montant << u"-1 234.50"_s;
        QTest::newRow("negatif nul") << -0.001 << montant << u".00"_s;
        QTest::newRow("plus large que le masque")
            << 123456789012.25 << u"## ###.00"_s << u"123 456 789 012.25"_s;
        QTest::newRow("taux") << 100.0 / 3 << u" ## ###.00"_s << u"33.33"_s;
        QTest::newRow("quinze chiffres") << 1234567890123.45678 << montant << u"1 234 567 890 123.46"_s;
        QTest::newRow("decimales au besoin") << 12.5 << u"## ### ### ###.##"_s << u"12.5"_s;
        QTest::newRow("sans decimale") << 12.0 << u"## ### ### ###.##"_s << u"12"_s;
        QTest::newRow("zero au besoin") << 0.0 << u"##.##"_s << u""_s;
        QTest::newRow("parentheses") << -1234.5 << u"#,##0.00;(#,##0.00)"_s << u"(1 234.50)"_s;
        QTest::newRow("zero force") << 0.25 << u"#,##0.00;(#,##0.00)"_s << u"0.25"_s;
    }

    void masques()
    {
        QFETCH(double, valeur);
        QFETCH(QString, masque);
        QFETCH(QString, attendu);
        QCOMPARE(formatMasque(valeur, masque), attendu);
        if (std::abs(valeur) < 1e12)
            QCOMPARE(formatMasque(LireMontant(QString::number(valeur, 'f', 4)), masque), attendu);
    }

    void nombresSimples()
    {
        QCOMPARE(texteNombre(0.1 + 0.2), u"0.3"_s);
        QCOMPARE(texteNombre(-12.50), u"-12.5"_s);
        QCOMPARE(texteNombre(1e16), u"10000000000000000"_s);
        QCOMPARE(texteNombre(0), u"0"_s);
        QCOMPARE(texteNombre(1e-7), u"0.0000001"_s);
        QCOMPARE(lireNombre(u" 12,5 "), 12.5);
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, lireNombre(u"12 5"));
    }

    void dates_data()
    {
        QTest::addColumn<QString>("texte");
        QTest::addColumn<QDate>("date");

        QTest::newRow("pleine") << u"29/02/2024"_s << QDate(2024, 2, 29);
        QTest::newRow("courte") << u" 1/7/2020 "_s << QDate(2020, 7, 1);
        QTest::newRow("an 100") << u"01/01/0100"_s << QDate(100, 1, 1);
        QTest::newRow("an 99") << u"01/01/0099"_s << QDate();
        QTest::newRow("pas bissextile") << u"29/02/2023"_s << QDate();
        QTest::newRow("31 fevrier") << u"31/02/2020"_s << QDate();
        QTest::newRow("mois d'abord") << u"05/13/2020"_s << QDate();
        QTest::newRow("masque") << u"__/__/____"_s << QDate();
        QTest::newRow("vide") << u""_s << QDate();
        QTest::newRow("an court") << u"01/01/20"_s << QDate();
        QTest::newRow("an long") << u"01/01/20200"_s << QDate();
        QTest::newRow("tirets") << u"01-01-2020"_s << QDate();
        QTest::newRow("jour 0") << u"0/7/2020"_s << QDate();
        QTest::newRow("trois chiffres") << u"001/7/2020"_s << QDate();
        QTest::newRow("blanc dedans") << u"1/ 7/2020"_s << QDate();
    }

    void dates()
    {
        QFETCH(QString, texte);
        QFETCH(QDate, date);
        QCOMPARE(EstDate(texte), date.isValid());
        if (date.isValid()) {
            QCOMPARE(lireDate(texte), date);
            QCOMPARE(lireDate(texteDate(date)), date);
        } else {
            QVERIFY_THROWS_EXCEPTION(ErreurConversion, lireDate(texte));
        }
    }

    void champs()
    {
        QVERIFY(CarNumeriques(u"1 234,50"));
        QVERIFY(CarNumeriques(u""));
        QVERIFY(!CarNumeriques(u"12a"));
        QVERIFY(!CarNumeriques(u"-1"));
        QVERIFY(SansChiffre(u"JEAN-PAUL"));
        QVERIFY(SansChiffre(u"EL AMEL"));
        QVERIFY(!SansChiffre(u"A1"));
        QVERIFY(!SansChiffre(u"A,B"));

        const auto cadre = [](auto routine, QString texte) {
            routine(texte);
            return texte;
        };
        QCOMPARE(cadre(CadrerBlancs, u"1234"_s), u"1234"_s);
        QCOMPARE(cadre(CadrerBlancs, u"12345"_s), u"12345     "_s);
        QCOMPARE(cadre(CadrerBlancs, u"12345678901"_s), u"12345678901"_s);
        QCOMPARE(cadre(CadrerSouligne, u"1234567"_s), u"1234567"_s);
        QCOMPARE(cadre(CadrerSouligne, u"12345678"_s), u"12345678__________"_s);
        QCOMPARE(cadre(CadrerSouligne, u"12345678901234567"_s), u"12345678901234567_"_s);

        QCOMPARE(ComplZeros(u"12", 5), u"00012"_s);
        QCOMPARE(ComplZeros(u"123456", 5), u"123456"_s);
        QCOMPARE(CadrerNum2(u"7"), u"007"_s);
        QCOMPARE(CadrerNum2(u"123"), u"123"_s);
        QCOMPARE(CadrerNum2(u"1234"), u""_s);
        QCOMPARE(CadrerNum2(u""), u""_s);
        QCOMPARE(ZerosGauche(u""), u"000000000000000"_s);
        QCOMPARE(ZerosGauche(u"1234567890123456"), u"1234567890123456"_s);
        QCOMPARE(Zeros3(u"4"), u"004"_s);
        QCOMPARE(Zeros3(u"1234"), u"1234"_s);
    }

    void cles()
    {
        QCOMPARE(CleSS(u"1234567890"), u"29"_s);
        QCOMPARE(CleSS(u"8812345678"), u"23"_s);
        QCOMPARE(CleSS(u"0000000000"), u"99"_s);
        QCOMPARE(CleSS(u"12345678"), u"47"_s);
        QCOMPARE(CleSS(u"9999999999"), u"0-36"_s);
        QCOMPARE(CleSS(u"9999999000"), u"00"_s); // a sum of exactly 99
        QCOMPARE(CleSS(u""), u"99"_s);
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, CleSS(u"12345 7890"));

        QVERIFY(cleSSJuste(u"123456789029"));
        QVERIFY(cleSSJuste(u"999999900000"));
        QVERIFY(!cleSSJuste(u"123456789028"));
        QVERIFY(!cleSSJuste(u"1234567890 9"));
        QVERIFY(!cleSSJuste(u"999999999936"));
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, cleSSJuste(u"12345 789029"));

        const auto ccp = [](QString corps) {
            const QString cle = CleCCP(corps);
            return corps + u'/' + cle;
        };
        QCOMPARE(ccp(u"1234567"_s), u"01234567/68"_s);
        QCOMPARE(ccp(u" 1 2"_s), u"00000012/13"_s);
        QCOMPARE(ccp(u"00000001"_s), u"00000001/ 4"_s);
        QCOMPARE(ccp(u""_s), u"/"_s);
        QCOMPARE(ccp(u"123456789"_s), u"123456789/28"_s); // beyond 8 digits only the first 8 count
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, ccp(u"12a"_s));

        QCOMPARE(CleRIB(u"12345678901234561"), u"0"_s);
        QCOMPARE(CleRIB(u"12345678901234562"), u"1"_s);
        QCOMPARE(CleRIB(u"1234567890123456x"), u"-1"_s);
        QCOMPARE(CleRIB(u""), u"-1"_s);
    }

    void comptes_data()
    {
        QTest::addColumn<QString>("compte");
        QTest::addColumn<bool>("ccp"); // CtrlCompteCCP
        QTest::addColumn<bool>("rip"); // CtrlRIP
        QTest::addColumn<QString>("apres");

        QTest::newRow("RIP") << u"00712345678901234561"_s << true << true << u"00712345678901234561"_s;
        QTest::newRow("RIP faux") << u"00712345678901234562"_s << false << false << u"00712345678901234562"_s;
        QTest::newRow("autre banque")
            << u"00112345678901234561"_s << false << false << u"00112345678901234561"_s;
        QTest::newRow("CCP") << u"123456768"_s << true << false << u"123456768"_s;
        QTest::newRow("CCP, zeros devant") << u"0000123456768"_s << true << false << u"123456768"_s;
        QTest::newRow("CCP, zero et blanc devant") << u"0 123456768"_s << true << false << u" 123456768"_s;
        QTest::newRow("CCP entre blancs") << u" 123456768 "_s << true << false << u" 123456768 "_s;
        QTest::newRow("CCP cle fausse") << u"123456769"_s << false << false << u"123456769"_s;
        QTest::newRow("trop court") << u"0012345"_s << false << false << u"12345"_s;
        QTest::newRow("quatre chiffres") << u"1213"_s << false << false << u"1213"_s;
        QTest::newRow("corps de neuf") << u"12345678928"_s << true << false << u"12345678928"_s;
        QTest::newRow("vide") << u""_s << false << false << u""_s;
        QTest::newRow("zeros") << u"000000000000000000"_s << false << false << u""_s;
        QTest::newRow("vingt zeros") << u"00000000000000000000"_s << false << false
                                     << u"00000000000000000000"_s;
        QTest::newRow("lettres") << u"ABCDEFG"_s << false << false << u"ABCDEFG"_s;
        QTest::newRow("21 chiffres") << u"007123456789012345610"_s << false << false
                                     << u"007123456789012345610"_s;
    }

    void comptes()
    {
        QFETCH(QString, compte);
        QStringView vue = compte;
        QTEST(CtrlCompteCCP(vue), "ccp");
        QTEST(vue.toString(), "apres");
        QTEST(CtrlRIP(compte), "rip");
    }

    void comptesBancaires()
    {
        QVERIFY(compteBancaireValide(u"00112345678901234561")); // whatever the bank
        QVERIFY(!compteBancaireValide(u"00112345678901234562"));
        QVERIFY(!compteBancaireValide(u"00000000000000000000"));
        QVERIFY(!compteBancaireValide(u"0011234567890123456"));
        QVERIFY(!compteBancaireValide(u"                    "));
    }

    void telephones_data()
    {
        QTest::addColumn<QString>("texte");
        QTest::addColumn<QString>("message"); // empty: none
        QTest::addColumn<bool>("valide");     // CtrlTelephone
        QTest::addColumn<bool>("silencieux"); // TelephoneValide

        const QString souligne =
            u"Vous devez compléter le numéro de télephone SVP, ne laissez pas de caractère '_'   !"_s;
        const QString zero = u"le pemier chiffre doit impérativement commencer par zéro !"_s;
        const QString fixe =
            u"le deuxième chiffre doit impérativement etre égal à zéro pour les lignes fixe "_s;
        const QString mobile = u"le deuxième chiffre ne doit pas etre égal à zéro pour les lignes mobile "_s;

        QTest::newRow("mobile") << u"0550112233"_s << QString() << true << true;
        QTest::newRow("fixe") << u"0021445566"_s << QString() << true << true;
        QTest::newRow("fixe sans 0") << u"0160112233"_s << fixe << false << false;
        QTest::newRow("00 et 5") << u"0050112233"_s << mobile << false << false;
        QTest::newRow("premier") << u"1550112233"_s << zero << false << false;
        QTest::newRow("incomplet") << u"055011223_"_s << souligne << false << false;
        QTest::newRow("court") << u"055011223"_s << QString() << true << false;
        QTest::newRow("lettres apres 3") << u"0550ABCDEF"_s << QString() << true << true;
        QTest::newRow("blanc en 2") << u"0 50112233"_s << QString() << false << false;
        QTest::newRow("lettre en 3") << u"05X0112233"_s << QString() << false << false;
        QTest::newRow("fixe, lettre en 3") << u"01X0112233"_s << fixe << false << false;
        QTest::newRow("vide") << u""_s << zero << false << false;
    }

    void telephones()
    {
        QFETCH(QString, texte);
        QFETCH(QString, message);
        DialogueScenario dialogue;
        if (!message.isEmpty())
            dialogue.attendreAvertissement(message);
        QTEST(CtrlTelephone(texte, dialogue), "valide");
        QTEST(TelephoneValide(texte), "silencieux");
    }

    void mails_data()
    {
        QTest::addColumn<QString>("texte");
        QTest::addColumn<QString>("message");

        const QString arobase = u"EMail incorrecte, manque du caractère '@' !!"_s;
        const QString point = u"Adresse Mail incorrecte , manque du caractère '.' !!"_s;
        QTest::newRow("bon") << u"a.b@exemple.dz"_s << QString();
        QTest::newRow("point a quatre") << u"a@b.com"_s << QString();
        QTest::newRow("point a cinq") << u"a@b.info"_s << point;
        QTest::newRow("sans arobase") << u"a.com"_s << arobase;
        QTest::newRow("sans point") << u"a@bcom"_s << point;
        QTest::newRow("vide") << u""_s << point;
    }

    void mails()
    {
        QFETCH(QString, texte);
        QFETCH(QString, message);
        DialogueScenario dialogue;
        if (!message.isEmpty())
            dialogue.attendreAvertissement(message);
        QCOMPARE(CtrlMail(texte, dialogue), message.isEmpty());
        QCOMPARE(MailValide(texte), message.isEmpty());
    }

    void periodes()
    {
        BornesDePeriode bornes;
        BornesPeriode(u"202303", bornes);
        QCOMPARE(bornes.DateDebutPeriode + bornes.DateFinPeriode, QString()); // March first: both stay empty

        const struct
        {
            QStringView code, debut, fin;
        } attendues[] = {
            {u"202301", u"01/01/2023", u"31/01/2023"}, {u"202402", u"01/02/2024", u"29/02/2024"},
            {u"202302", u"01/02/2023", u"28/02/2023"}, {u"2023T1", u"01/01/2023", u"31/03/2023"},
            {u"202303", u"01/01/2023", u"31/03/2023"}, {u"202304", u"01/04/2023", u"30/04/2023"},
            {u"202305", u"01/05/2023", u"31/05/2023"}, {u"202306", u"01/06/2023", u"30/06/2023"},
            {u"2023T2", u"01/04/2023", u"30/06/2023"}, {u"202307", u"01/07/2023", u"31/07/2023"},
            {u"202308", u"01/08/2023", u"31/08/2023"}, {u"202309", u"01/09/2023", u"30/09/2023"},
            {u"2022T3", u"01/07/2022", u"30/09/2022"}, {u"202210", u"01/10/2022", u"31/10/2022"},
            {u"202211", u"01/11/2022", u"30/11/2022"}, {u"202212", u"01/12/2022", u"31/12/2022"},
            {u"2022T4", u"01/10/2022", u"31/12/2022"}, {u"202213", u"01/10/2022", u"31/12/2022"},
            {u"", u"01/10/2022", u"31/12/2022"},
        };
        for (const auto &[code, debut, fin] : attendues) {
            BornesPeriode(code, bornes);
            QCOMPARE(bornes.DateDebutPeriode, debut);
            QCOMPARE(bornes.DateFinPeriode, fin);
        }
    }
};

QTEST_APPLESS_MAIN(TestRules)
#include "test_rules.moc"
