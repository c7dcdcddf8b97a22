#include "das/screens/frmimpligne.h"

#include "das/importdas.h"
#include "screens/contexte.h"

using namespace Qt::StringLiterals;

FrmImpLigne::FrmImpLigne(Contexte &contexte)
    : FenetreImport(contexte, u"FrmImpLigne"_s, u"Importation données DAS"_s,
                    u"Veuillez choisir le fichier DAS, d'une version antérieure (1.0 ou 2.0), avec le bouton "
                    "« Importer... »."_s)
{
}

void FrmImpLigne::importer()
{
    bool fait = false;
    executer([&](const Avancement &avancer) {
        fait = importerDas(m_contexte.base, m_contexte.dialogue, avancer);
    });
    if (!fait)
        return;
    m_contexte.menu.accorderDeclarations();
    close();
    m_contexte.menu.ouvrir(u"wImp"_s); // the employer that has come is to be completed there
}
