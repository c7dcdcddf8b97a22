#include "batch/rapport.h"

#include "batch/lot.h"
#include "rules/nombre.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

/// A JSON string, quotes included.
QByteArray chaine(const QString &texte)
{
    QByteArray json = "\"";
    for (const char c : texte.toUtf8()) {
        switch (c) {
        case '"':
            json += "\\\"";
            break;
        case '\\':
            json += "\\\\";
            break;
        case '\n':
            json += "\\n";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20)
                json += "\\u" + QByteArray::number(static_cast<int>(c), 16).rightJustified(4, '0');
            else
                json += c;
        }
    }
    return json + '"';
}

QByteArray membre(const char *nom, const QByteArray &valeur)
{
    return QByteArray("\"") + nom + "\": " + valeur;
}

QByteArray nombre(double valeur) { return QByteArray::number(valeur, 'g', QLocale::FloatingPointShortest); }

const char *nomIcone(Icone icone)
{
    switch (icone) {
    case Icone::Information:
        return "information";
    case Icone::Avertissement:
        return "avertissement";
    case Icone::Critique:
        return "critique";
    case Icone::Aucune:
    case Icone::Question:
        break;
    }
    return "aucune";
}

const char *nomVerdict(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Acceptee:
        return "acceptee";
    case Verdict::Rejetee:
        return "rejetee";
    case Verdict::Interrompue:
        break;
    }
    return "interrompue";
}

void ecrireListe(const char *nom, const ListesErreurs &listes, const Sortie &sortie)
{
    sortie(QByteArray(", \"") + nom + "\": [");
    for (qsizetype i = 0; i < listes.taille(); ++i) {
        // Member by member: a single text may be as large as the file.
        sortie((i == 0 ? "{" : ", {") + membre("entree", chaine(listes.Entrees[i])));
        sortie(", " + membre("ligne", QByteArray::number(listes.O[static_cast<std::size_t>(i)])) + ", " +
               membre("numero", chaine(listes.N[i])));
        sortie(", " + membre("nom", chaine(listes.NP[i])));
        sortie(", " + membre("mots", chaine(listes.E[i])) + "}");
    }
    sortie("]");
}

void ecrireEntrees(const QString &titre, const ListesErreurs &listes, const Sortie &sortie)
{
    if (listes.taille() == 0)
        return;
    sortie(titre.toUtf8());
    for (qsizetype i = 0; i < listes.taille(); ++i)
        sortie(QString(u"    "_s + listes.Entrees[i] + u'\n').toUtf8());
}

} // namespace

void ecrireJson(const Resultat &resultat, const Sortie &sortie)
{
    static const ListesErreurs vides;
    const Validateur *validateur = resultat.validateur.get();

    sortie("{" + membre("fichier", chaine(resultat.fichier)) + ", " +
           membre("format", chaine(nomFormat(resultat.format))) + ", \"messages\": [");
    for (qsizetype i = 0; i < resultat.messages.size(); ++i) {
        const Boite &boite = resultat.messages[i];
        sortie((i == 0 ? "{" : ", {") + membre("titre", chaine(boite.titre)) + ", " +
               membre("texte", chaine(boite.texte)) + ", " +
               membre("icone", QByteArray("\"") + nomIcone(boite.icone) + '"') + "}");
    }
    sortie("]");
    ecrireListe("rejets", validateur ? validateur->rejets : vides, sortie);
    ecrireListe("sansIncidence", validateur ? validateur->sansIncidence : vides, sortie);

    QByteArray libelles;
    if (validateur) {
        for (const Validateur::Libelle &libelle : validateur->libellesResultat()) {
            libelles += libelles.isEmpty() ? "" : ", ";
            libelles += membre(libelle.nom.toUtf8().constData(), chaine(libelle.texte));
        }
    }
    sortie(", " + membre("nbErrRejet", QByteArray::number(validateur ? validateur->nbErrRejet : 0)) + ", " +
           membre("nbErrOK", QByteArray::number(validateur ? validateur->nbErrOK : 0)) + ", " +
           membre("nbLignes", QByteArray::number(validateur ? validateur->nbLignes : 0)) + ", " +
           membre("totalSalaires", nombre(validateur ? validateur->totalSalaires.valeur() : 0)) + ", " +
           membre("libelles", "{" + libelles + "}") + ", " +
           membre("verdict", QByteArray("\"") + nomVerdict(resultat.verdict) + '"') + "}\n");
}

void ecrireTexte(const Resultat &resultat, const Sortie &sortie)
{
    const QString verdict = resultat.verdict == Verdict::Acceptee  ? u"acceptée"_s
                            : resultat.verdict == Verdict::Rejetee ? u"rejetée"_s
                                                                   : u"interrompue"_s;
    const QString format =
        resultat.format == Format::Inconnu ? u"format inconnu"_s : nomFormat(resultat.format);
    sortie(QString(resultat.fichier + u" ("_s + format + u") : "_s + verdict + u'\n').toUtf8());

    if (const Validateur *validateur = resultat.validateur.get()) {
        sortie(u"  %1 de rejet, %2 sans incidence, %3 lignes, total des salaires %4\n"_s
                   .arg(QString::number(validateur->nbErrRejet), QString::number(validateur->nbErrOK),
                        QString::number(validateur->nbLignes),
                        QString::number(validateur->totalSalaires.valeur(), 'f', 2))
                   .toUtf8());
    }
    if (!resultat.messages.isEmpty())
        sortie("  Messages :\n");
    for (const Boite &boite : resultat.messages) {
        const QString texte = QString(boite.texte).replace(u'\n', u"\n      "_s);
        sortie(QString(u"    ["_s + boite.titre + u"] "_s + texte + u'\n').toUtf8());
    }
    if (const Validateur *validateur = resultat.validateur.get()) {
        ecrireEntrees(u"  Erreurs de rejet :\n"_s, validateur->rejets, sortie);
        ecrireEntrees(u"  Erreurs sans incidence :\n"_s, validateur->sansIncidence, sortie);
    }
}
