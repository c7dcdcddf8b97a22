#pragma once

#include <QStringView>

/// One employee of the demonstration as he is keyed in, with his lines of the declarations. Dates are
/// ddmmyyyy.
struct Personne
{
    const char16_t *numero; // empty for the newcomer, who has none yet
    const char16_t *nom, *prenom, *sexe, *naissance;
    const char16_t *wilaya, *commune, *situation;
    const char16_t *nationalite; // of a foreigner; empty for a national
    const char16_t *acte, *nin;
    const char16_t *prenomPere, *nomMere, *prenomMere;
    const char16_t *profession, *adresse, *ville, *codePostal, *telephone, *ccp;
    const char16_t *salaire, *duree, *mouvement, *sens;
    const char16_t *assiette, *jours; // of the quarter; empty for who is not in it
};

// clang-format off
inline constexpr Personne Personnel[] = {
    {u"780412100067", u"AIT SAID", u"KARIM", u"M", u"14031978", u"15", u"1501", u"M", u"", u"00412", u"109781501004120011", u"AMAR", u"BELKACEM", u"OURDIA", u"CHEF DE CHANTIER", u"12 RUE DES FRÈRES ABBAS", u"ALGER", u"16000", u"0550112201", u"120441085", u"1320000", u"12m", u"01092012", u"E", u"330000", u"66"},
    {u"851287113735", u"BENALI", u"NADIA", u"F", u"02111985", u"16", u"1601", u"M", u"", u"01287", u"209851601012870018", u"OMAR", u"HADDAD", u"SALIHA", u"COMPTABLE", u"4 CHEMIN DE LA MADELEINE", u"ALGER", u"16000", u"0550112202", u"130312386", u"984000.50", u"12m", u"15012015", u"E", u"246000.25", u"66"},
    {u"902310127450", u"BOUZID", u"MOURAD", u"M", u"23061990", u"06", u"0601", u"C", u"", u"02310", u"109900601023100025", u"RACHID", u"MANSOURI", u"ZOHRA", u"MAÇON", u"CITÉ 200 LOGEMENTS BT 7", u"BEJAIA", u"06000", u"0660112203", u"140183640", u"612500.25", u"12m", u"01072023", u"E", u"153000", u"66"},
    {u"690098141143", u"CHERIF", u"YACINE", u"M", u"30011969", u"25", u"2501", u"M", u"", u"00098", u"109692501000980032", u"TAHAR", u"LAMRI", u"FATMA", u"GRUTIER", u"17 RUE LARBI BEN MHIDI", u"CONSTANTINE", u"25000", u"0770112204", u"150054941", u"880000", u"314j", u"01031998", u"E", u"220000", u"66"},
    {u"943345154832", u"DJEBBAR", u"SAMIR", u"M", u"19081994", u"31", u"3101", u"C", u"", u"03345", u"109943101033450039", u"ALI", u"MEZIANE", u"HOURIA", u"FERRAILLEUR", u"8 BOULEVARD DE LA SOUMMAM", u"ORAN", u"31000", u"0550112205", u"159926240", u"455000", u"200j", u"02102023", u"E", u"136500", u"66"},
    {u"821954168527", u"HAMIDI", u"LEÏLA", u"F", u"07051982", u"09", u"0901", u"M", u"", u"01954", u"209820901019540046", u"SAÏD", u"KACI", u"AÏCHA", u"MÉTREUR", u"22 AVENUE KRITLI MOKHTAR", u"BLIDA", u"09000", u"0660112206", u"169797594", u"1045000", u"12m", u"01042010", u"E", u"261000", u"66"},
    {u"752760182241", u"KHELIFI", u"ABDELKADER", u"M", u"11121975", u"16", u"1601", u"M", u"", u"02760", u"109751601027600053", u"MOHAMED", u"SAHRAOUI", u"KHEIRA", u"COFFREUR", u"3 RUE HASSIBA BEN BOUALI", u"ALGER", u"16000", u"0770112207", u"179668895", u"540000.75", u"8m", u"29022024", u"S", u"", u""},
    {u"884021195932", u"LOUNIS", u"FARID", u"M", u"25091988", u"15", u"1501", u"M", u"", u"04021", u"109881501040210060", u"HOCINE", u"OULD ALI", u"TASSADIT", u"ÉLECTRICIEN", u"CITÉ DES GENÊTS VILLA 14", u"TIZI OUZOU", u"15000", u"0550112208", u"189540117", u"730000", u"12m", u"01072023", u"E", u"182500", u"66"},
    {u"971533209630", u"MEBARKI", u"SOFIANE", u"M", u"05041997", u"25", u"2501", u"C", u"", u"01533", u"109972501015330067", u"NACER", u"ZEROUAL", u"DALILA", u"MANOEUVRE", u"RUE DE L'AQUEDUC N 31", u"CONSTANTINE", u"25000", u"0660112209", u"199411418", u"38500.10", u"173h", u"03062024", u"E", u"38500.1", u"20"},
    {u"839909223329", u"CISSE", u"MAMADOU", u"M", u"16021983", u"", u"", u"M", u"Mali", u"", u"", u"IBRAHIM", u"TRAORE", u"AWA", u"CARRELEUR", u"BASE VIE DU CHANTIER SUD", u"ALGER", u"16000", u"0550112210", u"", u"600000", u"12m", u"01072023", u"E", u"150000", u"66"},
    {u"799910237026", u"WANG", u"LI", u"M", u"28101979", u"", u"", u"C", u"Chine", u"", u"", u"JUN", u"ZHAO", u"MEI", u"CHEF D'ÉQUIPE", u"BASE VIE DU CHANTIER SUD", u"ALGER", u"16000", u"0550112211", u"", u"1500000", u"12m", u"01062021", u"E", u"375000", u"66"},
    {u"", u"ZIANE", u"INÈS", u"F", u"09072001", u"16", u"1601", u"C", u"", u"00671", u"209011601006710088", u"DJAMEL", u"FERHAT", u"NACÉRA", u"AIDE COMPTABLE", u"9 RUE DIDOUCHE MOURAD", u"ALGER", u"16000", u"0770112212", u"229025359", u"42000", u"15j", u"10062024", u"E", u"", u""},
};
// clang-format on
