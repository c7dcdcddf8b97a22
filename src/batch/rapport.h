#pragma once

#include <QByteArray>

#include <functional>

struct Resultat;

/// Takes pieces of a report, in UTF-8.
using Sortie = std::function<void(const QByteArray &)>;

/// One JSON object on one line, with its line end.
void ecrireJson(const Resultat &resultat, const Sortie &sortie);

/// The same for people: verdict, counts, messages, then the entries.
void ecrireTexte(const Resultat &resultat, const Sortie &sortie);
