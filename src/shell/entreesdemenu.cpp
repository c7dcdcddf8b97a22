#include "shell/entreesdemenu.h"

#include "ci/screens/frmentci.h"
#include "dac/screens/frmdecnom.h"
#include "dac/screens/frmexpdac.h"
#include "das/screens/frmentdas.h"
#include "das/screens/frmexpdas.h"
#include "das/screens/frmimpligne.h"
#include "employees/screens/frmimpnat.h"
#include "employees/screens/frmimpsal.h"
#include "employees/screens/frmsalarie.h"
#include "reference/screens/frm_bnq.h"
#include "reference/screens/frm_imp.h"
#include "reference/screens/frmannee.h"
#include "reference/screens/frmperiode.h"
#include "tools/screens/frmgencle.h"
#include "validators/screens/frmdacvalide.h"
#include "validators/screens/frmdasvalide.h"
#include "validators/screens/frmfileci.h"

namespace {

template <typename Ecran>
QWidget *ecran(Contexte &contexte)
{
    return new Ecran(contexte);
}

template <typename Ecran>
QWidget *transfert(Contexte &contexte)
{
    return EcranTransfert::preparer<Ecran>(contexte);
}

constexpr bool Permise = true;
constexpr bool Eteinte = false;
constexpr bool Coche = true;
constexpr auto SansIcone = QStyle::SP_CustomBase;

} // namespace

QList<EntreeDeMenu> entreesDeMenu()
{
    // clang-format off
    return {
        {u"wFich", u"&Fichier", 0, nullptr},
        {u"wannee", u"Table Campagne", 'P', u"wFich", ecran<frmannee>, Permise, QStyle::SP_FileDialogDetailedView},
        {u"wImp", u"Table employeur", 'E', u"wFich", ecran<Frm_imp>, Permise, QStyle::SP_FileDialogDetailedView},
        {u"wsal", u"Table Salarié", 'S', u"wFich", ecran<frmsalarie>, Permise, QStyle::SP_FileDialogDetailedView},
        {u"wbnq", u"Table Banque", 'B', u"wFich", ecran<Frm_BNQ>, Permise, QStyle::SP_FileDialogDetailedView},
        {u"wPeriode", u"Table Periode", 0, u"wFich", ecran<frmPeriode>, Eteinte, QStyle::SP_FileDialogDetailedView, u"wActiverDac"},
        {u"wimport", u"Importer Données", 0, u"wFich", {}, Permise, QStyle::SP_DialogOpenButton},
        {u"wImpFichSal", u"Fichier Salariés", 'R', u"wimport", ecran<FrmImpSal>, Eteinte, SansIcone, u"wActiverOutils"},
        {u"wImpTabNat", u"Fichier nationalité", 0, u"wimport", ecran<FrmImpNat>},
        {u"wImpDas", u"Fichier salarié", 'L', u"wimport", ecran<FrmImpLigne>},
        {u"wquit", u"Quitter", 'Q', u"wFich", {}, Permise, QStyle::SP_DialogCloseButton},

        {u"wDecl", u"Déclarations", 0, nullptr},
        {u"das", u"&DAS", 0, u"wDecl"},
        {u"wdas", u"Traitement des DAS", 'T', u"das", ecran<frmentdas>, Permise, QStyle::SP_FileDialogContentsView},
        {u"wTransfLgDas", u"Transfert Lignes DAS", 'G', u"das", transfert<frmexpdas>, Permise, QStyle::SP_ArrowRight},
        {u"wdetail", u"Détail Das", 0, u"das", {}, Eteinte},
        {u"wci", u"Chômage Intempérie", 0, u"wDecl"},
        {u"wTraitCi", u"Traitement CI", 'I', u"wci", ecran<FrmEntCi>, Permise, QStyle::SP_FileDialogContentsView},
        {u"wdecmentrim", u"Déclaration mensuelle ou trimestrielle", 0, u"wDecl", {}, Eteinte, SansIcone, u"wActiverDac"},
        {u"wTraitDecNom", u"Traitement Déclaration Nominative", 0, u"wdecmentrim", ecran<frmDecNom>, Permise, QStyle::SP_FileDialogContentsView},
        {u"wTransLgDac", u"Transfert Ligne Dac", 0, u"wdecmentrim", transfert<frmexpdac>, Permise, QStyle::SP_ArrowRight},

        {u"woutil", u"&Outils", 0, nullptr},
        {u"wvalidate", u"Validation du fichier DAS", 'O', u"woutil", ecran<FrmDasValide>, Permise, QStyle::SP_FileDialogInfoView},
        {u"wValidListNom", u"Validation du Fichier Liste Nominative", 0, u"woutil", ecran<FrmFileCI>, Permise, QStyle::SP_FileDialogInfoView},
        {u"wValideDac", u"Validation de la DAC NOMINATIVE", 0, u"woutil", ecran<FrmDacValide>, Eteinte, QStyle::SP_FileDialogInfoView, u"wActiverDac"},
        // "Générerateur" is meant: the entry is known by that name.
        {u"wGen", u"Générerateur de clés", 0, u"woutil", ecran<FrmGenCle>, Eteinte, SansIcone, u"wActiverOutils"},
        {u"wActiverDac", u"Activer la déclaration nominative", 0, u"woutil", {}, Permise, SansIcone, nullptr, Coche},
        {u"wActiverOutils", u"Activer les outils complémentaires", 0, u"woutil", {}, Permise, SansIcone, nullptr, Coche},

        {u"whelp", u"&Aide", 0, nullptr, {}, Eteinte},
        {u"wman", u"Manuel d'utilisation", 0, u"whelp", {}, Eteinte, QStyle::SP_DialogHelpButton},
    };
    // clang-format on
}
