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
#include <new>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 PasAvancement = 1024 * 1024;
constexpr QStringView MasqueTotal = u"## ### ### ### ###.00";

/// Count of the lines less that of the header, where any number may stand.
QString ecartDesNombres(qint64 lignes, QStringView entete)
{
    const double declare = lireNombre(entete);
    return texteNombre(arrondi(static_cast<double>(lignes) - declare, decimales(declare)));
}

} // namespace

Validateur::Validateur(const Particularites &particularites)
    : ControleLigne(particularites.motsAvecValeur, particularites.apostrophesEnBlancs),
      m_particularites(particularites)
{
}

void Validateur::vider()
{
    ControleLigne::vider();
    totalSalaires = {};
    m_resultat.clear();
    m_resultat2.clear();
    LabTotSalaires.clear();
    LabTotSalaries.clear();
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
    const QStringView titre = m_particularites.titreChoix;
    if (nom.isEmpty())
        return interrompre(u"Aucun fichier n'a été sélectionné !!!"_s, titre);
    if (!m_nomFichier.endsWith(u".TXT"))
        return interrompre(u"Format Fichier Sélectionné Incorrect (Différent de .txt) !!!"_s, titre);
    if (!source.isOpen())
        ouvrir(source, nom);
    m_total = source.size();
    LecteurLignes lecteur(source);
    try {
        if (lecteur.finie())
            return interrompre(u"FICHIER VIDE !!!!!!!!!!!"_s, titre);
        return derouler(lecteur);
    } catch (const std::bad_alloc &) {
        vider(); // it is no fault of the file, and whoever tells it needs some memory
        throw;
    } catch (const std::exception &) {
        dire(
            u"Votre fichier présente des anomalies, veuillez vérifier les paramêtres régionaux de votre ordinateur SVP  (mettez le '.' au lieu de la ','   comme "_s +
            m_particularites.separateur + u" décimal) !"_s);
        return Verdict::Interrompue;
    }
}

Verdict Validateur::interrompre(const QString &message, QStringView titre)
{
    dialogue().afficher(message, titre.toString());
    return Verdict::Interrompue;
}

bool Validateur::premiereLigne(const QString &marque)
{
    const auto marques = m_particularites.marques;
    const auto trouvee = std::find(marques.begin(), marques.end(), marque);
    m_rangMarque = trouvee - marques.begin();
    if (trouvee != marques.end())
        return true;
    interrompre(m_particularites.fautePremiereLigne.toString(), m_particularites.titreDebut);
    if (m_particularites.anomalieAussi)
        throw ErreurConversion(u"La première ligne n'est pas celle du format."_s);
    return false;
}

Verdict Validateur::derouler(LecteurLignes &lecteur)
{
    if (!premiereLigne(marqueDe(lecteur.lire())))
        return Verdict::Interrompue;
    if (lecteur.finie())
        return interrompre(u"FICHIER INCOMPLET !!!!!!!!!!!"_s, m_particularites.titreDebut);
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

    dire(u"Extraction Terminée avec Nombre Erreurs : \n  - De Rejet : "_s + QString::number(nbErrRejet) +
         u"\n  - Sans Incidence : "_s + QString::number(nbErrOK));
    joindre(m_resultat, u"Nbre Erreurs De Rejet : "_s + QString::number(nbErrRejet) +
                            u" ,  Sans Incidence : "_s + QString::number(nbErrOK) +
                            (m_particularites.finApresCompte ? u"\n"_s : QString()));
    return conclure();
}

Dialogue &Validateur::dialogue()
{
    if (surAvancement)
        surAvancement(m_lus, std::max(m_total, m_lus));
    return *m_dialogue;
}

void Validateur::dire(const QString &texte)
{
    dialogue().afficher(texte, m_particularites.titreSuite.toString());
}

QList<Validateur::Libelle> Validateur::libellesResultat() const
{
    return {{m_particularites.resultats[0].toString(), m_resultat},
            {m_particularites.resultats[1].toString(), m_resultat2}};
}

QList<Validateur::Libelle> Validateur::libelles() const
{
    return libellesResultat() + libellesPropres() +
           QList<Libelle>{{u"LabTotSalaires"_s, LabTotSalaires}, {u"LabTotSalaries"_s, LabTotSalaries}};
}

QString Validateur::titreImpression(const ListesErreurs &listes) const
{
    return (&listes == &rejets ? u"LISTE DES ERREURS DE REJET "_s : u"LISTE DES ERREURS MODIFIEES "_s) +
           m_particularites.nom + u" EMPLOYEUR N° "_s + enTitre();
}

void Validateur::compter(Champ salaire)
{
    totalSalaires.ajouter(valeur(salaire));
    ++nbLignes;
}

void Validateur::comparerTotaux(QString &montant, QStringView effectif)
{
    m_ongletsPermis = true;
    LabTotSalaires = formatMasque(totalSalaires.valeur(), MasqueTotal);
    LabTotSalaries = QString::number(nbLignes);
    montant = formatMasque(lireNombre(sansBlancs(montant)), MasqueTotal);

    const Currency ecart = LireMontant(LabTotSalaires) - LireMontant(montant);
    const QStringView masque = m_particularites.masqueEcart;
    direEcart(ecart.texte(), masque.isEmpty() ? ecart.texte() : formatMasque(ecart, masque),
              m_particularites.montantDesLignes);
    const QString nombre = ecartDesNombres(nbLignes, effectif);
    direEcart(nombre, nombre, m_particularites.nombreDesLignes);
}

void Validateur::direEcart(const QString &ecart, const QString &montre, QStringView sujet)
{
    const bool egaux = ecart == u"0";
    if (egaux && m_particularites.egaliteTue)
        return;
    QString texte = sujet +
                    (egaux                    ? u" = "_s
                     : ecart.startsWith(u'-') ? u" < "_s
                                              : u" > "_s) +
                    m_particularites.celuiDeLentete;
    if (!egaux)
        texte += u" de  "_s + montre;
    joindre(m_resultat2, texte);
}

void Validateur::noterFaute(QString &fautes, bool fautif, QStringView mots)
{
    if (fautif)
        joindre(fautes, mots + (fautes.isEmpty() ? u"!!!"_s : u" !!!"_s));
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
