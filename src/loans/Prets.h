#pragma once

#include "model/Entrees.h"

#include <QString>
#include <optional>
#include <vector>

/// Who has albums of the collection, and which. All throw Error.
namespace Prets {

/// The borrowers, by name.
Entrees LireEmprunteurs();

struct Pret
{
    int album = 0;
    QString titre;
    QString emprunteur;
    std::optional<int> jours; ///< out since; nothing when the stored date names no day, or one to come
};
/// The albums lent to a borrower by tome, or all that are lent, by title, for number 0. Albums without a list
/// row are left out.
std::vector<Pret> LirePrets(int emprunteur);

}
