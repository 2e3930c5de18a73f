#pragma once

/// What `user_version` of a file says: in its lowest byte the schema step that it has reached, above it the version
/// of the collator that its indexes were made with.
namespace Version {

/// Files from before the steps were counted say 0 or 1, whatever they hold.
constexpr int PremierPalier = 1;
constexpr int DernierPalier = 2;

/// Set in the lowest byte of a reference catalogue whose texts are kept as they came, coded by a rule that nobody
/// knows, so that they must not be decoded. Catalogues have no steps.
constexpr int TextesTelsQuels = 0x80;

constexpr int BitsDuPalier = 0xFF;

constexpr int Palier(int inscrite)
{
    const int palier = inscrite & BitsDuPalier;
    return palier < PremierPalier ? PremierPalier : palier;
}
constexpr int Ordre(int inscrite)
{
    return static_cast<int>(static_cast<unsigned>(inscrite) >> 8);
}
constexpr int Composer(int ordre, int palier)
{
    return ordre << 8 | palier;
}

}
