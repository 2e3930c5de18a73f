#pragma once

#include <QString>
#include <optional>
#include <vector>

/// What an album's series tells about the album.
struct InfosAlbum
{
    struct Voisin
    {
        int num = 0;
        QString titre;
    };
    /// One place of the series: an owned album, or a hole when `num` is 0.
    struct Place
    {
        int tome = 0;
        int num = 0;
    };

    int tome = 0;
    int possedes = 0; ///< albums of the series in the collection
    std::vector<int> manquants; ///< tome numbers below the highest one that are not owned
    std::vector<Place> bande; ///< the series in tome order, holes included
    std::optional<Voisin> precedent;
    std::optional<Voisin> suivant;
};

namespace PreparerInfosAlbum {

/// The album within its series; all empty for an album without a series. Throws Error.
InfosAlbum Preparer(int album, int serie);

}
