#include "screens/dialogueqt.h"

#include "screens/etatsfenetres.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpacerItem>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

QWidget *fenetreActive()
{
    if (QWidget *modale = QApplication::activeModalWidget())
        return modale;
    if (QWidget *active = QApplication::activeWindow())
        return active;
    // Before the window system has activated anything, at start.
    const auto fenetres = QApplication::topLevelWidgets();
    for (QWidget *fenetre : fenetres) {
        if (fenetre->isVisible() && fenetre->windowType() == Qt::Window)
            return fenetre;
    }
    return nullptr;
}

QMessageBox::Icon icone(Icone icone)
{
    switch (icone) {
    case Icone::Aucune:
        return QMessageBox::NoIcon;
    case Icone::Information:
        return QMessageBox::Information;
    case Icone::Avertissement:
        return QMessageBox::Warning;
    case Icone::Critique:
        return QMessageBox::Critical;
    case Icone::Question:
        return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

/// A text that would stand higher than the screen scrolls, so that the buttons stay in reach.
void defilerSiTropHaut(QMessageBox &boite)
{
    auto *texte = boite.findChild<QLabel *>(u"qt_msgbox_label"_s);
    auto *grille = qobject_cast<QGridLayout *>(boite.layout());
    if (!texte || !grille)
        return;
    const int haut = boite.screen()->availableGeometry().height() * 6 / 10;
    if (texte->sizeHint().height() <= haut)
        return;
    auto *defile = new QScrollArea(&boite);
    defile->setFrameShape(QFrame::NoFrame);
    defile->setFocusPolicy(Qt::NoFocus);
    const int large = texte->sizeHint().width() + defile->verticalScrollBar()->sizeHint().width() + 4;
    delete grille->replaceWidget(texte, defile);
    defile->setWidget(texte);
    texte->adjustSize();
    defile->setMinimumSize(qMin(large, boite.screen()->availableGeometry().width() * 6 / 10), haut);
}

/// A box with a short text is as wide as its title needs.
void laisserLaPlaceDuTitre(QMessageBox &boite)
{
    auto *grille = qobject_cast<QGridLayout *>(boite.layout());
    if (!grille)
        return;
    const int boutonsDuCadre = 140;
    const int large = boite.fontMetrics().horizontalAdvance(boite.windowTitle()) * 5 / 4 + boutonsDuCadre;
    grille->addItem(new QSpacerItem(large, 0), grille->rowCount(), 0, 1, grille->columnCount());
}

QString dossier(const QString &cle)
{
    const QString dernier = reglages().value(cle).toString();
    if (!dernier.isEmpty() && QFileInfo(dernier).isDir())
        return dernier;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

QString choisir(QFileDialog &choix, const QString &cle)
{
    // The system's own dialog speaks the system's language.
    if (QLocale::system().language() != QLocale::French)
        choix.setOption(QFileDialog::DontUseNativeDialog);
    if (choix.exec() != QDialog::Accepted || choix.selectedFiles().isEmpty())
        return {};
    const QString chemin = choix.selectedFiles().constFirst();
    reglages().setValue(cle, QFileInfo(chemin).absolutePath());
    return chemin;
}

} // namespace

bool DialogueQt::montrer(const Boite &boite)
{
    const bool seule = boite.boutons == Boutons::Ok;
    const auto premier = boite.boutons == Boutons::OuiNon ? QMessageBox::Yes : QMessageBox::Ok;
    const auto second = boite.boutons == Boutons::OuiNon ? QMessageBox::No : QMessageBox::Cancel;

    QMessageBox fenetre(fenetreActive());
    fenetre.setObjectName(u"Boite"_s);
    fenetre.setWindowTitle(boite.titre);
    fenetre.setIcon(icone(boite.icone));
    fenetre.setTextFormat(Qt::PlainText);
    fenetre.setText(boite.texte);
    fenetre.setTextInteractionFlags(Qt::TextSelectableByMouse);
    fenetre.setStandardButtons(seule ? QMessageBox::StandardButtons(premier) : premier | second);
    // A desktop theme would label them in its own language.
    fenetre.button(premier)->setText(boite.boutons == Boutons::OuiNon ? u"&Oui"_s : u"OK"_s);
    if (!seule)
        fenetre.button(second)->setText(boite.boutons == Boutons::OuiNon ? u"&Non"_s : u"Annuler"_s);
    fenetre.setDefaultButton(seule || boite.premierParDefaut ? premier : second);
    defilerSiTropHaut(fenetre);
    laisserLaPlaceDuTitre(fenetre);
    return fenetre.exec() == premier;
}

QString DialogueQt::choisirFichier(const QString &titre, const QString &filtre)
{
    const QString cle = u"dossiers/lecture"_s;
    QFileDialog choix(fenetreActive(), titre, dossier(cle), filtre);
    choix.setAcceptMode(QFileDialog::AcceptOpen);
    choix.setFileMode(QFileDialog::ExistingFile);
    return choisir(choix, cle);
}

QString DialogueQt::choisirDestination(const QString &titre, const QString &propose, const QString &filtre)
{
    const QString cle = u"dossiers/ecriture"_s;
    QFileDialog choix(fenetreActive(), titre, dossier(cle), filtre);
    choix.setAcceptMode(QFileDialog::AcceptSave);
    choix.setFileMode(QFileDialog::AnyFile);
    choix.setDefaultSuffix(QFileInfo(propose).suffix());
    choix.selectFile(propose);
    return choisir(choix, cle);
}
