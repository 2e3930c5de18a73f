#pragma once

#include "model/General.h"

#include <QString>
#include <optional>

/// What was asked for on the command line.
struct Options
{
    QString dossier;
    QString capture; ///< file of the picture to take; empty when none is asked for
    QString forme = QStringLiteral("Frmmain");
    std::optional<int> entree; ///< identifier, from a key "N 12"

    /// The options, or the code with which the program ends at once (after --help, --version, or a fault). It
    /// needs no display.
    static std::optional<Options> Lire(int argc, char **argv, int &code);
};
