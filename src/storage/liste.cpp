#include "storage/liste.h"

int Liste::sectionDe(QStringView colonne) const
{
    for (int section = 0; section < columnCount(); ++section) {
        if (colonne.compare(nomColonne(section), Qt::CaseInsensitive) == 0)
            return section;
    }
    return -1;
}

QVariant Liste::typee(const QVariant &valeur, Genre genre)
{
    if (valeur.isNull())
        return {};
    if (genre == Genre::Montant && valeur.typeId() == QMetaType::LongLong)
        return QVariant::fromValue(Currency::deDixMilliemes(valeur.toLongLong()));
    if (genre == Genre::Jour) {
        if (const QDate jour = jourStocke(valeur); jour.isValid())
            return jour;
    }
    return valeur;
}
