#pragma once

#include "db/schema/Version.h"

#include <QString>
#include <QStringList>
#include <QVariantList>
#include <vector>

/// The tables of the collection: one place says which there are and what their columns hold.
namespace Schema {

/// What a column holds: an identifier, a whole number, -1 or 0, an amount, a text, a text that sorts as a name.
enum class Type { Cle, Entier, Booleen, Montant, Texte, Nom };

struct Colonne
{
    const char *nom;
    Type type;
    int depuis = Version::PremierPalier; ///< the step that brought it
};

struct Table
{
    const char *nom;
    std::vector<Colonne> colonnes;
    int depuis = Version::PremierPalier; ///< the step that brought it
};

/// The tables of a collection, in the order in which one is filled: albums before what is linked to them.
const std::vector<Table> &Definitions();
/// The one table of the reference catalogue.
const Table &DefinitionDuCatalogue();

/// The tables that a collection of this step has.
QStringList Tables(int palier = Version::DernierPalier);
/// The columns of a table in their order; none when there is no such table. Names are matched without case.
QStringList Colonnes(const QString &table);
/// What a new row holds in each of its columns until more is known: a blank, 0, no flag.
QVariantList Blanc(const QString &table);

}
