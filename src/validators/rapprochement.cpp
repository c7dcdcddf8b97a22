#include "validators/rapprochement.h"

#include "rules/dialogue.h"
#include "rules/nombre.h"
#include "rules/texte.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView TitreDas = u"DAS";

} // namespace

bool quitterMontantDac(QString &texte, Dialogue &dialogue)
{
    const double montant = Val(texte);
    texte = texteNombre(montant);
    if (montant >= 0)
        return true;
    dialogue.avertir(u"Veuillez Saisir un Montant Correct S.V.P!!!"_s, TitreDas.toString());
    texte.clear();
    return false;
}

double SommeDacs(const SaisieDacs &dacs)
{
    double somme = 0;
    qsizetype chiffres = 0;
    for (const QString &texte : dacs.textes) {
        const double montant = Val(texte);
        somme += montant;
        chiffres = std::max(chiffres, decimales(montant));
    }
    return arrondi(somme, chiffres);
}

bool TrimestreCompatible(QStringView m1, QStringView m2, QStringView m3, QStringView t)
{
    return Val(t) == 0 || (Val(m1) == 0 && Val(m2) == 0 && Val(m3) == 0);
}

QString verifierDacs(const SaisieDacs &dacs, QStringView totalDas, Dialogue &dialogue)
{
    QString trimestres;
    for (std::size_t mois = 0; mois < SaisieDacs::Nombre; mois += 4) {
        if (!TrimestreCompatible(dacs.textes[mois], dacs.textes[mois + 1], dacs.textes[mois + 2],
                                 dacs.textes[mois + 3])) {
            const QStringView trimestre = SaisieDacs::Boites[mois + 3].last(2);
            trimestres = Trim(trimestres) + u"  "_s + trimestre;
        }
    }
    const QString titre = TitreDas.toString();
    if (!trimestres.isEmpty()) {
        dialogue.avertir(u"Vous Avez Saisi Pour Le(s) Trimestre(s) "_s + trimestres +
                             u"\nLa Période Trimestrielle + Mensuelle(s) !!!\nVeuillez Corriger l'Erreur "
                             "S.V.P !!!"_s,
                         titre);
        return {};
    }

    const double das = Val(totalDas);
    const double somme = SommeDacs(dacs);
    const double ecart = arrondi(das - somme, std::max(decimales(das), decimales(somme)));
    const QString egal = u"Montant DAS Annuelle Egal au Total DACs"_s;
    const QString inferieur = u"Montant DAS Annuelle Inférieur au Total DACs"_s;
    const QString de = u"\nDe :  "_s + texteNombre(ecart);
    if (ecart == 0) {
        dialogue.informer(egal, titre);
        return egal;
    }
    if (ecart < 0) {
        dialogue.avertir(inferieur, titre);
        return inferieur + de;
    }
    // The box says "du" and the label "au": this is meant.
    dialogue.avertir(u"Montant DAS Annuelle Supérieur du Total DACs"_s, titre);
    return u"Montant DAS Annuelle Supérieur au Total DACs"_s + de;
}
