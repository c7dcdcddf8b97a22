#include "rules/erreurs.h"

#include <QDir>

#include <utility>

using namespace Qt::StringLiterals;

Erreur::Erreur(QString texte) : m_texte(std::move(texte)), m_octets(m_texte.toUtf8()) {}

ErreurFichier erreurEcriture(const QString &chemin, const QString &cause)
{
    return ErreurFichier(
        u"Le fichier « %1 » ne peut pas être écrit.\n%2"_s.arg(QDir::toNativeSeparators(chemin), cause));
}
