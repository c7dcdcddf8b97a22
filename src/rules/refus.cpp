#include "rules/refus.h"

#include "rules/dialogue.h"

Refus refuser(Dialogue &dialogue, QStringView controle, const QString &texte, const QString &titre)
{
    dialogue.avertir(texte, titre);
    return {controle, texte};
}
