#pragma once

#include "rules/dialogue.h"

#include <QList>
#include <QStringList>

#include <functional>

/// The clerk who says yes to everything and chooses no file.
class DialogueOui : public Dialogue
{
public:
    QString choisirFichier(const QString &, const QString &) override { return {}; }
    QString choisirDestination(const QString &, const QString &, const QString &) override { return {}; }

protected:
    bool montrer(const Boite &) override { return true; }
};

/// What a test expects to come next, with the clerk's answer.
struct Attente
{
    enum Genre { DeBoite, DeFichier, DeDestination } genre = DeBoite;
    Boite boite;
    bool reponse = true;
    QString propose;
    QString chemin;
};
using Attentes = QList<Attente>;

/// Expected boxes as data; the titles default to the application's.
namespace boites {

Attente avertissement(const QString &texte, const QString &titre = {});
Attente information(const QString &texte, const QString &titre = {});
Attente critique(const QString &texte, const QString &titre = {});
Attente question(const QString &texte, bool oui, const QString &titre = {}, bool ouiParDefaut = true);

} // namespace boites

/// A dialogue that holds the boxes a test expects, in order, with the clerk's answers. It fails the test on
/// the first box that differs in text, title, icon or buttons, and on expected boxes that never came.
class DialogueScenario : public Dialogue
{
public:
    ~DialogueScenario() override;

    void attendre(const Attentes &suite) { m_attentes += suite; }
    /// The titles default to the application's.
    void attendreAvertissement(const QString &texte, const QString &titre = {});
    void attendreInformation(const QString &texte, const QString &titre = {});
    void attendreCritique(const QString &texte, const QString &titre = {});
    void attendreBoite(const QString &texte, const QString &titre = {});
    void attendreQuestion(const QString &texte, bool oui, const QString &titre = {}, bool ouiParDefaut = true,
                          Icone icone = Icone::Question);
    void attendreConfirmation(const QString &texte, bool ok, const QString &titre = {});
    /// The next file dialog answers with this path; an empty one stands for a cancelled dialog.
    void attendreFichier(const QString &chemin);
    /// The next save dialog must propose this name and answers with the path.
    void attendreDestination(const QString &propose, const QString &chemin);

    /// Whether every expected box came; fails the test otherwise, naming the first that did not.
    bool acheve();

    /// Runs while each box stands, so that a test can look at what is behind it.
    std::function<void()> aChaqueBoite;

    QString choisirFichier(const QString &titre, const QString &filtre) override;
    QString choisirDestination(const QString &titre, const QString &propose, const QString &filtre) override;

protected:
    bool montrer(const Boite &boite) override;

private:
    bool prendre(Attente::Genre genre, const QString &venu, Attente &attente);

    Attentes m_attentes;
    bool m_echoue = false;
};
