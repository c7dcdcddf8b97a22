#include "declarations/salarieligne.h"

#include "employees/fichesalarie.h"
#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/identite.h"
#include "rules/texte.h"
#include "storage/connexion.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype chiffresDuNumero = 10;

} // namespace

QString NumeroSaisi::numero() const { return Trim(num_saledit) + Trim(mskcle); }

SaisieNumero ctrlNumeroSaisi(const NumeroSaisi &saisi, Dialogue &dialogue)
{
    if (saisi.num_saledit == ChiffresBlancs) {
        dialogue.avertir(u"Le numéro de sécurité sociale est à blanc, sélectionnez le salarié à partir de la "
                         "commande INSERER "_s);
        return {};
    }
    const bool complet = saisi.num_saledit.size() == chiffresDuNumero && chiffresSeuls(saisi.num_saledit);
    if (complet && CleSS(saisi.num_saledit) == saisi.mskcle)
        return {.numeroBon = true};
    dialogue.avertir(u"Le numéro de sécurité sociale est incorrecte "_s);
    return {.reprendre = true};
}

std::optional<RefusSalarie> ctrlSalarieDeLigne(Connexion &cnx, const NumeroSaisi &saisi,
                                               const SalarieInconnu &difference, Dialogue &dialogue)
{
    constexpr QStringView controle = u"num_saledit";
    const QString inviter = u"ce salarié n'existe pas! Nous vous invitons à le créer"_s;
    if (Trim(saisi.num_saledit).isEmpty())
        return RefusSalarie{refuser(dialogue, controle, u"Vous n'avez pas sélectionné de salarié ! "_s)};
    if (!cnx.existe(u"SELECT 1 FROM salarie"_s)) {
        if (difference.tableVideRefusee)
            return RefusSalarie{refuser(dialogue, controle, inviter)};
        return {};
    }
    if (salarieExiste(cnx, saisi.numero(), saisi.cpt_z))
        return {};
    Refus refus{controle, {}};
    if (difference.averti)
        refus = refuser(dialogue, controle, inviter);
    return RefusSalarie{refus, dialogue.demander(u"Ce salarié n'existe pas, voulez vous le créer?"_s)};
}

bool salarieExiste(Connexion &cnx, const QString &numero, qint64 cpt_z)
{
    return cnx.existe(u"SELECT 1 FROM salarie WHERE num_salarie = ? AND cpt_z = ?"_s, {numero, cpt_z});
}

QString numeroPourCreation(const QString &num_saledit)
{
    const QStringView numero = Trim(num_saledit);
    return numero.size() < 5 ? numero.toString() : numero.toString().rightJustified(chiffresDuNumero, u' ');
}

SalarieMontre salarieDe(Connexion &cnx, const QString &numero, qint64 cpt_z)
{
    const Enregistrement trouve = cnx.premiere(
        u"SELECT nom, prenom, date_naiss, num_cpt_ccp, num_cpt_banc FROM salarie WHERE num_salarie = ? AND "
        "cpt_z = ?"_s,
        {numero, cpt_z});
    if (trouve.estVide())
        return {};
    const QDate naissance = trouve.date(u"date_naiss");
    return {trouve.texte(u"nom"), trouve.texte(u"prenom"),
            naissance.isValid() ? texteDate(naissance) : QString(), trouve.texte(u"num_cpt_ccp"),
            trouve.texte(u"num_cpt_banc")};
}
