#include "declarations/exportdeclaration.h"

#include "declarations/declaration.h"
#include "rules/dialogue.h"
#include "rules/texte.h"
#include "storage/base.h"
#include "storage/disque.h"
#include "storage/lieux.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// One export of a header.
class Export
{
public:
    Export(const FichierDeclaration &fichier, Base &base, const Enregistrement &entete, Dialogue &dialogue)
        : m_fichier(fichier), m_base(base), m_entete(entete), m_dialogue(dialogue)
    {
    }

    bool sommes() const
    {
        if (m_fichier.avantSommes && !m_fichier.avantSommes(m_base, m_entete, m_dialogue))
            return false;
        if (sommesConcordent(m_base, m_fichier.genre, m_entete))
            return true;
        m_dialogue.avertir(m_fichier.sommesDifferentes, m_fichier.titreSommes);
        return false;
    }

    bool controle() const
    {
        return !m_fichier.apresSommes || m_fichier.apresSommes(m_base, m_entete, m_dialogue);
    }

    // The two routes. @return the path, empty when nothing is written

    QString auDossierFixe() const
    {
        const QString chemin = dossierExpor() + u'/' + nom(m_fichier.nomFige);
        try {
            ecrireFichier(chemin);
        } catch (const Erreur &erreur) {
            if (m_fichier.echecFatal)
                throw ErreurFatale(erreur.texte());
            throw;
        }
        return chemin;
    }

    QString ouLeCommisVeut() const
    {
        const QString chemin =
            m_dialogue.choisirDestination(u"Exporter Fichier"_s, nom(m_fichier.nomPropose),
                                          u"Fichiers texte (*.txt);;Tous les fichiers (*)"_s);
        const QString sansNom = u"Nom de fichier incorrect"_s;
        if (!chemin.isEmpty())
            ecrireFichier(chemin);
        else if (m_fichier.titreSansNom.isEmpty())
            m_dialogue.afficher(sansNom);
        else
            m_dialogue.avertir(sansNom, m_fichier.titreSansNom);
        return chemin;
    }

private:
    /// The model with the values of the header.
    QString nom(QString modele) const
    {
        for (const PaireCle &paire : m_fichier.genre.cle) {
            modele.replace(u"{%1}"_s.arg(paire.entete),
                           Trim(m_entete.valeur(paire.entete).toString()).toString());
        }
        return nomDeFichier(modele);
    }

    /// Opens the file in place of what is there and writes it.
    void ecrireFichier(const QString &chemin) const
    {
        QFile fichier(chemin);
        if (!creerPrive(fichier))
            throw erreurEcriture(chemin, fichier.errorString());
        if (m_fichier.montreLignes) {
            const GenreDeclaration &genre = m_fichier.genre;
            (m_base.*genre.lignes).filtrer(lignesDe(genre, cleEntete(genre, m_entete)));
        }
        ecrireDeclaration(m_fichier, m_base, m_entete, fichier);
        std::error_code erreur = mettreSurDisque(fichier);
        if (!erreur)
            erreur = mettreNomsSurDisque(QFileInfo(chemin).absolutePath());
        if (erreur)
            throw erreurEcriture(chemin, causeSysteme(erreur));
    }

    const FichierDeclaration &m_fichier;
    Base &m_base;
    const Enregistrement m_entete;
    Dialogue &m_dialogue;
};

} // namespace

void ecrireDeclaration(const FichierDeclaration &fichier, Base &base, const Enregistrement &entete,
                       QIODevice &sortie)
{
    const GenreDeclaration &genre = fichier.genre;
    ecrireLigne(sortie, fichier.marque);
    ecrireEntete(sortie, entete, fichier.entete);
    Requete rangees = lireAvecSalaries(base, genre, lignesDuFichier(genre, cleEntete(genre, entete)),
                                       colonnesExport(fichier.ligne));
    ecrireLignes(sortie, rangees, fichier.ligne);
}

bool exporter(const FichierDeclaration &fichier, Base &base, const Enregistrement &entete, bool cheminFige,
              Dialogue &dialogue)
{
    using enum FichierDeclaration::Gestion;
    const Export passe(fichier, base, entete, dialogue);
    if (!passe.sommes())
        return false;
    const FichierDeclaration::Gestion gestion = cheminFige ? Aucune : fichier.gestion;
    if (gestion != DesLeControle && !passe.controle())
        return false;
    QString chemin;
    try {
        if (gestion != DesLeControle || passe.controle())
            chemin = cheminFige ? passe.auDossierFixe() : passe.ouLeCommisVeut();
    } catch (const Erreur &) {
        if (gestion == Aucune)
            throw;
        if (!fichier.echec.isEmpty())
            dialogue.critique(fichier.echec);
    }
    if (chemin.isEmpty())
        return false;
    dialogue.informer(fichier.succes + QDir::toNativeSeparators(chemin));
    if (fichier.ensuite) {
        try {
            fichier.ensuite(base, entete);
        } catch (const Erreur &) { // without a word: that is required
        }
    }
    return true;
}
