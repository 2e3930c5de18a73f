#pragma once

#include "model/ChargerAlbums.h"
#include "model/General.h"

#include <QRect>
#include <functional>
#include <variant>

class Base;

/// A cell of a grid of the album sheet: its line as it was read, and which of its two halves.
struct CelluleIntervenant
{
    ChargerAlbums::Intervenant ligne;
    bool activite = false; ///< the trade, else the name
};
struct CelluleCote
{
    ChargerAlbums::Cote ligne;
    bool mois = false; ///< the month, else the quote
};
/// The trades of an author, which are flags in his row.
struct Metiers
{
};

/// What is edited; a null field is nothing.
using Edite = std::variant<const Champs::Champ *, CelluleIntervenant, CelluleCote, Metiers>;

/// A value of a sheet that the user wants to change: what, of which entry, and what it shows.
struct Edition
{
    General::Entree entree;
    Edite quoi = nullptr;
    QString affichee = {}; ///< empty where the sheet shows the dots
    QVariant stockee = {};
    QRect place = {}; ///< of the control, on the screen

    /// False where only an entry is meant, and none of its values.
    bool viseUneValeur() const
    {
        const auto *champ = std::get_if<const Champs::Champ *>(&quoi);
        return !champ || *champ;
    }
};

/// The one door to what stands on the sheets: whatever is typed, chosen, renamed or attached is written through it.
namespace Ecrire {

/// The edition of a field as its entry's sheet shows it now. Throws Error.
Edition EditionDe(General::Entree entree, const Champs::Champ &champ);

/// The row of the field table; null for a cell of a grid, for the trades, and where nothing is edited.
const Champs::Champ *ChampDe(const Edition &edition);
/// Where the values of the field or cell come from, when they are chosen; else null.
const Sources::Source *SourceDe(const Edition &edition);
/// What the field is called, in the language in force.
QString LibelleDe(const Edition &edition);

/// What came of an entered text: why it was refused, or what is to be said of what was written. Both are empty
/// when it was written as it is.
struct Resultat
{
    QString refus;
    QString avis;
};
/// Writes an entered text into its field, as one step. Edits of a memo in one `visite` are one. Throws Error.
Resultat EcrireSaisie(const Edition &edition, const QString &saisie, int visite = 0);

/// The door itself: runs `ecrire` as one step called by the field and the value shown. Nothing is written when the
/// entry is gone, or when `ecrire` returns why it refuses; the reason is returned. Throws Error.
QString EnUnActe(const Edition &edition, const QString &montree, const std::function<QString(Base &)> &ecrire,
    int visite = 0);

/// Why nothing can be written: the entry is gone. Empty when it is there. Throws Error.
QString RaisonSiAbsente(const Edition &edition);

}
