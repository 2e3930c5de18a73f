#pragma once

#include "core/Error.h"

#include <optional>

/// The kind of the Error that an act throws; nothing when it throws none.
template <class Acte>
std::optional<Error::Sorte> refus(Acte &&acte)
{
    try {
        acte();
    } catch (const Error &e) {
        return e.sorte();
    }
    return std::nullopt;
}
