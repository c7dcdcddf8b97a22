#include "screens/impression.h"

#include "rules/dialogue.h"
#include "rules/erreurs.h"
#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "screens/miseenpage.h"
#include "storage/disque.h"
#include "storage/lieux.h"

#include <QAction>
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QScopeGuard>
#include <QScreen>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int Resolution = 1200;

/// Shows that work is under way, until what it gives is gone.
auto sablier()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    return qScopeGuard(&QGuiApplication::restoreOverrideCursor);
}

/// Paints pages on a device that is all theirs. @return whether the device took them
bool peindre(const MiseEnPage &pages, QPagedPaintDevice &support, QPainter &peintre, int premiere,
             int derniere)
{
    const QRectF feuille = support.pageLayout().fullRectPixels(support.logicalDpiX());
    for (int page = premiere; page <= derniere; ++page) {
        if (page > premiere && !support.newPage())
            return false;
        pages.peindre(peintre, page, feuille);
    }
    return true;
}

} // namespace

void preparer(QPrinter &imprimante, const MiseEnPage &pages)
{
    imprimante.setPageLayout(pages.feuille());
    imprimante.setDocName(pages.document().titre);
    imprimante.setCreator(TitreApplication.toString());
}

void imprimer(const MiseEnPage &pages, QPrinter &imprimante)
{
    const auto attente = sablier();
    const QString chemin = imprimante.outputFileName();
    if (!chemin.isEmpty()) {
        // The file is there, empty and closed to others, before the first word goes into it.
        QFile fichier(chemin);
        if (!creerPrive(fichier))
            throw erreurEcriture(chemin, fichier.errorString());
    }
    imprimante.setFullPage(true);
    QPainter peintre;
    if (!peintre.begin(&imprimante)) {
        throw ErreurFichier(
            u"L'impression n'a pas pu commencer : l'imprimante ou le fichier n'est pas accessible."_s);
    }
    const bool plage = imprimante.printRange() == QPrinter::PageRange;
    const int premiere = plage ? std::clamp(imprimante.fromPage(), 1, pages.pages()) : 1;
    const int derniere = plage ? std::min(imprimante.toPage(), pages.pages()) : pages.pages();
    const int copies = imprimante.supportsMultipleCopies() ? 1 : std::max(1, imprimante.copyCount());
    bool bien = true;
    for (int copie = 0; bien && copie < copies; ++copie) {
        bien =
            (copie == 0 || imprimante.newPage()) && peindre(pages, imprimante, peintre, premiere, derniere);
    }
    if (!peintre.end() || !bien || imprimante.printerState() == QPrinter::Error)
        throw ErreurFichier(u"L'impression n'a pas pu être terminée."_s);
}

void enregistrerPdf(const MiseEnPage &pages, const QString &chemin)
{
    const auto attente = sablier();
    QSaveFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly))
        throw erreurEcriture(chemin, fichier.errorString());
    fichier.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    {
        QPdfWriter pdf(&fichier);
        pdf.setTitle(pages.document().titre);
        pdf.setCreator(TitreApplication.toString());
        pdf.setResolution(Resolution);
        pdf.setPageLayout(pages.feuille());
        QPainter peintre(&pdf);
        if (!peindre(pages, pdf, peintre, 1, pages.pages()) || !peintre.end())
            throw erreurEcriture(chemin, fichier.errorString());
    }
    if (!fichier.commit())
        throw erreurEcriture(chemin, fichier.errorString());
}

void montrerApercu(const Document &document, Contexte &contexte, QWidget *parent)
{
    const MiseEnPage pages(document);
    QPrinter imprimante(QPrinter::HighResolution);
    preparer(imprimante, pages);

    QPrintPreviewDialog apercu(&imprimante, parent);
    apercu.setObjectName(document.nom);
    apercu.setWindowTitle(document.titre);
    contexte.dernierRecours.connecter(&apercu, &QPrintPreviewDialog::paintRequested, &apercu,
                                      [&pages](QPrinter *sur) { imprimer(pages, *sur); });
    QAction *impression = nullptr;
    for (QAction *action : apercu.findChildren<QAction *>()) {
        const auto est = [action](const char *texte) {
            return action->text() == QPrintPreviewDialog::tr(texte);
        };
        // The sheet is the document's own.
        if (est("Portrait") || est("Landscape") || est("Page setup"))
            action->setVisible(false);
        else if (est("Print"))
            impression = action;
    }
    auto *barre = apercu.findChild<QToolBar *>();
    auto *pdf = new QAction(apercu.style()->standardIcon(QStyle::SP_DialogSaveButton),
                            u"Enregistrer en PDF..."_s, &apercu);
    pdf->setObjectName(u"EnregistrerPdf"_s);
    pdf->setIconText(pdf->text());
    // First, and in words: a narrow window hides what comes last.
    QAction *premiere = barre->actions().constFirst();
    for (QAction *visible : {impression, pdf}) {
        if (!visible)
            continue;
        visible->setShortcut(visible == pdf ? QKeySequence::Save : QKeySequence::Print);
        barre->insertAction(premiere, visible);
        qobject_cast<QToolButton *>(barre->widgetForAction(visible))
            ->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
    barre->insertSeparator(premiere);
    contexte.dernierRecours.connecter(pdf, &QAction::triggered, &apercu, [&] {
        const QString chemin = contexte.dialogue.choisirDestination(
            u"Enregistrer en PDF"_s, nomDeFichier(document.fichier), u"Documents PDF (*.pdf)"_s);
        if (chemin.isEmpty())
            return;
        enregistrerPdf(pages, chemin);
        contexte.dialogue.informer(u"Document enregistré vers "_s + QDir::toNativeSeparators(chemin));
    });

    apercu.setWindowFlag(Qt::WindowMaximizeButtonHint);
    apercu.resize(QSize(1000, 800).boundedTo(apercu.screen()->availableSize() * 0.95));
    if (auto *largeur = apercu.findChild<QAction *>(u"fitWidthAction"_s); largeur && document.paysage)
        largeur->trigger();
    apercu.exec();
}
