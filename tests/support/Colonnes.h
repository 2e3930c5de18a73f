#pragma once

#include <QTest>
#include <tuple>
#include <utility>

inline constexpr const char *RangsDesColonnes[] = {"1", "2", "3", "4", "5", "6"};

/// A table of cases: its columns by their types alone, then a call for each row, by its name and values. What they mean
/// is said by the names that essai() gives them where they are used.
template <class... Types>
struct Colonnes
{
    Colonnes()
    {
        [&]<std::size_t... Rangs>(std::index_sequence<Rangs...>)
        {
            (QTest::addColumn<Types>(RangsDesColonnes[Rangs]), ...);
        }
        (std::index_sequence_for<Types...>());
    }
    void operator()(const char *nom, const Types &...valeurs) const
    {
        (QTest::newRow(nom) << ... << valeurs);
    }
};

/// The row of such a table that is being tried.
template <class... Types>
std::tuple<Types...> essai()
{
    return []<std::size_t... Rangs>(std::index_sequence<Rangs...>)
    {
        return std::tuple<Types...>(
            *static_cast<Types *>(QTest::qData(RangsDesColonnes[Rangs], qMetaTypeId<Types>()))...);
    }
    (std::index_sequence_for<Types...>());
}
