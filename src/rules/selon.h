#pragma once

/// The two forms of a record: the one in which it is entered, and the one in which it is changed.
enum class Forme { Creation, Modification };

/// What a thing is in the one form and in the other.
template <typename T>
struct Selon
{
    T creation;
    T modification;

    constexpr const T &operator[](Forme forme) const
    {
        return forme == Forme::Creation ? creation : modification;
    }
};
