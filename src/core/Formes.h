#pragma once

#include <QObject>

/// The forms of the program.
namespace Formes {

Q_NAMESPACE

/// By the names that they bear.
enum class Nom {
    Frmmain,
    Splash,
    Manuelle,
    Facile,
    BDNet,
    Apparence,
    Polices, ///< a page of Apparence, as the next
    Textures,
    Stats,
    Impression,
    Acquisition,
    Pret,
    Restauration,
    Recherche,
    FrmModif,
    FrmModif2,
    Import,
};
Q_ENUM_NS(Nom)

}
