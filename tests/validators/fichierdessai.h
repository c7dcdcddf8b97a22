#pragma once

#include "rules/dialogue.h"
#include "rules/texte.h"
#include "validators/validateur.h"

#include <QBuffer>
#include <QStringList>

/// A file of one format that every rule accepts.
struct FichierDessai
{
    QString nom;
    QString marque;
    QString entete;
    QString bonneLigne;
};

using namespace Qt::StringLiterals;

/// The line: a national who entered long before the campaign of 2024.
inline const FichierDessai essaiDas{
    u"12345678_DAS_2024.txt"_s, u"DAS KORVANDEL VER 3.0"_s, u"12345678;2024;1;0;1;"_s,
    u"801234000168;BENALI;Karim;M;15/03/1980;Oran;Cité des Érables;Oran;31000;N;N;123456768;;;;maçon;1000.50;"
    "12;M;01/09/2010;E;M;0550112233;a.b@c.dz;;004;Ali;ZIANI;Lou;119800315012340001;01234;"_s};

/// The line: a national who entered long before the first quarter of 2024.
inline const FichierDessai essaiDac{
    u"12345678_DAC_NOMINATIVE_2024T1.txt"_s, u"DAC NOMINATIVE KORVANDEL VER 1.0"_s,
    u"12345678;2024T1;1;0;1;1;"_s,
    u"801234000168;BENALI;Karim;15/03/1980;N;01234;3101;Ali;ZIANI;Lou;N;119800315012340001;123456768;;maçon;"
    "50000,50;12;J;01/09/2010;E;0550112233;a.b@c.dz;;004;Cité des Érables;"_s};

/// The line: somebody whose site stood still in January 2024.
inline const FichierDessai essaiCi{
    u"123456780000000001_CI.txt"_s, u"DECLARATION CHOMAGE INTEMPERIE KORVANDEL VER 2.0"_s,
    u"123456780000000001;05/01/2024;12/01/2024;0;1;0;0;0;40;00712345678901234561;AGENCE;0660112233;"_s,
    u"801234000168;BENALI;Karim;15/03/1980;maçon;01/09/2010;05/01/2024;12/01/2024;40;100,00;3000;"_s};

/// The good line with changes such as "21=S|20=01/09/2024".
inline QString ligneAvec(const QString &bonneLigne, const QString &changements)
{
    QStringList champs = bonneLigne.chopped(1).split(u';');
    for (const QString &changement : changements.split(u'|', Qt::SkipEmptyParts)) {
        const auto egal = changement.indexOf(u'=');
        champs[changement.first(egal).toInt() - 1] = changement.sliced(egal + 1);
    }
    return champs.join(u';') + u';';
}

inline Verdict extraire(Validateur &validateur, const QStringList &lignes, const QString &nom,
                        Dialogue &dialogue)
{
    QBuffer source;
    source.setData(encoder(lignes.join(u"\r\n"_s)));
    return validateur.extraire(source, nom, dialogue);
}

inline QString libelle(const Validateur &validateur, const QString &nom)
{
    for (const Validateur::Libelle &libelle : validateur.libelles()) {
        if (libelle.nom == nom)
            return libelle.texte;
    }
    return u"(no such label)"_s;
}
