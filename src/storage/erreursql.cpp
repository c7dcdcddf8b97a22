#include "storage/erreursql.h"

#include "storage/enregistrement.h"

#include <QSqlError>

using namespace Qt::StringLiterals;

namespace {

// Result codes of the engine, see https://www.sqlite.org/rescode.html
enum Code {
    Occupee = 5,
    Verrouillee = 6,
    LectureSeule = 8,
    EntreeSortie = 10,
    Endommagee = 11,
    DisquePlein = 13,
    PasOuvrable = 14,
    PasUneBase = 26,
    Contrainte = 19,
    ContrainteCheck = 275,
    ContrainteNonNul = 1299,
    ContrainteCle = 1555,
    ContrainteUnique = 2067
};

int primaire(int code) { return code & 0xFF; }

QString citer(const QVariant &valeur)
{
    constexpr qsizetype assez = 80;
    const QString texte = valeur.toString();
    return texte.size() <= assez ? u"« %1 »"_s.arg(texte) : u"« %1… »"_s.arg(texte.left(assez));
}

/// The value that was on its way into the column; nothing when it is not known.
const Valeur *valeurDe(QStringView colonne, const QStringList &colonnes, const Valeurs &valeurs)
{
    for (qsizetype i = 0; i < colonnes.size() && i < valeurs.size(); ++i) {
        if (colonne.compare(colonnes[i], Qt::CaseInsensitive) == 0)
            return &valeurs[i];
    }
    return nullptr;
}

/// @param regle the name of the constraint: "table.column type"
QString motsDeCheck(const QString &regle, const QStringList &colonnes, const Valeurs &valeurs)
{
    const qsizetype point = regle.indexOf(u'.');
    const qsizetype blanc = regle.indexOf(u' ', point);
    if (point < 0 || blanc < 0)
        return u"Une valeur a été refusée par la base de données."_s;
    const QString colonne = regle.mid(point + 1, blanc - point - 1);
    const QString type = regle.mid(blanc + 1);
    const QString lieu = u"la colonne %1 de la table %2"_s.arg(colonne, regle.left(point));
    const Valeur *valeur = valeurDe(colonne, colonnes, valeurs);
    const QString sujet = valeur ? u"La valeur %1"_s.arg(citer(valeur->variante())) : u"Une valeur"_s;

    switch (genreDe(type)) {
    case Genre::Texte: {
        const QString largeur = type.mid(5).chopped(1); // char(30)
        if (valeur && valeur->variante().toString().isEmpty())
            return u"Le texte vide est refusé dans %1."_s.arg(lieu);
        const QString longueur =
            valeur ? u" (%1 caractères)"_s.arg(valeur->variante().toString().size()) : QString();
        return u"%1%2 est refusée dans %3 : %4 caractères au plus."_s.arg(sujet, longueur, lieu, largeur);
    }
    case Genre::Entier:
        return u"%1 est refusée dans %2 : un nombre entier de -2147483648 à 2147483647 y est attendu."_s.arg(
            sujet, lieu);
    case Genre::Montant:
        return u"%1 est refusée dans %2 : un montant y est attendu."_s.arg(sujet, lieu);
    case Genre::Jour:
        return u"%1 est refusée dans %2 : une date y est attendue."_s.arg(sujet, lieu);
    }
    return {};
}

/// @param liste as in "Banque.Code, Banque.Libelle"
QString motsDeDoublon(const QString &liste, const QStringList &colonnes, const Valeurs &valeurs)
{
    QString table;
    QStringList cle;
    for (const QString &membre : liste.split(u", "_s)) {
        table = membre.section(u'.', 0, 0);
        const QString colonne = membre.section(u'.', 1);
        const Valeur *valeur = valeurDe(colonne, colonnes, valeurs);
        cle += valeur ? u"%1 %2"_s.arg(colonne, citer(valeur->variante())) : colonne;
    }
    return u"Une ligne de la table %1 porte déjà cette clé : %2."_s.arg(table, cle.join(u", "));
}

QString mots(int code, const QString &texteMoteur, const QString &chemin, const QStringList &colonnes,
             const Valeurs &valeurs)
{
    const QString precision = texteMoteur.section(u": "_s, 1);
    switch (code) {
    case ContrainteCheck:
        return motsDeCheck(precision, colonnes, valeurs);
    case ContrainteCle:
    case ContrainteUnique:
        return motsDeDoublon(precision, colonnes, valeurs);
    case ContrainteNonNul:
        return u"La colonne %1 de la table %2 est obligatoire."_s.arg(precision.section(u'.', 1),
                                                                      precision.section(u'.', 0, 0));
    default:
        break;
    }
    switch (primaire(code)) {
    case Occupee:
    case Verrouillee:
        return u"La base de données « %1 » est occupée par un autre programme."_s.arg(chemin);
    case LectureSeule:
        return u"La base de données « %1 » est en lecture seule."_s.arg(chemin);
    case EntreeSortie:
        return u"Le fichier « %1 » n'a pas pu être lu ou écrit."_s.arg(chemin);
    case Endommagee:
        return u"La base de données « %1 » est endommagée."_s.arg(chemin);
    case DisquePlein:
        return u"Le disque qui porte « %1 » est plein : rien n'a été enregistré."_s.arg(chemin);
    case PasOuvrable:
        return u"Le fichier « %1 » ne peut pas être ouvert."_s.arg(chemin);
    case PasUneBase:
        return u"Le fichier « %1 » n'est pas une base de données."_s.arg(chemin);
    default:
        break;
    }
    if (texteMoteur.startsWith(u"no such table: "))
        return u"La table « %1 » n'existe pas."_s.arg(precision);
    if (texteMoteur.startsWith(u"table [") && texteMoteur.endsWith(u"] already exists"))
        return u"La table « %1 » existe déjà."_s.arg(texteMoteur.section(u'[', 1).section(u']', 0, 0));
    if (texteMoteur.startsWith(u"no such column: "))
        return u"La colonne « %1 » n'existe pas."_s.arg(precision);
    return u"La base de données a refusé l'opération."_s;
}

} // namespace

ErreurSql::ErreurSql(const QString &texte, int code) : ErreurBase(texte), m_code(code) {}

bool ErreurSql::fichierEnCause() const
{
    switch (primaire(m_code)) {
    case LectureSeule:
    case EntreeSortie:
    case Endommagee:
    case DisquePlein:
    case PasOuvrable:
    case PasUneBase:
        return true;
    default:
        return false;
    }
}

bool ErreurSql::occupee() const { return primaire(m_code) == Occupee || primaire(m_code) == Verrouillee; }

ErreurSql erreurSql(const QSqlError &erreur, const QString &chemin, const QStringList &colonnes,
                    const Valeurs &valeurs)
{
    const int code = erreur.nativeErrorCode().toInt();
    const QString texteMoteur = erreur.databaseText().isEmpty() ? erreur.driverText() : erreur.databaseText();
    return ErreurSql(u"%1\n(%2)"_s.arg(mots(code, texteMoteur, chemin, colonnes, valeurs), texteMoteur),
                     code);
}
