#include "shell/entreesdemenu.h"

namespace {

constexpr bool SousMenu = true;
constexpr bool Permise = true;
constexpr bool Eteinte = false;
constexpr bool Coche = true;
constexpr auto SansIcone = QStyle::SP_CustomBase;

// clang-format off
constexpr EntreeDeMenu Entrees[] = {
    {u"wFich", u"&Fichier", 0, nullptr, SousMenu},
    {u"wannee", u"Table Campagne", 'P', u"wFich", {}, Permise, QStyle::SP_FileDialogDetailedView},
    {u"wImp", u"Table employeur", 'E', u"wFich", {}, Permise, QStyle::SP_FileDialogDetailedView},
    {u"wsal", u"Table Salarié", 'S', u"wFich", {}, Permise, QStyle::SP_FileDialogDetailedView},
    {u"wbnq", u"Table Banque", 'B', u"wFich", {}, Permise, QStyle::SP_FileDialogDetailedView},
    {u"wPeriode", u"Table Periode", 0, u"wFich", {}, Eteinte, QStyle::SP_FileDialogDetailedView, u"wActiverDac"},
    {u"wimport", u"Importer Données", 0, u"wFich", SousMenu, Permise, QStyle::SP_DialogOpenButton},
    {u"wImpFichSal", u"Fichier Salariés", 'R', u"wimport", {}, Eteinte, SansIcone, u"wActiverOutils"},
    {u"wImpTabNat", u"Fichier nationalité", 0, u"wimport"},
    {u"wImpDas", u"Fichier salarié", 'L', u"wimport"},
    {u"wquit", u"Quitter", 'Q', u"wFich", {}, Permise, QStyle::SP_DialogCloseButton},

    {u"wDecl", u"Déclarations", 0, nullptr, SousMenu},
    {u"das", u"&DAS", 0, u"wDecl", SousMenu},
    {u"wdas", u"Traitement des DAS", 'T', u"das", {}, Permise, QStyle::SP_FileDialogContentsView},
    {u"wTransfLgDas", u"Transfert Lignes DAS", 'G', u"das", {}, Permise, QStyle::SP_ArrowRight},
    {u"wdetail", u"Détail Das", 0, u"das", {}, Eteinte},
    {u"wci", u"Chômage Intempérie", 0, u"wDecl", SousMenu},
    {u"wTraitCi", u"Traitement CI", 'I', u"wci", {}, Permise, QStyle::SP_FileDialogContentsView},
    {u"wdecmentrim", u"Déclaration mensuelle ou trimestrielle", 0, u"wDecl", SousMenu, Eteinte, SansIcone, u"wActiverDac"},
    {u"wTraitDecNom", u"Traitement Déclaration Nominative", 0, u"wdecmentrim", {}, Permise, QStyle::SP_FileDialogContentsView},
    {u"wTransLgDac", u"Transfert Ligne Dac", 0, u"wdecmentrim", {}, Permise, QStyle::SP_ArrowRight},

    {u"woutil", u"&Outils", 0, nullptr, SousMenu},
    {u"wvalidate", u"Validation du fichier DAS", 'O', u"woutil", {}, Permise, QStyle::SP_FileDialogInfoView},
    {u"wValidListNom", u"Validation du Fichier Liste Nominative", 0, u"woutil", {}, Permise, QStyle::SP_FileDialogInfoView},
    {u"wValideDac", u"Validation de la DAC NOMINATIVE", 0, u"woutil", {}, Eteinte, QStyle::SP_FileDialogInfoView, u"wActiverDac"},
    // "Générerateur" is meant: the entry is known by that name.
    {u"wGen", u"Générerateur de clés", 0, u"woutil", {}, Eteinte, SansIcone, u"wActiverOutils"},
    {u"wActiverDac", u"Activer la déclaration nominative", 0, u"woutil", {}, Permise, SansIcone, nullptr, Coche},
    {u"wActiverOutils", u"Activer les outils complémentaires", 0, u"woutil", {}, Permise, SansIcone, nullptr, Coche},

    {u"whelp", u"&Aide", 0, nullptr, SousMenu, Eteinte},
    {u"wman", u"Manuel d'utilisation", 0, u"whelp", {}, Eteinte, QStyle::SP_DialogHelpButton},
};
// clang-format on

} // namespace

std::span<const EntreeDeMenu> entreesDeMenu() { return Entrees; }
