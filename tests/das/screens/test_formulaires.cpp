#include "das/formulaires.h"
#include "rules/erreurs.h"
#include "screens/francais.h"
#include "screens/impression.h"
#include "screens/miseenpage.h"
#include "tests/das/basedas.h"
#include "tests/screens/banc.h"

#include <QAction>
#include <QApplication>
#include <QPaintEngine>
#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A sheet in hundredths of a millimetre that keeps the words painted on it, with their places.
class Releve : public QPaintDevice, private QPaintEngine
{
public:
    struct Mot
    {
        QString texte;
        qreal gauche, droite, y;
    };

    Releve(const MiseEnPage &pages, int page) : QPaintEngine(AllFeatures)
    {
        QPainter peintre(this);
        pages.peindre(peintre, page,
                      {QPointF(), pages.feuille().fullRect(QPageLayout::Millimeter).size() * 100});
    }

    QList<Mot> mots;
    QStringList textes;

protected:
    QPaintEngine *paintEngine() const override { return const_cast<Releve *>(this); }
    int metric(PaintDeviceMetric mesure) const override
    {
        return mesure == PdmDevicePixelRatioScaled ? 0x10000 : mesure == PdmDepth ? 32 : 30'000;
    }

private:
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &) override {}
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { QFAIL("no pixmap"); }
    void drawTextItem(const QPointF &place, const QTextItem &mot) override
    {
        const QPointF coin = painter()->combinedTransform().map(place);
        mots += {mot.text(), coin.x(), coin.x() + mot.width(), coin.y()};
        textes += mot.text();
    }
};

} // namespace

/// The printed forms of the annual declaration, from the rows to the words on the sheets.
class TestFormulaires : public QObject
{
    Q_OBJECT

    using Formulaire = decltype(DataReport1);

    std::unique_ptr<BancSur<BaseDas>> m_banc;

    Base &base() { return m_banc->base; }
    std::optional<Document> faire(Formulaire &formulaire)
    {
        return formulaire(base(), base().RsEnteteDas.courant(), m_banc->dialogue);
    }
    /// The words of the first page.
    QString mots(Formulaire &formulaire)
    {
        return Releve(MiseEnPage(*faire(formulaire)), 1).textes.join(u'|');
    }

private slots:
    void initTestCase() { parlerFrancais(*qApp); }
    void init() { m_banc = std::make_unique<BancSur<BaseDas>>(); }
    void cleanup() { QVERIFY(m_banc->dialogue.acheve()); }

    void formulaires()
    {
        m_banc->ajouter(BaseDas::numero(1), 1, {{u"nom"_s, u"D'ARC & CO"}});
        for (const int type : {1, 3}) { // the other declaration's leaver is not counted
            m_banc->entete(type);
            m_banc->ligne(BaseDas::numero(1), 1, {{u"type_date_es"_s, u"S"}}, type);
        }
        m_banc->accorder();
        for (const int type : {1, 3}) {
            base().RsEnteteDas.allerA(base().RsEnteteDas.chercher({{u"Type"_s, type}}));
            const QString condition = type == 1 ? QString() : u"|(Complémentaire)"_s;
            const QString declaration = mots(DataReport1);
            for (const QString &morceau :
                 {u"SALARIÉS (DAS)"_s + condition + u"|(A émettre"_s,
                  u"|2024|Nom ou raison sociale de l'entreprise|SARL L'Étoile|Numéro employeur|12345678|"
                  "Adresse de l'employeur|3, rue d'en bas|Numéro de téléphone|Montant total des salaires|"
                  "600 000.00|Nombre de travailleurs employés|pendant l'année de référence|1|Nombre de "
                  "travailleurs débauchés|pendant l'année de réference|1|Date"_s})
                QVERIFY2(declaration.contains(morceau), qPrintable(declaration));
            const QString lignes = mots(DataReport3);
            QVERIFY2(lignes.contains(u"|D'ARC & CO|JEAN|04/03/1988|12 M|600 000.00|MAÇON|"),
                     qPrintable(lignes));
            QCOMPARE(lignes.contains(u"(Complémentaire)"), !condition.isEmpty());
            QCOMPARE(mots(DataReport2),
                     u"KORVANDEL|Employeur|12345678|SARL L'Étoile|Année|2024|Numéro:|3, rue d'en bas"_s +
                         condition);
        }
        base().Cnx.executer(u"DELETE FROM employeur"_s);
        for (Formulaire *formulaire : {DataReport1, DataReport2, DataReport3})
            QVERIFY_THROWS_EXCEPTION(ErreurBase, faire(*formulaire));
    }

    void sommesDifferentes()
    {
        const QString sommes = u"La somme des salaires annuels ou le nombre de salaries saisis dans l'entête "
                               "ne correspondent pas aux sommes calculées sur les lignes de cette DAS.\n"_s;
        m_banc->entete(1, {}, 7);
        m_banc->dialogue.attendreAvertissement(sommes + u"Verifiez vos lignes DAS SVP"_s);
        QVERIFY(!faire(DataReport1));
        for (const bool oui : {false, true}) {
            m_banc->dialogue.attendreQuestion(sommes + u"Voulez vous imprimer malgrès tout?"_s, oui);
            QCOMPARE(faire(DataReport3).has_value(), oui);
        }
        QVERIFY(faire(DataReport2));
    }

    /// Null figures of a header without lines.
    void enteteVide()
    {
        m_banc->entete();
        const QString texte = mots(DataReport1);
        QVERIFY2(texte.contains(u"|0.00|Nombre de travailleurs employés|pendant l'année de référence|0|"),
                 qPrintable(texte));
        QVERIFY(mots(DataReport3).endsWith(u"|Page 1 de 1"));
    }

    /// Addresses that wrap, on pages of which none parts a row or lacks its head.
    void pages()
    {
        m_banc->entete();
        for (int i = 1; i <= 90; ++i) {
            const QString adresse = u"debut%1 "_s.arg(i) + QString(i % 33, u'W') + u" %1fin"_s.arg(i);
            m_banc->ajouter(BaseDas::numero(i), 1, {{u"adresse"_s, adresse}});
            m_banc->ligne(BaseDas::numero(i), 1, {{u"sal_annuel"_s, Currency::deEntier(37 * i * i)}});
        }
        m_banc->accorder();
        const MiseEnPage pages(*faire(DataReport3));
        QVERIFY(pages.pages() > 2);
        int rang = 1;
        for (int page = 1; page <= pages.pages(); ++page) {
            const Releve releve(pages, page);
            const QString texte = releve.textes.join(u'|');
            QVERIFY2(texte.startsWith(u"DAS KORVANDEL|Lignes DAS|Employeur|SARL L'Étoile|Année|2024|Numéro "
                                      "employeur|12345678|DAS|1| N° SS| Nom| Prénom|Date de|naissance| "),
                     qPrintable(texte));
            QVERIFY(texte.endsWith(u"|Page %1 de %2"_s.arg(page).arg(pages.pages())));
            qreal droite = 0;
            qreal bas = 0;
            for (const Releve::Mot &mot : releve.mots) {
                QVERIFY2(mot.gauche >= 1000 && mot.droite <= 28'700 && mot.y <= 20'000,
                         qPrintable(mot.texte));
                if (mot.texte == BaseDas::numero(rang)) {
                    QVERIFY(mot.y > bas);
                } else if (mot.texte ==
                           formatMasque(Currency::deEntier(37 * rang * rang), u"## ### ### ###.00")) {
                    QVERIFY(droite == 0 || std::abs(mot.droite - droite) < 2);
                    droite = mot.droite;
                } else if (mot.texte.endsWith(u"%1fin"_s.arg(rang))) {
                    bas = mot.y;
                    ++rang;
                }
            }
            QVERIFY2(droite > 0, "no amounts");
            QVERIFY2(!texte.contains(BaseDas::numero(rang)), "a row is parted");
        }
        QCOMPARE(rang, 91);
    }

    /// Saved from the preview: words with their font in a file of the owner alone, in place of what was
    /// there.
    void apercu()
    {
        const QString pdf = m_banc->fichier(u"jaquette.pdf"_s, "before");
        m_banc->entete();
        m_banc->dialogue.attendreDestination(u"12345678_DAS_2024_CD.pdf"_s, pdf);
        m_banc->dialogue.attendreInformation(u"Document enregistré vers "_s + pdf);
        m_banc->dialogue.attendreDestination(u"12345678_DAS_2024_CD.pdf"_s, pdf + u"/non"_s);
        m_banc->dialogue.attendreCritique(
            u"Le fichier « %1/non » ne peut pas être écrit.\nNot a directory"_s.arg(pdf));
        dansLaFenetre([](QWidget &apercu) {
            QCOMPARE(apercu.objectName() + u'|' + apercu.windowTitle(), u"DataReport2|Jaquette CD"_s);
            apercu.findChild<QAction *>(u"EnregistrerPdf"_s)->trigger();
            apercu.findChild<QAction *>(u"EnregistrerPdf"_s)->trigger();
        });
        montrerApercu(*faire(DataReport2), m_banc->contexte, nullptr);

        QFile fichier(pdf);
        QCOMPARE(fichier.permissions() & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteOther),
                 QFile::Permissions());
        QVERIFY(fichier.open(QIODevice::ReadOnly));
        const QByteArray octets = fichier.readAll();
        QVERIFY(octets.startsWith("%PDF") && octets.contains("/FontFile2") && octets.contains("/ToUnicode"));
        QVERIFY(!octets.contains("/Subtype /Image"));
    }
};

QTEST_MAIN(TestFormulaires)
#include "test_formulaires.moc"
