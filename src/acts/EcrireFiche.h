#pragma once

#include "model/Champs.h"

#include <QString>
#include <QVariant>

/// Writing into the rows of a sheet: what an act does once it has begun. Outside of one, every row is committed
/// by itself. All throw Error.
namespace EcrireFiche {

/// Writes one value of an entry; nothing happens when the entry is gone.
void Poser(Champs::Feuille feuille, int id, const char *nom, const QVariant &valeur);

/// Writes an entered text into a field when the field accepts it; false when it refuses, and nothing changes.
/// A summary goes into the list row's copy, too. An author's "Nom" and "Prenom" take "first name, name"; his
/// "Métiers" takes trade names separated by "|", and clears the flag of each that is not named.
bool PoserSaisie(Champs::Feuille feuille, int id, const QString &nom, const QString &saisie);

}

// The names that the write-back routines of the sheets were given; each is PoserSaisie on the sheet of its kind.
namespace ChargerAlbums {
/// "DateD" is the album's publication date here; the dedication's has a routine of its own.
bool EcrireAlbum(int num, const QString &champ, const QString &valeur);
}
namespace ChargerSeries {
inline bool EcrireSerie(int n, const QString &champ, const QString &valeur)
{
    return EcrireFiche::PoserSaisie(Champs::Feuille::Serie, n, champ, valeur);
}
}
namespace ChargerAuteurs {
inline bool EcrireAuteur(int n, const QString &champ, const QString &valeur)
{
    return EcrireFiche::PoserSaisie(Champs::Feuille::Auteur, n, champ, valeur);
}
}
namespace ChargerEditeur {
inline bool EcrireEditeur(int n, const QString &champ, const QString &valeur)
{
    return EcrireFiche::PoserSaisie(Champs::Feuille::Editeur, n, champ, valeur);
}
}
namespace ChargerExLibris {
inline bool EcrireExLibris(int n, const QString &champ, const QString &valeur)
{
    return EcrireFiche::PoserSaisie(Champs::Feuille::ExLibris, n, champ, valeur);
}
}
namespace ChargerPresse {
inline bool EcrirePresse(int n, const QString &champ, const QString &valeur)
{
    return EcrireFiche::PoserSaisie(Champs::Feuille::Presse, n, champ, valeur);
}
}
