#include "reference/refusajout.h"

#include "rules/dialogue.h"
#include "storage/erreursql.h"

void direRefusAjout(const QString &texte, const ErreurBase &erreur, Dialogue &dialogue)
{
    dialogue.avertir(texte);
    const auto *sql = dynamic_cast<const ErreurSql *>(&erreur);
    if (!sql || sql->fichierEnCause() || sql->occupee())
        dialogue.critique(erreur.texte());
}
