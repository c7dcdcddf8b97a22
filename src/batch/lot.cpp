#include "batch/lot.h"

#include "batch/arguments.h"
#include "rules/erreurs.h"
#include "rules/lecteurlignes.h"
#include "rules/texte.h"

#include <QFile>
#include <QScopeGuard>

#include <algorithm>
#include <atomic>
#include <future>
#include <semaphore>
#include <system_error>
#include <thread>

using namespace Qt::StringLiterals;

QString DialogueEnregistreur::choisirFichier(const QString &, const QString &) { return {}; }

QString DialogueEnregistreur::choisirDestination(const QString &, const QString &, const QString &)
{
    return {};
}

bool DialogueEnregistreur::montrer(const Boite &boite)
{
    boites.append(boite);
    return boite.premierParDefaut;
}

Resultat validerFichier(const QString &chemin, Format impose)
{
    Resultat resultat;
    DialogueEnregistreur dialogue;
    try {
        const QString nom = nomSansDossier(chemin);
        resultat.fichier = majuscules(nom);
        const std::unique_ptr<QFile> fichier = fichierDe(chemin);
        resultat.format = impose;
        if (impose == Format::Inconnu) {
            ouvrir(*fichier, nom);
            resultat.format = formatDe(*fichier);
        }
        resultat.validateur = nouveauValidateur(resultat.format);
        if (resultat.validateur)
            resultat.verdict = resultat.validateur->extraire(*fichier, nom, dialogue);
        else
            dialogue.critique(
                u"Format inconnu : la première ligne du fichier n'est celle d'aucune déclaration."_s);
    } catch (const Erreur &erreur) {
        resultat.validateur.reset();
        dialogue.critique(erreur.texte());
    } catch (const std::bad_alloc &) {
        throw; // it is no fault of the file
    } catch (const std::exception &erreur) {
        resultat.validateur.reset();
        dialogue.critique(u"Erreur inattendue : %1"_s.arg(QString::fromLocal8Bit(erreur.what())));
    }
    resultat.messages = dialogue.boites;
    return resultat;
}

void validerLot(const QStringList &chemins, Format impose,
                const std::function<void(const Resultat &)> &recevoir)
{
    const auto nombre = static_cast<std::size_t>(chemins.size());
    const std::size_t coeurs =
        std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, std::max<std::size_t>(nombre, 1));

    // A worker takes a place before it takes the next file, and the place is free again when the result has
    // been handed over: so results that wait for their turn never pile up.
    std::vector<std::promise<Resultat>> promesses(nombre);
    std::counting_semaphore<> places(static_cast<std::ptrdiff_t>(2 * coeurs));
    std::atomic<std::size_t> prochain = 0;
    const auto travailler = [&] {
        for (;;) {
            places.acquire();
            const std::size_t i = prochain++;
            if (i >= nombre) {
                places.release();
                return;
            }
            try {
                promesses[i].set_value(validerFichier(chemins[static_cast<qsizetype>(i)], impose));
            } catch (...) {
                promesses[i].set_exception(std::current_exception());
            }
        }
    };
    std::vector<std::jthread> equipe;
    equipe.reserve(coeurs);
    // Whatever ends the run, the workers find no further file.
    const auto congedier = qScopeGuard([&] {
        prochain = nombre;
        places.release(static_cast<std::ptrdiff_t>(coeurs));
    });
    try {
        while (equipe.size() < coeurs)
            equipe.emplace_back(travailler);
    } catch (const std::system_error &) {
        if (equipe.empty())
            throw;
    }
    for (auto &promesse : promesses) {
        recevoir(promesse.get_future().get());
        places.release();
    }
}
