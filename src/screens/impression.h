#pragma once

#include <QString>

struct Contexte;
struct Document;
class MiseEnPage;
class QPrinter;
class QWidget;

/// Gives the printer the sheet and the name of the print job.
void preparer(QPrinter &imprimante, const MiseEnPage &pages);

/// Prints what the clerk asked the printer for: the pages of the range, and the copies where the printer does
/// not make them by itself. A printer that prints to a file makes one that its owner alone can read.
/// @throws ErreurFichier when the printer or the file can't be written
void imprimer(const MiseEnPage &pages, QPrinter &imprimante);

/// Writes the document as a PDF that its owner alone can read, in place of what is there.
/// @throws ErreurFichier, and what was there stays
void enregistrerPdf(const MiseEnPage &pages, const QString &chemin);

/// Shows the document as it will be on paper, in a window from which it is printed or saved as a PDF, until
/// the clerk closes it.
void montrerApercu(const Document &document, Contexte &contexte, QWidget *parent);
