#include "validators/formats.h"

#include "rules/erreurs.h"
#include "rules/fonds.h"
#include "rules/lecteurlignes.h"
#include "validators/marque.h"
#include "validators/validateurci.h"
#include "validators/validateurdac.h"
#include "validators/validateurdas.h"

#include <QIODevice>

using namespace Qt::StringLiterals;

namespace {

struct Marque
{
    QStringView texte;
    Format format;
};

constexpr Marque marques[] = {
    {fonds::MarqueDas, Format::Das},
    {fonds::MarqueDac, Format::Dac},
    {fonds::MarqueCi1, Format::Ci},
    {fonds::MarqueCi, Format::Ci},
};

} // namespace

QString nomFormat(Format format)
{
    switch (format) {
    case Format::Das:
        return u"DAS"_s;
    case Format::Dac:
        return u"DAC"_s;
    case Format::Ci:
        return u"CI"_s;
    case Format::Inconnu:
        break;
    }
    return u""_s;
}

Format formatDeNom(QStringView nom)
{
    for (const Format format : {Format::Das, Format::Dac, Format::Ci}) {
        if (nom.compare(nomFormat(format), Qt::CaseInsensitive) == 0)
            return format;
    }
    return Format::Inconnu;
}

Format formatDe(QIODevice &source)
{
    LecteurLignes lecteur(source);
    const QString premiere = lecteur.finie() ? QString() : marqueDe(lecteur.lire());
    if (!source.seek(0))
        throw ErreurFichier(u"Lecture du fichier impossible : %1"_s.arg(source.errorString()));
    for (const Marque &marque : marques) {
        if (marque.texte == premiere)
            return marque.format;
    }
    return Format::Inconnu;
}

std::unique_ptr<Validateur> nouveauValidateur(Format format)
{
    switch (format) {
    case Format::Das:
        return std::make_unique<ValidateurDas>();
    case Format::Dac:
        return std::make_unique<ValidateurDac>();
    case Format::Ci:
        return std::make_unique<ValidateurCi>();
    case Format::Inconnu:
        break;
    }
    return nullptr;
}
