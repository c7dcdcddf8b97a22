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
        QCOMPARE(texte.mid(0x80, 32), u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ"_s);
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

    void numerique()
    {
        using Cas = std::pair<QStringView, double>;
        for (const auto &[texte, val] :
             {Cas(u"12", 12), Cas(u"  12 ", 12), Cas(u"12,5", 12), Cas(u"5.", 5), Cas(u".5", 0.5),
              Cas(u"-3.25", -3.25), Cas(u"+3", 3), Cas(u"12345678901234567890", 12345678901234567890.0),
              Cas(u"-1234567890123456", -1234567890123456),
              Cas(u"-0.12345678901234567", -0.12345678901234567)}) {
            QVERIFY2(EstNumerique(texte), qPrintable(texte.toString()));
            QCOMPARE(Val(texte), val);
        }
        for (const auto &[texte, val] :
             {Cas(u"1 234.5", 1234.5), Cas(u"-", 0), Cas(u".", 0), Cas(u"", 0), Cas(u"1.2.3", 1.2),
              Cas(u"1e3", 1), Cas(u"&H10", 0), Cas(u"12abc", 12), Cas(u"1-2", 1), Cas(u"- 5", -5),
              Cas(u"--5", 0), Cas(u"1\u00A0000", 1),
              Cas(u" - 12345678901234567890.5-", -12345678901234567890.0)}) {
            QVERIFY2(!EstNumerique(texte), qPrintable(texte.toString()));
            QCOMPARE(Val(texte), val);
        }
    }

    void montants()
    {
        using Cas = std::tuple<QStringView, qint64, QStringView>;
        for (const auto &[texte, dixMilliemes, simple] :
             {Cas(u"990 000.50", 9'900'005'000, u"990000.5"), Cas(u"12,34", 123'400, u"12.34"),
              Cas(u"-.5", -5'000, u"-0.5"), Cas(u"-0", 0, u"0"), Cas(u"0.00025", 2, u"0.0002"),
              Cas(u"0.00035", 4, u"0.0004"), Cas(u"0.000250001", 3, u"0.0003"),
              Cas(u"-0.00035", -4, u"-0.0004"),
              Cas(u"922337203685477.5807", std::numeric_limits<qint64>::max(), u"922337203685477.5807"),
              Cas(u"100000", 1'000'000'000, u"100000")}) {
            const Currency montant = LireMontant(texte);
            QCOMPARE(montant.dixMilliemes(), dixMilliemes);
            QCOMPARE(montant.texte(), simple);
            QCOMPARE(montant.texte(SepAutre), simple.toString().replace(u'.', u','));
        }
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
        QCOMPARE((un - Currency::deEntier(3) + un).texte(), u"-1"_s);
        DetecterDecimale();
    }

    void masques()
    {
        constexpr QStringView montant = u"## ### ### ###.00", court = u"## ### ### ###.##",
                              signe = u"#,##0.00;(#,##0.00)";
        using Cas = std::tuple<double, QStringView, QStringView>;
        for (const auto &[valeur, masque, attendu] :
             {Cas(1234567.5, montant, u"1 234 567.50"), Cas(999, montant, u"999.00"),
              Cas(0.5, montant, u".50"), Cas(0, montant, u".00"), Cas(5.625, montant, u"5.63"),
              Cas(6.105, montant, u"6.11"), Cas(999.995, montant, u"1 000.00"),
              Cas(-1234.5, montant, u"-1 234.50"), Cas(-0.001, montant, u".00"),
              Cas(123456789012.25, u"## ###.00", u"123 456 789 012.25"),
              Cas(100.0 / 3, u" ## ###.00", u"33.33"),
              Cas(1234567890123.45678, montant, u"1 234 567 890 123.46"), Cas(12.5, court, u"12.5"),
              Cas(12, court, u"12"), Cas(0, u"##.##", u""), Cas(-1234.5, signe, u"(1 234.50)"),
              Cas(0.25, signe, u"0.25"), Cas(0.5, u".00", u".50")}) {
            QCOMPARE(formatMasque(valeur, masque), attendu);
            if (std::abs(valeur) < 1e12)
                QCOMPARE(formatMasque(LireMontant(QString::number(valeur, 'f', 4)), masque), attendu);
        }
    }

    void produits()
    {
        const QString masque = u"## ### ### ###.00"_s;
        QCOMPARE(formatProduit({u"429377.32", u"0.00375"}, masque), u"1 610.16"_s); // 1610.16495
        QCOMPARE(formatProduit({u"33,5", u"103.15", u"0.75"}, masque), u"2 591.64"_s);
        QCOMPARE(formatProduit({u"0.0001", u"-49", u"+00.90"}, u"0.0000"), u"-0.0044"_s);
        QCOMPARE(formatProduit({u"99999999999999", u"99999999999999"}, u"# ##0"_s),
                 u"9 999 999 999 999 800 000 000 000 000"_s);
        QCOMPARE(formatProduit({u"0", u"-5"}, masque), u".00"_s);
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, formatProduit({u"1", u"x"}, masque));
    }

    void nombresSimples()
    {
        using Cas = std::pair<double, QStringView>;
        for (const auto &[nombre, texte] :
             {Cas(0.1 + 0.2, u"0.3"), Cas(-12.50, u"-12.5"), Cas(1e16, u"10000000000000000"), Cas(0, u"0"),
              Cas(1e-7, u"0.0000001")})
            QCOMPARE(texteNombre(nombre), texte);
        QCOMPARE(lireNombre(u" 12,5 "), 12.5);
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, lireNombre(u"12 5"));
    }

    void dates()
    {
        using Cas = std::pair<QStringView, QDate>;
        for (const auto &[texte, date] : {Cas(u"29/02/2024", {2024, 2, 29}), Cas(u" 1/7/2020 ", {2020, 7, 1}),
                                          Cas(u"01/01/0100", {100, 1, 1})}) {
            QVERIFY(EstDate(texte));
            QCOMPARE(lireDate(texte), date);
            QCOMPARE(lireDate(texteDate(date)), date);
        }
        for (const QStringView texte :
             {u"01/01/0099", u"29/02/2023", u"31/02/2020", u"05/13/2020", u"__/__/____", u"", u"01/01/20",
              u"01/01/20200", u"01-01-2020", u"0/7/2020", u"001/7/2020", u"1/ 7/2020"}) {
            QVERIFY2(!EstDate(texte), qPrintable(texte.toString()));
            QVERIFY_THROWS_EXCEPTION(ErreurConversion, lireDate(texte));
        }
    }

    void champs()
    {
        QVERIFY(CarNumeriques(u"1 234,50") && CarNumeriques(u""));
        QVERIFY(!CarNumeriques(u"12a") && !CarNumeriques(u"-1"));
        QVERIFY(SansChiffre(u"JEAN-PAUL") && SansChiffre(u"EL AMEL"));
        QVERIFY(!SansChiffre(u"A1") && !SansChiffre(u"A,B"));

        const auto cadre = [](auto routine, QString texte) {
            routine(texte);
            return texte;
        };
        using Cas = std::pair<QString, QStringView>;
        for (const auto &[cadree, attendue] :
             {Cas(cadre(CadrerBlancs, u"1234"_s), u"1234"),
              Cas(cadre(CadrerBlancs, u"12345"_s), u"12345     "),
              Cas(cadre(CadrerBlancs, u"12345678901"_s), u"12345678901"),
              Cas(cadre(CadrerSouligne, u"1234567"_s), u"1234567"),
              Cas(cadre(CadrerSouligne, u"12345678"_s), u"12345678__________"),
              Cas(cadre(CadrerSouligne, u"12345678901234567"_s), u"12345678901234567_"),
              Cas(ComplZeros(u"12", 5), u"00012"), Cas(ComplZeros(u"123456", 5), u"123456"),
              Cas(CadrerNum2(u"7"), u"007"), Cas(CadrerNum2(u"123"), u"123"), Cas(CadrerNum2(u"1234"), u""),
              Cas(CadrerNum2(u""), u""), Cas(ZerosGauche(u""), u"000000000000000"),
              Cas(ZerosGauche(u"1234567890123456"), u"1234567890123456"), Cas(Zeros3(u"4"), u"004"),
              Cas(Zeros3(u"1234"), u"1234")})
            QCOMPARE(cadree, attendue);
    }

    void cles()
    {
        const auto ccp = [](QString corps) {
            const QString cle = CleCCP(corps);
            return corps + u'/' + cle;
        };
        // A sum of exactly 99 and one beyond; of a CCP number only the first 8 digits count.
        using Cas = std::pair<QString, QStringView>;
        for (const auto &[cle, attendue] :
             {Cas(CleSS(u"1234567890"), u"29"), Cas(CleSS(u"8812345678"), u"23"),
              Cas(CleSS(u"12345678"), u"47"), Cas(CleSS(u"9999999000"), u"00"),
              Cas(CleSS(u"9999999999"), u"0-36"), Cas(CleSS(u""), u"99"),
              Cas(ccp(u"1234567"_s), u"01234567/68"), Cas(ccp(u" 1 2"_s), u"00000012/13"),
              Cas(ccp(u"00000001"_s), u"00000001/ 4"), Cas(ccp(u""_s), u"/"),
              Cas(ccp(u"123456789"_s), u"123456789/28"), Cas(CleRIB(u"12345678901234561"), u"0"),
              Cas(CleRIB(u"12345678901234562"), u"1"), Cas(CleRIB(u"1234567890123456x"), u"-1"),
              Cas(CleRIB(u""), u"-1")})
            QCOMPARE(cle, attendue);
        QVERIFY(cleSSJuste(u"123456789029") && cleSSJuste(u"999999900000"));
        for (const QStringView faux : {u"123456789028", u"1234567890 9", u"999999999936"})
            QVERIFY2(!cleSSJuste(faux), qPrintable(faux.toString()));
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, CleSS(u"12345 7890"));
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, cleSSJuste(u"12345 789029"));
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, ccp(u"12a"_s));
    }

    void comptes()
    {
        using Cas = std::tuple<QStringView, bool, bool, std::optional<QStringView>>;
        for (const auto &[compte, ccp, rip, apres] :
             {Cas(u"00712345678901234561", true, true, {}), Cas(u"00712345678901234562", false, false, {}),
              Cas(u"00112345678901234561", false, false, {}), Cas(u"123456768", true, false, {}),
              Cas(u"0000123456768", true, false, u"123456768"),
              Cas(u"0 123456768", true, false, u" 123456768"), Cas(u" 123456768 ", true, false, {}),
              Cas(u"123456769", false, false, {}), Cas(u"0012345", false, false, u"12345"),
              Cas(u"1213", false, false, {}), Cas(u"12345678928", true, false, {}),
              Cas(u"", false, false, {}), Cas(u"000000000000000000", false, false, u""),
              Cas(u"00000000000000000000", false, false, {}), Cas(u"ABCDEFG", false, false, {}),
              Cas(u"007123456789012345610", false, false, {})}) {
            QStringView vue = compte;
            QVERIFY2(CtrlCompteCCP(vue) == ccp && CtrlRIP(compte) == rip, qPrintable(compte.toString()));
            QCOMPARE(vue, apres.value_or(compte));
        }
    }

    void comptesBancaires()
    {
        QVERIFY(compteBancaireValide(u"00112345678901234561")); // whatever the bank
        for (const QStringView faux : {u"00112345678901234562", u"00000000000000000000",
                                       u"0011234567890123456", u"                    "})
            QVERIFY2(!compteBancaireValide(faux), qPrintable(faux.toString()));
    }

    void telephones()
    {
        const QString souligne =
            u"Vous devez compléter le numéro de télephone SVP, ne laissez pas de caractère '_'   !"_s;
        const QString zero = u"le pemier chiffre doit impérativement commencer par zéro !"_s;
        const QString fixe =
            u"le deuxième chiffre doit impérativement etre égal à zéro pour les lignes fixe "_s;
        const QString mobile = u"le deuxième chiffre ne doit pas etre égal à zéro pour les lignes mobile "_s;
        using Cas = std::tuple<QStringView, QString, bool, bool>;
        for (const auto &[texte, message, valide, silencieux] :
             {Cas(u"0550112233", {}, true, true), Cas(u"0021445566", {}, true, true),
              Cas(u"0160112233", fixe, false, false), Cas(u"0050112233", mobile, false, false),
              Cas(u"1550112233", zero, false, false), Cas(u"055011223_", souligne, false, false),
              Cas(u"055011223", {}, true, false), Cas(u"0550ABCDEF", {}, true, true),
              Cas(u"0 50112233", {}, false, false), Cas(u"05X0112233", {}, false, false),
              Cas(u"01X0112233", fixe, false, false), Cas(u"", zero, false, false)}) {
            DialogueScenario dialogue;
            if (!message.isEmpty())
                dialogue.attendreAvertissement(message);
            QCOMPARE(CtrlTelephone(texte, dialogue), valide);
            QVERIFY2(TelephoneValide(texte) == silencieux, qPrintable(texte.toString()));
        }
    }

    void mails()
    {
        const QString arobase = u"EMail incorrecte, manque du caractère '@' !!"_s;
        const QString point = u"Adresse Mail incorrecte , manque du caractère '.' !!"_s;
        const std::pair<QStringView, QString> cas[] = {{u"a.b@exemple.dz", {}}, {u"a@b.com", {}},
                                                       {u"a@b.info", point},    {u"a.com", arobase},
                                                       {u"a@bcom", point},      {u"", point}};
        for (const auto &[texte, message] : cas) {
            DialogueScenario dialogue;
            if (!message.isEmpty())
                dialogue.attendreAvertissement(message);
            QCOMPARE(CtrlMail(texte, dialogue), message.isEmpty());
            QCOMPARE(MailValide(texte), message.isEmpty());
        }
    }

    void periodes()
    {
        BornesDePeriode bornes;
        BornesPeriode(u"202303", bornes);
        QCOMPARE(bornes.DateDebutPeriode + bornes.DateFinPeriode, QString()); // March first: both stay empty

        const auto comparer = [&](const QString &code, QDate debut, int mois) {
            BornesPeriode(code, bornes);
            QCOMPARE(bornes.DateDebutPeriode, texteDate(debut));
            QCOMPARE(bornes.DateFinPeriode, texteDate(debut.addMonths(mois).addDays(-1)));
        };
        for (const int annee : {2023, 2024}) {
            for (int mois = 1; mois <= 12; ++mois) {
                if (mois != 3)
                    comparer(u"%1%2"_s.arg(annee).arg(mois, 2, 10, QChar(u'0')), QDate(annee, mois, 1), 1);
            }
            for (int trimestre = 1; trimestre <= 4; ++trimestre)
                comparer(u"%1T%2"_s.arg(annee).arg(trimestre), QDate(annee, 3 * trimestre - 2, 1), 3);
        }
        // What is no period, March too, leaves the last one.
        for (const QString &code : {u"202303"_s, u"202213"_s, u""_s})
            comparer(code, QDate(2024, 10, 1), 3);
    }
};

QTEST_APPLESS_MAIN(TestRules)
#include "test_rules.moc"
