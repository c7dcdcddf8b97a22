#pragma once

#include <QString>

#include <array>
#include <functional>
#include <string_view>

class ListesErreurs;
class ListeTextes;
struct Resultat;

/// Writes results, in UTF-8. What a report needs of memory it takes before its first byte, so that no report
/// is cut short for want of it.
class Rapport
{
public:
    /// @param sortie takes pieces of the report
    explicit Rapport(std::function<void(std::string_view)> sortie);

    /// One JSON object on one line, with its line end.
    void json(const Resultat &resultat);
    /// The same for people: verdict, counts, messages, the two labels of results, then the entries. Control
    /// characters of the file are shown by their rank.
    void texte(const Resultat &resultat);

private:
    enum class Forme { Json, Lisible };

    void brut(std::string_view octets);
    void nombre(qint64 valeur);
    void caractere(char32_t c, Forme forme);
    void ecrire(QStringView texte, Forme forme);
    void ecrire(const ListeTextes &liste, qsizetype rang, Forme forme);
    /// Each line of the text behind blanks.
    void alinea(QStringView texte);

    void chaine(QStringView texte);
    void chaine(const ListeTextes &liste, qsizetype rang);
    void listeJson(std::string_view nom, const ListesErreurs &listes);
    void listeLisible(std::string_view titre, const ListesErreurs &listes);
    void vider();

    std::function<void(std::string_view)> m_sortie;
    std::array<char, 64 * 1024> m_tampon;
    std::size_t m_rempli = 0;
};
