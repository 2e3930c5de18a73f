#pragma once

#include "model/Album.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <array>
#include <functional>
#include <vector>

/// Many albums at once from a file of separated values.
namespace Importer {

/// The column of each thing that an album is made of, the first is 0; -1 for what the file does not have.
using Correspondance = std::array<int, NombreDeRubriques>;
inline Correspondance Aucune()
{
    Correspondance aucune;
    aucune.fill(-1);
    return aucune;
}
/// What can be imported, in the order of the creation's arguments.
std::vector<Rubrique> Rubriques();

/// A file before it is imported: its columns and first rows.
struct Apercu
{
    QStringList entete;
    QList<QStringList> rangees;
    int nombre = 0; ///< of rows in all
};
/// Throws Error when the file cannot be read or is no such file.
Apercu Lire(const QString &chemin);

/// The columns whose names tell what they hold, in the words of the six languages and of the program's own lists.
Correspondance Proposer(const QStringList &entete);

/// What a row gives: an album, or why there is none, in one line. A picture's path stays as it is.
struct Composee
{
    Album album;
    QString refus;
};
Composee Composer(const QStringList &cellules, const Correspondance &correspondance);

enum class Doublons { Sauter, Prendre };

/// What became of the rows, by the numbers of the lines on which they end.
struct Rapport
{
    struct Refus
    {
        int ligne;
        QString raison;
    };
    QList<int> crees;
    QList<int> sautes; ///< albums that the collection had
    QList<Refus> refus;
    bool annule = false; ///< nothing was imported
};

/// Told how far the work is, in percent; false ends it.
using Avance = std::function<bool(int pourcent)>;

/// Creates the albums of a file as one step; a picture given by the path of a file is taken into the collection.
/// When it is ended or fails nothing is left of it, no row and no picture. Throws Error.
Rapport ImporterAlbums(const QString &chemin, const Correspondance &correspondance, Doublons doublons,
    const Avance &avance = {});

}
