#include "storage/installation.h"

#include "storage/connexion.h"
#include "storage/disque.h"
#include "storage/lieux.h"
#include "storage/schema.h"
#include "storage/verrou.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

/// The embedded files are linked in from a static library, where nothing else pulls them. Outside of any
/// namespace: the macro declares a function.
static void initialiserRessources() { Q_INIT_RESOURCE(reference); }

namespace {

[[noreturn]] void echouer(const QString &chemin, const QString &cause)
{
    throw ErreurFatale(u"« %1 » n'a pas pu être créé.\n(%2)"_s.arg(QDir::toNativeSeparators(chemin), cause));
}

void exiger(const QString &chemin, std::error_code erreur)
{
    if (erreur)
        echouer(chemin, causeSysteme(erreur));
}

void creerDossier(const QString &chemin)
{
    exiger(chemin, creerDossierPrive(chemin));
    exiger(chemin, mettreNomsSurDisque(QFileInfo(chemin).absolutePath()));
}

/// The file under its name of work, until it is complete.
QString enTravail(const QString &chemin) { return chemin + u".nouveau"; }

void mettreEnPlace(const QString &chemin)
{
    QFile fichier(enTravail(chemin));
    if (!fichier.rename(chemin)) // never replaces a file
        echouer(chemin, fichier.errorString());
    exiger(chemin, mettreNomsSurDisque(QFileInfo(chemin).absolutePath()));
}

void poserReference(const QString &chemin)
{
    if (QFileInfo::exists(chemin))
        return;
    QFile modele(u":/reference/"_s + QFileInfo(chemin).fileName());
    QFile fichier(enTravail(chemin));
    if (!modele.open(QIODevice::ReadOnly))
        echouer(chemin, modele.errorString());
    const QByteArray octets = modele.readAll();
    if (!creerPrive(fichier) || fichier.write(octets) != octets.size())
        echouer(chemin, fichier.errorString());
    exiger(chemin, mettreSurDisque(fichier));
    fichier.close();
    mettreEnPlace(chemin);
}

/// A journal whose database is gone would be played into the new one. It is put aside, not deleted: rows may
/// be in it.
void ecarterJournaux(const QString &base)
{
    for (const QString &suite : {u"-wal"_s, u"-journal"_s}) {
        const QString journal = base + suite;
        if (!QFileInfo::exists(journal))
            continue;
        QString ecarte = journal + u".ancien";
        for (int i = 2; QFileInfo::exists(ecarte); ++i)
            ecarte = u"%1.ancien%2"_s.arg(journal).arg(i);
        if (!QFile::rename(journal, ecarte))
            echouer(ecarte, u"« %1 » n'a pas pu être écarté"_s.arg(journal));
    }
}

void poserBase(const QString &chemin)
{
    const QString travail = enTravail(chemin);
    for (const QStringView suite : {u"", u"-journal"}) {
        const QString reste = travail + suite;
        if (QFileInfo::exists(reste) && !QFile::remove(reste))
            echouer(reste, u"un reste d'une installation interrompue ne peut pas être supprimé"_s);
    }
    // The engine keeps the rights of the file that it finds, for its journals too.
    if (QFile vide(travail); !creerPrive(vide))
        echouer(chemin, vide.errorString());
    try {
        Connexion cnx;
        cnx.ouvrir(travail);
        Transaction transaction(cnx);
        for (const Table &table : tablesDuSchema()) {
            cnx.definir(table.creation());
            for (const QString &ordre : table.creationIndex())
                cnx.definir(ordre);
        }
        transaction.commit();
    } catch (const ErreurBase &erreur) {
        echouer(chemin, erreur.texte());
    }
    ecarterJournaux(chemin);
    mettreEnPlace(chemin);
}

} // namespace

void installerSiAbsente()
{
    const QString base = cheminBase();
    if (QFileInfo::exists(base))
        return;
    initialiserRessources();
    const QString dossier = QFileInfo(base).absolutePath();
    creerDossier(dossierDas());
    creerDossier(dossier);

    // Several programs may be started at once on a fresh machine.
    Verrou verrou(dossier + u"/installation.verrou"_s);
    if (const std::error_code erreur = verrou.prendre(30'000)) {
        if (erreur == std::errc::timed_out)
            echouer(base, u"Un autre programme est en train de l'installer."_s);
        exiger(dossier + u"/installation.verrou"_s, erreur);
    }
    if (QFileInfo::exists(base))
        return;
    for (const QString &chemin : {cheminBanques(), cheminCommunes(), cheminWilayas(), cheminCountry()})
        poserReference(chemin);
    creerDossier(dossierExpor());
    poserBase(base);
}
