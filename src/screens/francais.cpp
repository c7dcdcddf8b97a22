#include "screens/francais.h"

#include <QApplication>
#include <QHash>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// The texts that Qt's own French catalogue leaves out.
class Complement : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }

    QString translate(const char *contexte, const char *source, const char *, int) const override
    {
        static const QHash<QByteArray, QString> textes = {
            {"QAbstractFileIconProvider/Drive", u"Disque"_s},
            {"QAbstractFileIconProvider/File", u"Fichier"_s},
            {"QAbstractFileIconProvider/File Folder", u"Dossier"_s},
            {"QAbstractFileIconProvider/Folder", u"Dossier"_s},
            {"QAbstractFileIconProvider/Alias", u"Alias"_s},
            {"QAbstractFileIconProvider/Shortcut", u"Raccourci"_s},
            {"QAbstractFileIconProvider/Unknown", u"Inconnu"_s},
            {"QCupsPrinterSupport/Authentication Needed", u"Identification nécessaire"_s},
            {"QCupsPrinterSupport/Authentication needed to use %1 on %2.",
             u"Il faut s'identifier pour utiliser %1 sur %2."_s},
            {"QCupsPrinterSupport/Authentication needed to use %1.",
             u"Il faut s'identifier pour utiliser %1."_s},
            {"QCupsPrinterSupport/Password:", u"Mot de passe :"_s},
            {"QCupsPrinterSupport/Username:", u"Utilisateur :"_s},
            {"QErrorMessage/Critical Error:", u"Erreur critique :"_s},
            {"QErrorMessage/Information:", u"Information :"_s},
            {"QFile/Cannot open destination file: %1",
             u"Impossible d'ouvrir le fichier de destination : %1"_s},
            {"QFile/Cannot open for output: %1", u"Impossible d'ouvrir en écriture : %1"_s},
            {"QFile/Error while renaming: %1", u"Erreur au changement de nom : %1"_s},
            {"QFile/Failure to write block: %1", u"Erreur d'écriture : %1"_s},
            {"QFile/Cannot create %1 for output: %2", u"Impossible de créer %1 en écriture : %2"_s},
            {"QFileDevice/No file engine available", u"Ce genre de fichier n'est pas accessible"_s},
            {"QFileSystemModel/<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer "
             "characters or no punctuation marks.",
             u"<b>Le nom « %1 » ne peut pas être utilisé.</b><p>Essayez un autre nom, plus court ou sans "
             "ponctuation."_s},
            {"QPageSetupWidget/Centimeters (cm)", u"Centimètres (cm)"_s},
            {"QPrintDialog/%1 does not follow the correct syntax. Please use ',' to separate ranges and "
             "pages, "
             "'-' to define ranges and make sure ranges do not intersect with each other.",
             u"« %1 » n'est pas une liste de pages. Séparez les pages et les plages par « , », donnez une "
             u"plage "
             "par « - », et ne faites pas se recouvrir les plages."_s},
            {"QPrintDialog/Invalid Pages Definition", u"Liste de pages incorrecte"_s},
            {"QPrintDialog/Duplex Settings Conflicts", u"Réglages du recto verso contradictoires"_s},
            {"QPrintDialog/There are conflicts in duplex settings. Do you want to fix them?",
             u"Les réglages du recto verso se contredisent. Voulez-vous les corriger ?"_s},
            {"QPrintPropertiesDialog/Advanced Option Conflicts", u"Options avancées contradictoires"_s},
            {"QPrintPropertiesDialog/Page Setup Conflicts", u"Mise en page contradictoire"_s},
            {"QPrintPropertiesDialog/Printer Properties", u"Propriétés de l'imprimante"_s},
            {"QPrintPropertiesDialog/There are conflicts in page setup options. Do you want to fix them?",
             u"Les options de mise en page se contredisent. Voulez-vous les corriger ?"_s},
            {"QPrintPropertiesDialog/There are conflicts in some advanced options. Do you want to fix them?",
             u"Des options avancées se contredisent. Voulez-vous les corriger ?"_s},
            {"QPrintPropertiesWidget/Advanced", u"Avancé"_s},
            {"QPrintPropertiesWidget/There are conflicts in some options. Please fix them.",
             u"Des options se contredisent. Veuillez les corriger."_s},
            {"QPrintSettingsOutput/Double Sided Printing", u"Impression recto verso"_s},
            {"QPrintSettingsOutput/Long side binding", u"Reliure sur le grand côté"_s},
            {"QPrintSettingsOutput/Off", u"Non"_s},
            {"QPrintSettingsOutput/Pages", u"Pages"_s},
            {"QPrintSettingsOutput/Short side binding", u"Reliure sur le petit côté"_s},
            {"QPrintSettingsOutput/Specify pages or ranges separated by commas. Ranges are specified by two "
             "numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.",
             u"Pages ou plages séparées par des virgules. Une plage est donnée par deux nombres séparés par "
             u"un "
             "tiret. Exemple : 3,5-7,9 imprime les pages 3, 5, 6, 7 et 9."_s},
            {"QSaveFile/Existing file %1 is not writable", u"Le fichier %1 ne peut pas être remplacé"_s},
            {"QSaveFile/Writing canceled by application", u"Écriture abandonnée par le programme"_s},
        };
        return textes.value(QByteArray(contexte) + '/' + source);
    }
};

} // namespace

void parlerFrancais(QApplication &application)
{
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    auto *complement = new Complement(&application);
    auto *qt = new QTranslator(&application);
    if (!qt->load(u":/i18n/qtbase_fr.qm"_s))
        qFatal("The French texts are missing from the program.");
    // The catalogue installed last is asked first.
    application.installTranslator(complement);
    application.installTranslator(qt);
}
