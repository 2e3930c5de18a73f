#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>
#include <vector>

/// The tables of the collection: one place says which there are and what their fields hold. The program reads
/// and upgrades a collection; only the build makes an empty one.
namespace Schema {

/// What a field holds: an identifier, a whole number, -1 or 0, an amount, a text, a text that sorts as a name.
enum class Type { Cle, Entier, Booleen, Montant, Texte, Nom };

struct Champ
{
    const char *nom;
    Type type;
};

struct Table
{
    const char *nom;
    std::vector<Champ> champs;
};

/// The tables of a collection, in the order in which one is filled: albums before what is linked to them.
const std::vector<Table> &Definitions();
/// The one table of the reference catalogue.
const Table &DefinitionDuCatalogue();

/// What `user_version` of an up-to-date file holds: the schema's version below the collator's.
int Version();

/// Set in `user_version` of a reference catalogue whose texts are kept as they came, coded by a rule that
/// nobody knows, so that they must not be decoded.
constexpr int TextesTelsQuels = 0x80;

QStringList Tables();
/// Fields of a table in their order; empty when there is no such table. Names are matched without case.
QStringList Champs(const QString &table);
/// What a new row holds in each of its fields until more is known: a blank, 0, no flag.
QVariantList Blanc(const QString &table);

/// Makes a new, empty collection file. Throws Error when the file exists or cannot be made.
void CreerVierge(const QString &chemin);

/// Makes a new, empty reference catalogue, likewise.
void CreerCatalogue(const QString &chemin);

/// Brings the collection of the application folder up to date: adds the two fields that old files lack, and
/// the sort key of each album in its series. All errors are ignored; a file that is up to date is not written.
void MettreANiveau();

}
