#pragma once

#include <QObject>

#include <concepts>
#include <functional>
#include <tuple>
#include <type_traits>
#include <utility>

class Dialogue;

/// The last failure handler. What nothing else catches ends here: the open transaction is rolled back, a
/// critical box shows the text, the action ends and the program goes on. After an ErreurFatale the program
/// ends in good order with exit code 1. Every slot goes through agir() or connecter(), so that no exception
/// crosses Qt's event loop.
class DernierRecours
{
public:
    /// @param annuler rolls back whatever transaction is open; does nothing when none is
    DernierRecours(Dialogue &dialogue, std::function<void()> annuler);

    /// Runs an action to its end or to its failure. @return whether it reached its end
    template <std::invocable Action>
    bool agir(Action &&action) noexcept
    {
        try {
            std::invoke(std::forward<Action>(action));
            return true;
        } catch (...) {
            traiter();
            return false;
        }
    }

    /// QObject::connect whose slot runs under agir().
    /// @param action a callable, or a member function of the receiver; like any slot it may take fewer values
    /// than the signal gives
    template <typename Emetteur, typename Signal, typename Recepteur, typename Action>
    QMetaObject::Connection connecter(const Emetteur *emetteur, Signal signal, Recepteur *recepteur,
                                      Action action)
    {
        return QObject::connect(
            emetteur, signal, recepteur, [this, recepteur, action](auto... valeurs) -> void {
                this->agir([&] { appeler<sizeof...(valeurs)>(recepteur, action, std::tie(valeurs...)); });
            });
    }

    /// Inside a catch block: handles the exception at once.
    void traiter() noexcept;
    /// Inside a catch block, where no box may open (while a window is painted): rolls back at once and shows
    /// the box from the event loop. A failure that repeats while its box waits or stands is told once.
    void traiterPlusTard() noexcept;

private:
    struct Echec
    {
        QString texte;
        bool fatal = false;
    };

    template <std::size_t Nombre, typename Recepteur, typename Action, typename Valeurs>
    static void appeler(Recepteur *recepteur, const Action &action, const Valeurs &valeurs)
    {
        [&]<std::size_t... I>(std::index_sequence<I...>)
        {
            if constexpr (std::is_invocable_v<Action, std::tuple_element_t<I, Valeurs>...>)
                std::invoke(action, std::get<I>(valeurs)...);
            else if constexpr (std::is_invocable_v<Action, Recepteur *, std::tuple_element_t<I, Valeurs>...>)
                std::invoke(action, recepteur, std::get<I>(valeurs)...);
            else
                appeler<Nombre - 1>(recepteur, action, valeurs);
        }
        (std::make_index_sequence<Nombre>());
    }

    Echec annuler() noexcept;
    void montrer(const Echec &echec) noexcept;

    Dialogue &m_dialogue;
    std::function<void()> m_annuler;
    QObject m_boucle;
    QString m_enAttente;
    bool m_fini = false;
};
