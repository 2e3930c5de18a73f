#pragma once

#include <QTest>
#include <tuple>
#include <utility>

inline constexpr const char *RangsDesColonnes[] = {"1", "2", "3", "4", "5", "6"};

/// Columns of a table of cases, by their types alone; essai() names their values where they are used.
template <class... Types>
void colonnes()
{
    [&]<std::size_t... Rangs>(std::index_sequence<Rangs...>) {
        (QTest::addColumn<Types>(RangsDesColonnes[Rangs]), ...);
    }(std::index_sequence_for<Types...>());
}

/// The row of such a table that is being tried.
template <class... Types>
std::tuple<Types...> essai()
{
    return []<std::size_t... Rangs>(std::index_sequence<Rangs...>) {
        return std::tuple<Types...>(
            *static_cast<Types *>(QTest::qData(RangsDesColonnes[Rangs], qMetaTypeId<Types>()))...);
    }(std::index_sequence_for<Types...>());
}
