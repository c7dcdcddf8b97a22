#pragma once

#include "declarations/declaration.h"

class Dialogue;

/// The lines of one declaration: what the lines list shows, and every change of a line with the sums on the
/// header. A change and its sums are one transaction, so that a header never tells of other lines than it
/// has.
class LignesDeclaration
{
public:
    /// Shows all lines in the shared recordset.
    LignesDeclaration(Base &base, const GenreDeclaration &genre, CleDeclaration cle);

    const GenreDeclaration &genre() const { return m_genre; }
    const CleDeclaration &cle() const { return m_cle; }
    Base &base() const { return m_base; }
    Recordset &liste() const { return m_base.*m_genre.lignes; }
    /// The header, read now. @throws ErreurBase when it is gone
    Enregistrement entete() const;

    /// Turns to another declaration, all lines shown.
    void passerA(const CleDeclaration &cle);
    void montrerToutes();
    /// Shows the lines of the employees whose number begins with the text. The order stays, and the current
    /// row where it can.
    void chercher(QStringView debut);

    /// Whether the declaration has a line for the employee, shown or not.
    bool contient(const QString &numero, qint64 cpt_z) const;

    /// Adds a line and makes it the current one; the list shows all lines again after a search.
    /// @param champs all columns but those of the declaration
    void ajouter(const Champs &champs);
    /// Changes a line. @param lue as it was read and shown; refused when it is not that any more
    void modifier(const Enregistrement &lue, const Champs &champs);
    /// Asks, and deletes a line.
    void supprimer(const Enregistrement &lue, Dialogue &dialogue);

private:
    void recalculer();

    Base &m_base;
    const GenreDeclaration &m_genre;
    CleDeclaration m_cle;
    bool m_recherche = false;
};
