#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <optional>

/// The routines on the collection that all others share. Each opens the collection by itself (or shares the
/// opening of its caller) and throws Error. Tables and fields are given by name, in any letter case; a name
/// that the schema does not have is a fault of the caller.
namespace AccesBase {

/// The trades of an author, which are the flags of his rows.
enum class Role { Dessin = 0, Scena = 1, Color = 2 };
QString NomDuRole(Role role);

/// Largest identifier plus one; 1 in an empty table. The number of a deleted last entry is given again.
int NouvelIdentifiant(const QString &table, const QString &champ);

/// The names (second field) of a table, in order.
QStringList LireNoms(const QString &table);

// What nothing in the program calls any more stays under its name: EcrireImage, ChercherOuCreer,
// EnregistrerOuSupprimer and CompterLignes.

enum class Rang { Premiere, Seconde };
enum class Sorte { Image, Dedicace };
/// Writes a picture's file name or a dedication into the row with this key. Nothing happens without such a row.
void EcrireImage(
    const QString &table, Rang rang, const QString &champCle, int cle, const QString &valeur, Sorte sorte);

/// The field of the row with this identifier. Without such a row one is made with the value given, under a
/// new identifier, which is handed back.
struct Entree
{
    int identifiant = 0;
    QString valeur;
};
Entree ChercherOuCreer(const QString &table, const QString &champCle, int champ, const Entree &entree);

/// Writes a named entry: an empty value deletes its row, any other is stored; an entry without a row is made
/// (under `ancienne` when that is valid, else under a new identifier). An author gets the flag of the trade.
/// Returns the identifier.
int EnregistrerOuSupprimer(const QString &table, const QString &champCle, int champ, const Entree &entree,
    const QVariant &ancienne = {}, std::optional<Role> role = {});

/// Takes a trade of an album from whoever has it: clears the flag, and deletes the link when no flag is left.
/// Errors are ignored.
void OterRole(int album, Role role);

/// Sets the flag of a trade of an author.
void PoserRole(int auteur, Role role);

/// Deletes all rows of a table whose field has this value.
void SupprimerLignes(const QString &table, const QString &champ, int valeur);

/// 1 when some row's field has this value, else 0.
int CompterLignes(const QString &table, const QString &champ, const QVariant &valeur);

}
