#include "tests/commun/dialoguescenario.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString dire(const Boite &boite)
{
    static const QStringList icones{u"aucune"_s, u"information"_s, u"avertissement"_s, u"critique"_s,
                                    u"question"_s};
    static const QStringList boutons{u"OK"_s, u"Oui/Non"_s, u"OK/Annuler"_s};
    return u"[%1] «%2» (%3, %4, %5)"_s.arg(boite.titre, boite.texte, icones[static_cast<int>(boite.icone)],
                                           boutons[static_cast<int>(boite.boutons)],
                                           boite.premierParDefaut ? u"premier"_s : u"second"_s);
}

Attente boite(const QString &texte, const QString &titre, Icone icone, Boutons boutons = Boutons::Ok,
              bool reponse = true, bool premierParDefaut = true)
{
    return {Attente::DeBoite,
            {titre.isEmpty() ? TitreApplication.toString() : titre, texte, icone, boutons, premierParDefaut},
            reponse,
            {},
            {}};
}

void echouer(const QString &texte) { QTest::qFail(qPrintable(texte), __FILE__, __LINE__); }

} // namespace

Attente boites::avertissement(const QString &texte, const QString &titre)
{
    return boite(texte, titre, Icone::Avertissement);
}

Attente boites::information(const QString &texte, const QString &titre)
{
    return boite(texte, titre, Icone::Information);
}

Attente boites::critique(const QString &texte, const QString &titre)
{
    return boite(texte, titre, Icone::Critique);
}

Attente boites::question(const QString &texte, bool oui, const QString &titre, bool ouiParDefaut)
{
    return boite(texte, titre, Icone::Question, Boutons::OuiNon, oui, ouiParDefaut);
}

DialogueScenario::~DialogueScenario() { acheve(); }

void DialogueScenario::attendreAvertissement(const QString &texte, const QString &titre)
{
    m_attentes += boites::avertissement(texte, titre);
}

void DialogueScenario::attendreInformation(const QString &texte, const QString &titre)
{
    m_attentes += boites::information(texte, titre);
}

void DialogueScenario::attendreCritique(const QString &texte, const QString &titre)
{
    m_attentes += boites::critique(texte, titre);
}

void DialogueScenario::attendreBoite(const QString &texte, const QString &titre)
{
    m_attentes += boite(texte, titre, Icone::Aucune);
}

void DialogueScenario::attendreQuestion(const QString &texte, bool oui, const QString &titre,
                                        bool ouiParDefaut, Icone icone)
{
    m_attentes += boite(texte, titre, icone, Boutons::OuiNon, oui, ouiParDefaut);
}

void DialogueScenario::attendreConfirmation(const QString &texte, bool ok, const QString &titre)
{
    m_attentes += boite(texte, titre, Icone::Question, Boutons::OkAnnuler, ok);
}

void DialogueScenario::attendreFichier(const QString &chemin)
{
    m_attentes.append({Attente::DeFichier, {}, true, {}, chemin});
}

void DialogueScenario::attendreDestination(const QString &propose, const QString &chemin)
{
    m_attentes.append({Attente::DeDestination, {}, true, propose, chemin});
}

bool DialogueScenario::acheve()
{
    if (!m_attentes.isEmpty() && !m_echoue) {
        m_echoue = true;
        const Attente &reste = m_attentes.first();
        echouer(u"never came: "_s +
                (reste.genre == Attente::DeBoite ? dire(reste.boite) : u"a file dialog"_s));
    }
    m_attentes.clear();
    return !m_echoue;
}

bool DialogueScenario::prendre(Attente::Genre genre, const QString &venu, Attente &attente)
{
    if (m_echoue)
        return false;
    if (m_attentes.isEmpty() || m_attentes.first().genre != genre) {
        m_echoue = true;
        echouer(u"not expected here: "_s + venu +
                (m_attentes.isEmpty() ? QString() : u"\nexpected: "_s + dire(m_attentes.first().boite)));
        return false;
    }
    attente = m_attentes.takeFirst();
    return true;
}

bool DialogueScenario::montrer(const Boite &boite)
{
    if (aChaqueBoite)
        aChaqueBoite();
    Attente attente;
    if (!prendre(Attente::DeBoite, dire(boite), attente))
        return false;
    if (attente.boite != boite) {
        m_echoue = true;
        echouer(u"came: "_s + dire(boite) + u"\nexpected: "_s + dire(attente.boite));
    }
    return attente.reponse;
}

QString DialogueScenario::choisirFichier(const QString &titre, const QString &)
{
    Attente attente;
    prendre(Attente::DeFichier, u"file dialog "_s + titre, attente);
    return attente.chemin;
}

QString DialogueScenario::choisirDestination(const QString &titre, const QString &propose, const QString &)
{
    Attente attente;
    if (prendre(Attente::DeDestination, u"save dialog "_s + titre, attente) && attente.propose != propose) {
        m_echoue = true;
        echouer(u"save dialog proposes «%1», expected «%2»"_s.arg(propose, attente.propose));
    }
    return attente.chemin;
}
