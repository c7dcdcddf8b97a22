#include "batch/arguments.h"

#include "rules/texte.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#endif

using namespace Qt::StringLiterals;

namespace {

/// The text of these bytes in UTF-8, nothing when they are not.
std::optional<QString> utf8(QByteArrayView octets)
{
    QStringDecoder decodeur(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString texte = decodeur(octets);
    return decodeur.hasError() ? std::nullopt : std::optional(texte);
}

/// In an argument that is no UTF-8 the byte E9 stands as U+DCE9. Such a surrogate is never alone elsewhere.
constexpr char16_t RangOctets = 0xDC00;

bool tientDesOctets(QStringView chemin)
{
    return std::any_of(chemin.begin(), chemin.end(), [](QChar c) { return c.isLowSurrogate(); }) &&
           std::none_of(chemin.begin(), chemin.end(), [](QChar c) { return c.isHighSurrogate(); });
}

QString garderOctets(QByteArrayView octets)
{
    QString chemin;
    for (const char c : octets) {
        const auto octet = static_cast<unsigned char>(c);
        chemin += QChar(octet < 0x80 ? octet : static_cast<char16_t>(RangOctets + octet));
    }
    return chemin;
}

QByteArray octetsDe(QStringView chemin)
{
    QByteArray octets;
    for (const QChar c : chemin)
        octets += static_cast<char>(c.unicode() & 0xFF);
    return octets;
}

#ifdef Q_OS_UNIX
/// A file that is opened by the bytes of its name.
class FichierParOctets : public QFile
{
public:
    explicit FichierParOctets(QByteArray chemin) : m_chemin(std::move(chemin)) {}

    bool open(OpenMode mode) override
    {
        // A pipe must not wait here for somebody who writes to it.
        const int poignee = ::open(m_chemin.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
        if (poignee >= 0)
            return QFile::open(poignee, mode, AutoCloseHandle);
        setErrorString(errno == ENOENT ? u"il n'existe pas."_s : qt_error_string(errno));
        return false;
    }

private:
    QByteArray m_chemin;
};
#endif

} // namespace

QStringList lireArguments([[maybe_unused]] int argc, [[maybe_unused]] char **argv)
{
#ifdef Q_OS_UNIX
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        const std::optional<QString> texte = utf8(argv[i]);
        arguments += texte ? *texte : garderOctets(argv[i]);
    }
    return arguments;
#else
    return QCoreApplication::arguments();
#endif
}

QString nomSansDossier(const QString &chemin)
{
    const QString nom = QFileInfo(QDir::cleanPath(chemin)).fileName(); // "folder/" has the folder's name
    if (!tientDesOctets(nom))
        return nom;
    const QByteArray octets = octetsDe(nom);
    return utf8(octets).value_or(decoder(octets));
}

std::unique_ptr<QFile> fichierDe(const QString &chemin)
{
#ifdef Q_OS_UNIX
    if (tientDesOctets(chemin))
        return std::make_unique<FichierParOctets>(octetsDe(chemin));
#endif
    return std::make_unique<QFile>(QDir::cleanPath(chemin));
}
