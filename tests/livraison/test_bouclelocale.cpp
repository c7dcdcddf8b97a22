// This program links the library instead of preloading it: the effect on its own servers is the same.

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

class TestBoucleLocale : public QObject
{
    Q_OBJECT

private slots:
    void serveursSurToutesLesAdresses_data();
    void serveursSurToutesLesAdresses();
    void adresseChoisieIntacte();
};

void TestBoucleLocale::serveursSurToutesLesAdresses_data()
{
    QTest::addColumn<QHostAddress>("demandee");
    QTest::newRow("IPv4") << QHostAddress(QHostAddress::AnyIPv4);
    QTest::newRow("both families, as the VNC platform does") << QHostAddress(QHostAddress::Any);
}

void TestBoucleLocale::serveursSurToutesLesAdresses()
{
    QFETCH(QHostAddress, demandee);
    QTcpServer serveur;
    QVERIFY2(serveur.listen(demandee), qPrintable(serveur.errorString()));

    QTcpSocket local;
    local.connectToHost(QHostAddress::LocalHost, serveur.serverPort());
    QVERIFY2(local.waitForConnected(5000), qPrintable(local.errorString()));

    // A second address of this machine stands for those that the network reaches.
    QTcpSocket autre;
    autre.connectToHost(QHostAddress(QStringLiteral("127.0.0.2")), serveur.serverPort());
    QVERIFY(!autre.waitForConnected(5000));
    QCOMPARE(autre.error(), QAbstractSocket::ConnectionRefusedError);
}

void TestBoucleLocale::adresseChoisieIntacte()
{
    const QHostAddress voisine(QStringLiteral("127.0.0.2"));
    QTcpServer serveur;
    QVERIFY2(serveur.listen(voisine), qPrintable(serveur.errorString()));
    QTcpSocket socket;
    socket.connectToHost(voisine, serveur.serverPort());
    QVERIFY2(socket.waitForConnected(5000), qPrintable(socket.errorString()));
}

QTEST_GUILESS_MAIN(TestBoucleLocale)
#include "test_bouclelocale.moc"
