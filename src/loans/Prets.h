#pragma once

#include <QString>
#include <optional>
#include <vector>

/// Who has albums of the collection, and which. All throw Error.
namespace Prets {

struct Emprunteur
{
    int id = 0;
    QString nom;
    QString prenom;
    QString telephone;
};
/// The borrowers, by name.
std::vector<Emprunteur> LireEmprunteurs();
/// "name, first name"
QString NomDe(const Emprunteur &emprunteur);

/// Who has an album; nothing when it is not lent. A borrower who was deleted has no name any more.
std::optional<Emprunteur> QuiA(int album);

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
