#include "rules/erreurs.h"

#include <utility>

Erreur::Erreur(QString texte) : m_texte(std::move(texte)), m_octets(m_texte.toUtf8()) {}
