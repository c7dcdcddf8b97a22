#include "screens/dernierrecours.h"

#include "rules/dialogue.h"
#include "rules/erreurs.h"

#include <QCoreApplication>

#include <new>

using namespace Qt::StringLiterals;

namespace {

/// The text of the exception that is being handled.
QString texteDeLEchec()
{
    try {
        throw;
    } catch (const Erreur &erreur) {
        return erreur.texte();
    } catch (const std::bad_alloc &) {
        return u"Mémoire insuffisante."_s;
    } catch (const std::exception &erreur) {
        return u"Erreur inattendue : "_s + QString::fromLocal8Bit(erreur.what());
    } catch (...) {
        return u"Erreur inattendue."_s;
    }
}

bool estFatal()
{
    try {
        throw;
    } catch (const ErreurFatale &) {
        return true;
    } catch (...) {
        return false;
    }
}

} // namespace

DernierRecours::DernierRecours(Dialogue &dialogue, std::function<void()> annuler)
    : m_dialogue(dialogue), m_annuler(std::move(annuler))
{
}

DernierRecours::Echec DernierRecours::annuler() noexcept
{
    Echec echec;
    try {
        echec = {texteDeLEchec(), estFatal()};
        // Before the box: it runs the event loop, and nothing may see the half-done rows meanwhile.
        if (m_annuler)
            m_annuler();
    } catch (...) {
        try {
            echec.texte += u"\n"_s + texteDeLEchec();
        } catch (...) { // out of memory: the box shows what there is
        }
    }
    return echec;
}

void DernierRecours::montrer(const Echec &echec) noexcept
{
    // What still fails while the program ends has its cause in the failure that was told.
    if (m_fini)
        return;
    m_fini = echec.fatal;
    try {
        m_dialogue.critique(echec.texte);
    } catch (...) { // no memory for a box: the action ends all the same
    }
    if (echec.fatal)
        QCoreApplication::exit(1);
}

void DernierRecours::traiter() noexcept { montrer(annuler()); }

void DernierRecours::traiterPlusTard() noexcept
{
    const Echec echec = annuler();
    if (!m_enAttente.isNull() && m_enAttente == echec.texte && !echec.fatal)
        return;
    m_enAttente = echec.texte;
    QMetaObject::invokeMethod(
        &m_boucle,
        [this, echec] {
            montrer(echec);
            m_enAttente.clear();
        },
        Qt::QueuedConnection);
}
