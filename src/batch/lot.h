#pragma once

#include "rules/dialogue.h"
#include "validators/formats.h"
#include "validators/validateur.h"

#include <QList>
#include <QStringList>

#include <functional>
#include <memory>

/// A dialogue that nobody answers: it keeps every box in the order of its coming.
class DialogueEnregistreur : public Dialogue
{
public:
    QList<Boite> boites;

    QString choisirFichier(const QString &titre, const QString &filtre) override;
    QString choisirDestination(const QString &titre, const QString &propose, const QString &filtre) override;

protected:
    bool montrer(const Boite &boite) override;
};

/// What the validation of one file gave.
struct Resultat
{
    /// Name of the file in capitals, without its folder.
    QString fichier;
    Format format = Format::Inconnu;
    QList<Boite> messages;
    /// The validator as the extraction left it; none where the format is unknown or the file can't be read.
    std::unique_ptr<Validateur> validateur;
    Verdict verdict = Verdict::Interrompue;
};

/// Validates one file as the screen of its format does. What goes wrong with the file is told in the
/// messages.
/// @param chemin as lireArguments() gives it
/// @param impose the format to apply; with none the first line of the file chooses
Resultat validerFichier(const QString &chemin, Format impose);

/// Validates files on all cores and hands the results over in the order of the files.
/// @throws std::bad_alloc without memory, std::system_error without a thread
void validerLot(const QStringList &chemins, Format impose,
                const std::function<void(const Resultat &)> &recevoir);
