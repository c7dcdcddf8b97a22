#include "reference/textesaisi.h"

#include "rules/dialogue.h"

using namespace Qt::StringLiterals;

QString surUneLigne(QString texte)
{
    texte.replace(u"\r\n"_s, u" "_s);
    texte.replace(u'\n', u' ');
    texte.replace(u'\r', u' ');
    return texte;
}

bool refuserBlancAuDebut(QString &champ, Dialogue &dialogue)
{
    if (!champ.startsWith(u' '))
        return false;
    dialogue.avertir(u"Veuillez à ne pas insérer de blancs au début "_s);
    champ.fill(u' ');
    return true;
}
