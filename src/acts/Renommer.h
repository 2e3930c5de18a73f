#pragma once

#include "model/General.h"

/// The labels of the lists, read back: what renaming or adding a line writes.
namespace Renommer {

/// Writes the text of a list's label back into the entry: a title is cut at 50 characters, an author's text
/// at its first comma, a press item's apart into name and number. A blank text changes nothing. Throws Error.
enum class Renommage { Rien, Fait, Coupe };
Renommage RenommerEntree(General::Entree entree, const QString &libelle);

/// Adds an entry by the text of its label, with the defaults of a creation; an author who is there already
/// gets the trade of the list. Nothing is added for a blank text, nor when there is such an entry already (of a print
/// one may have several): its number is returned then. Albums are not added so. Throws Error.
struct Ajout
{
    int id = 0;
    bool nouveau = false;
};
Ajout AjouterEntree(General::Tri tri, const QString &libelle);

/// Name and number of a press item as its label shows them; no number when the label has none.
struct DePresse
{
    QString nom;
    std::optional<int> numero;
};
DePresse LireDePresse(const QString &libelle);

}
