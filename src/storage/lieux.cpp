#include "storage/lieux.h"

#include <QDir>

using namespace Qt::StringLiterals;

QString dossierDas()
{
#ifdef Q_OS_WIN
    return u"C:/DAS_KORVANDEL"_s;
#else
    return QDir::homePath() + u"/DAS_KORVANDEL";
#endif
}

QString cheminBase() { return dossierDas() + u"/Data/das.mdb"; }

QString cheminBanques() { return dossierDas() + u"/Banques.txt"; }

QString cheminCommunes() { return dossierDas() + u"/Communes.txt"; }

QString cheminWilayas() { return dossierDas() + u"/Wilayas.txt"; }

QString cheminCountry() { return dossierDas() + u"/Country.txt"; }

QString dossierExpor() { return dossierDas() + u"/expor"; }

QString nomDeFichier(QString nom)
{
    for (QChar &c : nom) {
        if (c < u' ' || c == u'\x7F' || QStringView(u"/\\:*?\"<>|").contains(c))
            c = u'_';
    }
    return nom;
}
