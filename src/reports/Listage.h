#pragma once

#include "model/Champs.h"
#include "model/General.h"

#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

/// What is printed and exported: entries as rows of chosen columns, or one sheet as its fields.
namespace Listage {

/// A column that can be chosen: a field of the sheets of one kind, under its name in a list.
struct Colonne
{
    const Champs::Champ *champ = nullptr;
    Txt libelle;
    bool contraire = false; ///< "yes" where the flag is not set
    bool dOffice = false; ///< among those that are chosen at first
};
/// The columns that the entries of a kind offer, in the order in which they stand in a list.
std::vector<Colonne> ColonnesDe(General::Tri tri);
/// What the head of a column says, in the language in force.
QString LibelleDe(const Colonne &colonne);

/// The order of albums; other entries come by name.
enum class Ordre { Albums, Series };

/// Takes one row; false ends the walk.
using Rangee = std::function<bool(const QStringList &cellules)>;

/// A table as it is handed to an output. The rows are read while they are walked, never all at once.
struct Tableau
{
    struct Tete
    {
        QString libelle;
        bool aDroite = false; ///< numbers
    };
    QString titre; ///< what is listed
    std::vector<Tete> tetes;
    qint64 lignes = 0; ///< how many rows there will be, for the progress
    /// Walks the rows; false when it was ended. Throws Error.
    std::function<bool(const Rangee &)> parcourir;
    /// The lines below the rows, known once they were walked.
    std::function<QStringList()> totaux;
    QString image; ///< a picture's file that goes with it, or empty
};

/// The entries of a kind, all or those named. Throws Error.
Tableau DesEntrees(General::Tri tri, const std::vector<Colonne> &colonnes, Ordre ordre = Ordre::Albums,
    std::optional<std::vector<int>> seulement = {});
/// One sheet: what each field is called, and its value where it has one; then what is linked to it. No rows
/// when the entry is gone. Throws Error.
Tableau DeLaFiche(General::Entree entree);

}
