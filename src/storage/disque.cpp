#include "storage/disque.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#else
#include <io.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr QFile::Permissions lectureEcriture = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions desAutres = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                         QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;

/// Takes the rights of others away and gives none: what is read-only stays so.
void fermer(const QFileInfo &chose)
{
    const QFile::Permissions droits = chose.permissions();
    if (droits & desAutres)
        QFile::setPermissions(chose.filePath(), droits & (lectureEcriture | QFile::ExeOwner));
}

std::error_code erreurDuSysteme() { return {errno != 0 ? errno : EIO, std::generic_category()}; }

/// @param refuse whether the system refused to bring something to the disk
std::error_code bilan(bool refuse)
{
    if (!refuse || errno == EINVAL || errno == ENOTSUP) // a pipe, a disk that has no such thing
        return {};
    return erreurDuSysteme();
}

} // namespace

bool creerPrive(QFile &fichier)
{
    if (!fichier.open(QIODevice::WriteOnly | QIODevice::Truncate, lectureEcriture))
        return false;
    if (QFileInfo(fichier).isFile()) // a device has its rights from elsewhere
        fichier.setPermissions(lectureEcriture);
    return true;
}

std::error_code creerDossierPrive(const QString &dossier)
{
    std::error_code erreur;
    const std::filesystem::path chemin(dossier.toStdU16String());
    std::filesystem::create_directories(chemin, erreur);
    if (!erreur)
        fermer(QFileInfo(dossier));
    return erreur;
}

void fermerAuxAutres(const QString &dossier)
{
#ifdef Q_OS_UNIX
    fermer(QFileInfo(dossier));
    QDirIterator parcours(dossier, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks,
                          QDirIterator::Subdirectories);
    while (parcours.hasNext()) {
        parcours.next();
        fermer(parcours.fileInfo());
    }
#else
    Q_UNUSED(dossier)
#endif
}

std::error_code mettreSurDisque(QFile &fichier)
{
    if (!fichier.flush())
        return erreurDuSysteme();
#ifdef Q_OS_UNIX
    return bilan(fsync(fichier.handle()) != 0);
#else
    return bilan(_commit(fichier.handle()) != 0);
#endif
}

std::error_code mettreNomsSurDisque(const QString &dossier)
{
#ifdef Q_OS_UNIX
    const int ouvert = open(QFile::encodeName(dossier).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (ouvert < 0)
        return {}; // files may be added to a folder that can't be read
    const std::error_code erreur = bilan(fsync(ouvert) != 0);
    close(ouvert);
    return erreur;
#else
    Q_UNUSED(dossier) // the file systems of Windows do it by themselves
    return {};
#endif
}

QString causeSysteme(std::error_code erreur)
{
    const QString systeme = QString::fromLocal8Bit(erreur.message());
    const auto cause = [&](const QString &texte) { return u"%1\n(%2)"_s.arg(texte, systeme); };
    if (erreur == std::errc::permission_denied || erreur == std::errc::operation_not_permitted)
        return cause(u"Vous n'avez pas le droit d'y écrire."_s);
    if (erreur == std::errc::read_only_file_system)
        return cause(u"Le disque est en lecture seule."_s);
    if (erreur == std::errc::no_space_on_device)
        return cause(u"Le disque est plein."_s);
    if (erreur == std::errc::is_a_directory)
        return cause(u"Un dossier porte déjà ce nom."_s);
    if (erreur == std::errc::not_a_directory || erreur == std::errc::file_exists)
        return cause(u"Un fichier est à la place d'un dossier."_s);
    return cause(u"Le système l'a refusé."_s);
}
