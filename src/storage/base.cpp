#include "storage/base.h"

#include "storage/erreursql.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <system_error>

using namespace Qt::StringLiterals;

namespace {

/// Above this size, far beyond that of most employers, the look at every page would make the start slow (200
/// ms for 35 MB); damage is then met when the page is read.
constexpr qint64 tailleVerifiee = 16 * 1024 * 1024;

[[noreturn]] void refuser(const QString &chemin, const QString &cause)
{
    throw ErreurFatale(u"La base de données « %1 » ne peut pas être ouverte.\n%2"_s.arg(
        QDir::toNativeSeparators(chemin), cause));
}

QString texteSysteme(std::errc erreur)
{
    return QString::fromLocal8Bit(std::make_error_code(erreur).message());
}

/// An administrator may write where nobody has the right to: the mark on the file counts for him as well.
bool inscriptible(const QFileInfo &chose)
{
    const auto droits = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return chose.isWritable() && (chose.permissions() & droits);
}

/// What can be told without the database engine, which would take an empty file for a new database.
void examinerFichier(const QString &chemin)
{
    const QFileInfo fichier(chemin);
    if (!fichier.exists())
        refuser(chemin,
                u"Le fichier n'existe pas.\n(%1)"_s.arg(texteSysteme(std::errc::no_such_file_or_directory)));
    if (!fichier.isFile())
        refuser(chemin, u"Ce n'est pas un fichier.\n(%1)"_s.arg(texteSysteme(std::errc::is_a_directory)));

    QFile lu(chemin);
    if (!lu.open(QIODevice::ReadOnly))
        refuser(chemin, u"Le fichier ne peut pas être lu.\n(%1)"_s.arg(lu.errorString()));
    const QByteArray marque = QByteArrayLiteral("SQLite format 3") + '\0';
    const QByteArray tete = lu.read(marque.size());
    if (tete.size() < marque.size() && lu.error() != QFileDevice::NoError)
        refuser(chemin, u"Le fichier ne peut pas être lu.\n(%1)"_s.arg(lu.errorString()));
    if (tete != marque)
        refuser(chemin, u"Le fichier n'est pas une base de données.\n(file is not a database)"_s);

    const QString lectureSeule = u"%1 est en lecture seule.\n(%2)"_s;
    if (!inscriptible(fichier))
        refuser(chemin, lectureSeule.arg(u"Le fichier"_s, texteSysteme(std::errc::permission_denied)));
#ifdef Q_OS_UNIX // the read-only mark of a folder means something else on Windows
    if (!inscriptible(QFileInfo(fichier.absolutePath())))
        refuser(chemin, lectureSeule.arg(u"Son dossier"_s, texteSysteme(std::errc::permission_denied)));
#endif
}

/// Looks at every page. Rows that break a rule of their table are no damage: they are the clerk's to mend.
void examinerPages(Connexion &cnx)
{
    Requete constats = cnx.lire(u"PRAGMA quick_check"_s);
    while (constats.suivante()) {
        const QString constat = constats.texte(0);
        if (constat != u"ok" && !constat.startsWith(u"CHECK constraint failed") &&
            !constat.startsWith(u"NULL value in"))
            refuser(cnx.chemin(), u"Le fichier est endommagé.\n(%1)"_s.arg(constat.trimmed()));
    }
}

void ouvrir(Connexion &cnx, const QString &chemin)
{
    cnx.ouvrir(chemin);
    // Nothing below writes into the file before all looks are done.
    cnx.existe(u"SELECT 1 FROM sqlite_master"_s);
    if (QFileInfo(chemin).size() <= tailleVerifiee)
        examinerPages(cnx);
    Transaction(cnx).annuler();

    cnx.existe(u"PRAGMA journal_mode = WAL"_s);
    cnx.existe(u"PRAGMA synchronous = FULL"_s);
    cnx.existe(u"PRAGMA foreign_keys = OFF"_s);
}

/// The engine does not wait for a program that is just closing the file, or making its log the first time.
void ouvrirEnAttendant(Connexion &cnx, const QString &chemin)
{
    QElapsedTimer attente;
    attente.start();
    while (true) {
        try {
            return ouvrir(cnx, chemin);
        } catch (const ErreurSql &erreur) {
            if (!erreur.occupee() || attente.elapsed() >= cnx.attente())
                throw;
        }
        QThread::msleep(10);
    }
}

} // namespace

Base::Base()
    : CmdSql(Cnx), RsSalarie(Cnx, u"salarie"_s), RsNationalite(Cnx, u"Nationalite"_s),
      RsBanque(Cnx, u"Banque"_s), RsLigneDas(Cnx, u"ligne_das"_s), RsDetailCi(Cnx, u"Detail_CI"_s),
      RsEnteteDas(Cnx, u"entete_das"_s,
                  {{u"num_emp"_s, Qt::DescendingOrder}, {u"annee"_s, Qt::DescendingOrder}, {u"Type"_s}}),
      RsEnteteCi(Cnx, u"Entete_CI"_s,
                 {{u"N_employeur"_s, Qt::DescendingOrder}, {u"date_arret"_s, Qt::DescendingOrder}}),
      RsAnnee(Cnx, u"annee"_s, {{u"annee"_s, Qt::DescendingOrder}}), RsEmployeur(Cnx, u"employeur"_s),
      RsPeriode(Cnx, u"Periode"_s, {{u"Code"_s, Qt::DescendingOrder}}),
      RsEnteteDac(
          Cnx, u"Entete_Dac"_s,
          {{u"NumEmployeur"_s, Qt::DescendingOrder}, {u"Periode"_s, Qt::DescendingOrder}, {u"Type_Dac"_s}}),
      RsLigneDac(Cnx, u"Ligne_Dac"_s,
                 {{u"NumEmployeur"_s}, {u"Periode"_s}, {u"Type_dac"_s, Qt::DescendingOrder}}),
      RsCommune(Cnx, u"Commune"_s), RsWilaya(Cnx, u"Wilaya"_s)
{
}

bool Base::declarationsPossibles() const
{
    return RsAnnee.estOuvert() && !RsAnnee.vide() && RsEmployeur.estOuvert() && !RsEmployeur.vide();
}

void Base::OuvrirBase(const QString &chemin)
{
    examinerFichier(chemin);
    try {
        ouvrirEnAttendant(Cnx, chemin);
    } catch (const ErreurFatale &) {
        Cnx.fermer();
        throw;
    } catch (const ErreurBase &erreur) {
        Cnx.fermer();
        if (erreur.texte().contains(chemin))
            throw ErreurFatale(erreur.texte());
        refuser(chemin, erreur.texte());
    }
}
