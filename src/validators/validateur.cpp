#include "validators/validateur.h"

#include "rules/dialogue.h"
#include "rules/erreurs.h"
#include "rules/lecteurlignes.h"
#include "rules/nombre.h"
#include "rules/texte.h"
#include "validators/marque.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 PasAvancement = 1024 * 1024;

} // namespace

void CumulSalaires::ajouter(double entier, int centiemes)
{
    constexpr double limite = 1e15;
    constexpr qint64 comble = std::numeric_limits<qint64>::max() / 2;
    if (std::abs(entier) >= limite || m_centiemes > comble || m_centiemes < -comble) {
        const double debordement = m_debordement + entier + centiemes / 100.0;
        if (!std::isfinite(debordement))
            throw ErreurConversion(u"Dépassement de capacité : le total des salaires est trop grand."_s);
        m_debordement = debordement;
        return;
    }
    m_centiemes += static_cast<qint64>(entier) * 100 + centiemes;
}

void Validateur::vider()
{
    rejets.vider();
    sansIncidence.vider();
    nbErrRejet = nbErrOK = nbLignes = 0;
    totalSalaires = {};
    rejetDur = false;
    m_resultat.clear();
    m_resultat2.clear();
    m_lus = m_total = 0;
    reinitialiser();
}

Verdict Validateur::extraire(const QString &chemin, Dialogue &dialogue)
{
    // The file is opened by the frame, between the test of its name and that of its size.
    QFile fichier(chemin);
    return extraire(fichier, QFileInfo(chemin).fileName(), dialogue);
}

Verdict Validateur::extraire(QIODevice &source, const QString &nom, Dialogue &dialogue)
{
    vider();
    m_dialogue = &dialogue;
    m_nomFichier = majuscules(nom);
    if (nom.isEmpty())
        return interrompre(u"Aucun fichier n'a été sélectionné !!!"_s);
    if (!m_nomFichier.endsWith(u".TXT"))
        return interrompre(u"Format Fichier Sélectionné Incorrect (Différent de .txt) !!!"_s);
    if (!source.isOpen())
        ouvrir(source, nom);
    m_total = source.size();
    LecteurLignes lecteur(source);
    try {
        if (lecteur.finie())
            return interrompre(u"FICHIER VIDE !!!!!!!!!!!"_s);
        return derouler(lecteur);
    } catch (const std::bad_alloc &) {
        vider(); // it is no fault of the file, and whoever tells it needs some memory
        throw;
    } catch (const std::exception &) {
        this->dialogue().afficher(
            u"Votre fichier présente des anomalies, veuillez vérifier les paramêtres régionaux de votre ordinateur SVP  (mettez le '.' au lieu de la ','   comme sépateur décimal) !"_s);
        return Verdict::Interrompue;
    }
}

Verdict Validateur::interrompre(const QString &message)
{
    dialogue().afficher(message, titreInfo());
    return Verdict::Interrompue;
}

Verdict Validateur::derouler(LecteurLignes &lecteur)
{
    if (!premiereLigne(marqueDe(lecteur.lire())))
        return Verdict::Interrompue;
    if (lecteur.finie())
        return interrompre(u"FICHIER INCOMPLET !!!!!!!!!!!"_s);
    if (!entete(decoder(lecteur.lire())))
        return Verdict::Interrompue;

    while (!lecteur.finie()) {
        ligne(lecteur.lire());
        if (lecteur.octetsLus() - m_lus >= PasAvancement) {
            m_lus = lecteur.octetsLus();
            if (surAvancement)
                surAvancement(m_lus, std::max(m_total, m_lus));
        }
    }
    m_lus = lecteur.octetsLus();
    // A file that shrank meanwhile may end between two lines: its verdict would be that of another file.
    if (m_lus < m_total)
        throw ErreurFichier(u"Le fichier a été raccourci pendant sa lecture."_s);

    dialogue().afficher(u"Extraction Terminée avec Nombre Erreurs : \n  - De Rejet : "_s +
                        QString::number(nbErrRejet) + u"\n  - Sans Incidence : "_s +
                        QString::number(nbErrOK));
    joindre(m_resultat, u"Nbre Erreurs De Rejet : "_s + QString::number(nbErrRejet) +
                            u" ,  Sans Incidence : "_s + QString::number(nbErrOK) + u'\n');
    return conclure();
}

Dialogue &Validateur::dialogue()
{
    if (surAvancement)
        surAvancement(m_lus, std::max(m_total, m_lus));
    return *m_dialogue;
}

QList<Validateur::Libelle> Validateur::libellesResultat() const
{
    const QStringList noms = nomsResultat();
    return {{noms[0], m_resultat}, {noms[1], m_resultat2}};
}

void Validateur::enMajuscules(QStringView champ)
{
    mettreEnMajuscules({caracteres(champ), static_cast<std::size_t>(champ.size())});
}

void Validateur::oterBlancs(QStringView &champ)
{
    QChar *debut = caracteres(champ);
    champ = champ.first(std::remove(debut, debut + champ.size(), u' ') - debut);
}

QString Validateur::prefixe(QStringView apresLigne) const
{
    return u"Ligne N°:"_s + apresLigne + QString::number(nbLignes + 1) + u"  -  N° SS: "_s +
           m_personne.numero;
}

QString Validateur::prefixeNoms(QStringView apresLigne) const
{
    return prefixe(apresLigne) + u"  -  Nom : "_s + m_personne.nom + u' ' + m_personne.prenom;
}

void Validateur::signaler(Classe classe, const QString &entree, const QString &mots)
{
    const bool rejet = classe != Classe::SansIncidence;
    (rejet ? rejets : sansIncidence)
        .ajouter(entree, nbLignes + 1, m_personne.numero, QString(m_personne.nom + u' ' + m_personne.prenom),
                 mots);
    ++(rejet ? nbErrRejet : nbErrOK);
    rejetDur = rejetDur || classe == Classe::RejetDur;
}

void Validateur::signalerValeur(Classe classe, QStringView label, QStringView valeur, QStringView mots,
                                QStringView motsListe)
{
    const QString valeurDe = label + u" = "_s + valeur;
    signaler(classe, prefixeNoms() + u"  -  "_s + valeurDe + mots, valeurDe + motsListe);
}

void Validateur::signalerValeur(Classe classe, QStringView label, QStringView valeur, QStringView mots)
{
    signalerValeur(classe, label, valeur, mots, mots);
}

void Validateur::ajouterSalaire(QStringView salaire)
{
    const qsizetype point = salaire.indexOf(SepDecimal);
    int centiemes = 0;
    if (point >= 0) {
        for (const qsizetype place : {point + 1, point + 2}) {
            centiemes *= 10;
            if (place >= salaire.size())
                continue;
            if (!estChiffre(salaire[place]))
                throw ErreurConversion(u"« %1 » n'est pas un nombre."_s.arg(salaire));
            centiemes += salaire[place].unicode() - u'0';
        }
    }
    totalSalaires.ajouter(Val(point >= 0 ? salaire.first(point) : salaire), centiemes);
    ++nbLignes;
}

void Validateur::joindre(QString &libelle, const QString &texte)
{
    if (!Trim(libelle).isEmpty())
        libelle += u'\n';
    libelle += texte;
}

bool Validateur::faitDe(QStringView texte, QStringView permis)
{
    return std::all_of(texte.begin(), texte.end(), [&](QChar c) { return permis.contains(c); });
}
