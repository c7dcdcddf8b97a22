#pragma once

#include <QString>

/// The application's title: that of every box without a title of its own.
inline constexpr QStringView TitreApplication = u"DAS KORVANDEL";

enum class Icone { Aucune, Information, Avertissement, Critique, Question };

enum class Boutons { Ok, OuiNon, OkAnnuler };

/// One box as the clerk sees it. Line ends in the text are "\n".
struct Boite
{
    QString titre;
    QString texte;
    Icone icone = Icone::Aucune;
    Boutons boutons = Boutons::Ok;
    /// Whether Enter answers with the first button (Oui, OK).
    bool premierParDefaut = true;

    friend bool operator==(const Boite &, const Boite &) = default;
};

/// How a routine speaks to the clerk. The same routine runs under a window, under a test that holds the
/// expected boxes, and in the batch tool, which records them. An empty title means the application's title.
class Dialogue
{
public:
    Dialogue() = default;
    virtual ~Dialogue() = default;
    Dialogue(const Dialogue &) = delete;
    Dialogue &operator=(const Dialogue &) = delete;

    void avertir(const QString &texte, const QString &titre = {});
    void informer(const QString &texte, const QString &titre = {});
    void critique(const QString &texte, const QString &titre = {});
    /// A plain box, without an icon.
    void afficher(const QString &texte, const QString &titre = {});
    /// A Yes/No question. @return true for Yes
    bool demander(const QString &texte, const QString &titre = {}, bool ouiParDefaut = true,
                  Icone icone = Icone::Question);
    /// An OK/Cancel question. @return true for OK
    bool confirmer(const QString &texte, const QString &titre = {});

    /// Asks for a file to read. @param filtre as in "Fichiers texte (*.txt)" @return its path, empty when
    /// cancelled
    virtual QString choisirFichier(const QString &titre, const QString &filtre) = 0;
    /// Asks where to write. @param propose the name offered @return the path, empty when cancelled
    virtual QString choisirDestination(const QString &titre, const QString &propose,
                                       const QString &filtre) = 0;

protected:
    /// Shows the box and waits for the answer. @return true for the first button (OK, Oui)
    virtual bool montrer(const Boite &boite) = 0;
};
