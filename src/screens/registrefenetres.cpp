#include "screens/registrefenetres.h"

#include <utility>

void RegistreFenetres::ajouter(const QString &entree, Fabrique fabrique)
{
    m_fabriques.insert(entree, std::move(fabrique));
}
