#include "rules/identite.h"

#include "rules/dialogue.h"
#include "rules/erreurs.h"
#include "rules/texte.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Numbers and addresses are too short for a vectorised search to pay.
bool contient(QStringView texte, QChar c) { return std::find(texte.begin(), texte.end(), c) != texte.end(); }

int valeurChiffre(QChar c, QStringView numero)
{
    if (!estChiffre(c))
        throw ErreurConversion(u"« %1 » n'est pas fait de chiffres seuls."_s.arg(numero));
    return c.unicode() - u'0';
}

/// The key of an employer or social-security number: negative where its digits are large.
int cleSS(QStringView numero)
{
    int somme = 0;
    for (qsizetype i = 0; i < numero.size(); ++i)
        somme += valeurChiffre(numero[i], numero) * (i % 2 == 0 ? 2 : 1);
    return 99 - somme;
}

/// Whether the text is the two digits of this number.
bool estDeuxChiffres(QStringView texte, int nombre)
{
    return texte.size() == 2 && nombre >= 0 && texte[0] == QChar(u'0' + nombre / 10) &&
           texte[1] == QChar(u'0' + nombre % 10);
}

QString cleDeSomme(int somme)
{
    // The text of the sum has a blank in front, the place of its sign.
    return QString::number(somme).rightJustified(2, u' ').right(2);
}

/// Sum of the positions 8 to 1 with the weights 4 to 11; a body of less than 8 digits counts as filled with
/// zeros.
int sommeCCP(QStringView corps)
{
    const qsizetype decalage = corps.size() < 8 ? 8 - corps.size() : 0;
    int somme = 0;
    for (qsizetype position = 8; position >= 1; --position) {
        const qsizetype i = position - 1 - decalage;
        if (i >= 0)
            somme += valeurChiffre(corps[i], corps) * static_cast<int>(12 - position);
    }
    return somme;
}

/// Remainder by 97 of the decimal text of `reste` with the digits behind it; -1 for a text of other
/// characters.
int suiteReste(int reste, QStringView chiffres)
{
    for (const QChar c : chiffres) {
        if (!estChiffre(c))
            return -1;
        reste = (reste * 10 + (c.unicode() - u'0')) % 97;
    }
    return reste;
}

int resteRIB(QStringView chiffres)
{
    return chiffres.isEmpty() ? -1 : suiteReste(0, chiffres.first(std::min<qsizetype>(chiffres.size(), 17)));
}

enum class FauteTelephone { Aucune, Souligne, PremierChiffre, LigneFixe, LigneMobile, Illisible };

FauteTelephone fauteTelephone(QStringView texte)
{
    if (contient(texte, u'_'))
        return FauteTelephone::Souligne;
    if (texte.isEmpty() || texte[0] != u'0')
        return FauteTelephone::PremierChiffre;
    if (texte.size() < 2 || !estChiffre(texte[1]))
        return FauteTelephone::Illisible;
    if (texte[1] >= u'1' && texte[1] <= u'4')
        return FauteTelephone::LigneFixe;
    if (texte.size() < 3 || !estChiffre(texte[2]))
        return FauteTelephone::Illisible;
    if (texte[1] == u'0' && texte[2] >= u'5')
        return FauteTelephone::LigneMobile;
    return FauteTelephone::Aucune;
}

enum class FauteMail { Aucune, Arobase, Point };

FauteMail fauteMail(QStringView texte)
{
    if (!texte.isEmpty() && !contient(texte, u'@'))
        return FauteMail::Arobase;
    // A point farther than four characters from the end counts for nothing, an empty text has none.
    if (!contient(texte.last(std::min<qsizetype>(texte.size(), 4)), u'.'))
        return FauteMail::Point;
    return FauteMail::Aucune;
}

} // namespace

QString CleSS(QStringView numero)
{
    const int cle = cleSS(numero);
    const QString texte = QString::number(cle);
    return cle < 10 ? QString(u'0' + texte) : texte;
}

bool cleSSJuste(QStringView numeroAvecCle)
{
    const qsizetype corps = std::max<qsizetype>(numeroAvecCle.size() - 2, 0);
    return estDeuxChiffres(numeroAvecCle.sliced(corps), cleSS(numeroAvecCle.first(corps)));
}

QString CleCCP(QString &corps)
{
    corps.remove(u' ');
    if (corps.isEmpty())
        return corps;
    corps = corps.rightJustified(8, u'0');
    return cleDeSomme(sommeCCP(corps));
}

QString CleRIB(QStringView chiffres) { return QString::number(resteRIB(chiffres)); }

bool CtrlCompteCCP(QStringView &compte)
{
    QStringView propre = Trim(compte);
    if (propre.size() < 20 && propre.startsWith(u'0')) {
        qsizetype zeros = 0;
        while (zeros < propre.size() && propre[zeros] == u'0')
            ++zeros;
        compte = propre.sliced(zeros);
        propre = Trim(compte);
    }
    if (propre.size() < 5 || propre.size() > 20 || !chiffresSeuls(propre))
        return false;
    if (propre.size() == 20)
        return propre.startsWith(u"007") && resteRIB(propre.sliced(3)) == 0;
    // A key below 10 has a blank in front, which no text of digits equals.
    const int somme = sommeCCP(propre.chopped(2));
    return somme >= 10 && estDeuxChiffres(propre.last(2), somme % 100);
}

bool CtrlRIP(QStringView compte)
{
    // With this prefix a number is never zero.
    return compte.size() == 20 && compte.startsWith(u"007") && resteRIB(compte.sliced(3)) == 0;
}

bool compteBancaireValide(QStringView compte)
{
    return compte.size() == 20 && chiffresSeuls(compte) && compte.count(u'0') != compte.size() &&
           resteRIB(compte.sliced(3)) == 0;
}

bool comptePayable(QStringView ccp, QStringView bancaire)
{
    return CtrlCompteCCP(ccp) || compteBancaireValide(Trim(bancaire));
}

bool CtrlTelephone(QStringView texte, Dialogue &dialogue)
{
    switch (fauteTelephone(texte)) {
    case FauteTelephone::Aucune:
        return true;
    case FauteTelephone::Souligne:
        dialogue.avertir(
            u"Vous devez compléter le numéro de télephone SVP, ne laissez pas de caractère '_'   !"_s);
        return false;
    case FauteTelephone::PremierChiffre:
        dialogue.avertir(u"le pemier chiffre doit impérativement commencer par zéro !"_s);
        return false;
    case FauteTelephone::LigneFixe:
        dialogue.avertir(u"le deuxième chiffre doit impérativement etre égal à zéro pour les lignes fixe "_s);
        return false;
    case FauteTelephone::LigneMobile:
        dialogue.avertir(u"le deuxième chiffre ne doit pas etre égal à zéro pour les lignes mobile "_s);
        return false;
    case FauteTelephone::Illisible:
        // Without a digit in position 2 or 3 there is no rule to name; the caller has words of its own.
        return false;
    }
    return false;
}

bool TelephoneValide(QStringView texte)
{
    return texte.size() == 10 && fauteTelephone(texte) == FauteTelephone::Aucune;
}

bool CtrlMail(QStringView texte, Dialogue &dialogue)
{
    // An address without any point and one whose point stands too far in front get the same words.
    switch (fauteMail(texte)) {
    case FauteMail::Aucune:
        return true;
    case FauteMail::Arobase:
        dialogue.avertir(u"EMail incorrecte, manque du caractère '@' !!"_s);
        return false;
    case FauteMail::Point:
        dialogue.avertir(u"Adresse Mail incorrecte , manque du caractère '.' !!"_s);
        return false;
    }
    return false;
}

bool MailValide(QStringView texte) { return fauteMail(texte) == FauteMail::Aucune; }
