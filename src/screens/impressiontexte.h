#pragma once

#include <QPainter>
#include <QRect>

class QPrinter;

/// Prints lines of text on the printer's pages, wrapped to their width, with the number of the page at the
/// foot; of these only the ones that the clerk wants, when the print dialog was given a range.
class ImpressionTexte
{
public:
    /// Starts the print job. @throws ErreurFichier when the printer or the file can't be written
    explicit ImpressionTexte(QPrinter &imprimante, int corpsPoints = 12);
    ~ImpressionTexte();

    /// How many times the caller has to print its text: once where the printer makes the copies by itself.
    int copies() const { return m_copies; }
    /// Starts a copy on a page of its own, page 1.
    void nouveauDocument();
    /// Prints a line; tabs stand at multiples of eight characters.
    void ligne(const QString &texte);
    /// Ends the job. @throws ErreurFichier when it could not be written
    void finir();

private:
    void nouvellePage();
    void numeroter();
    /// Whether the current page is in the range asked for.
    bool voulue() const;

    QPrinter &m_imprimante;
    QPainter m_peintre;
    QRect m_corps;
    int m_hauteurLigne = 0;
    int m_y = 0;
    int m_page = 0;
    int m_copies = 1;
    /// Whether the printer has its first page.
    bool m_entamee = false;
};
