#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <functional>

/// Reading of comma-separated files (RFC 4180, UTF-8).
namespace Csv {

/// One data row by column name, with the number of the line on which it ends.
struct Rangee
{
    int ligne = 0;
    QStringList cellules;
    const QStringList *entete = nullptr;

    /// The cell of a column; empty when the column or the cell is missing.
    QString operator[](const QString &colonne) const;
};

/// Calls `pour` for each row under the header. Throws Error when the file cannot be read or is no such file.
void Lire(const QString &chemin, const std::function<void(const Rangee &)> &pour);

}
