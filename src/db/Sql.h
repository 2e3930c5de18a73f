#pragma once

#include <QString>

/// The texts of queries, brought into the form that the engine takes.
namespace Sql {

/// The words true and false outside quotes become -1 and 0; trailing blanks and semicolons are cut.
QString Normaliser(const QString &sql);

/// True for INSERT, UPDATE and DELETE, which change rows and leave the tables what they are.
bool EstUneEcriture(const QString &sql);

/// A name between double quotes, as the engine takes it.
QString Nom(const QString &nom);

}
