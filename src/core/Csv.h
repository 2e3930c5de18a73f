#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <functional>

/// Reading of files of separated values (RFC 4180), in UTF-8, UTF-16 or else Windows-1252.
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

/// What separates the cells of a file: whichever of comma, semicolon and tab its first line has most often
/// outside quotes. Throws Error when the file cannot be read or is no text.
char Separateur(const QString &chemin);

/// Calls `pour` for each row under the header, which is returned. Throws Error when the file cannot be read or is
/// no such file.
QStringList Lire(
    const QString &chemin, const std::function<void(const Rangee &)> &pour, char separateur = ',');

}
