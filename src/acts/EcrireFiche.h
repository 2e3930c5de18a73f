#pragma once

#include "model/Champs.h"

#include <QString>
#include <QVariant>

/// Writing into the rows of a sheet: what an act does once it has begun. Outside of one, every row is committed
/// by itself. All throw Error.
namespace EcrireFiche {

/// Writes one value of an entry; nothing happens when the entry is gone.
void Poser(const Champs::Champ &champ, int id, const QVariant &valeur);

/// Writes an entered text into a field when the field accepts it; false when it refuses, and nothing changes.
/// A summary goes into the list row's copy, too. An author's two names take "first name, name".
bool PoserSaisie(const Champs::Champ &champ, int id, const QString &saisie);

/// The trades of an author, by their words separated by "|": the flag of each that is not named is cleared.
void PoserMetiers(int auteur, const QString &metiers);

/// The same as PoserSaisie, by the name of the field; an author's trades are "Métiers".
bool PoserParNom(Champs::Feuille feuille, int id, const QString &nom, const QString &saisie);

}

// The names that the write-back routines of the sheets were given; each is PoserParNom on the sheet of its kind.
namespace ChargerAlbums {
/// "DateD" is the album's publication date here; the dedication's has a routine of its own.
bool EcrireAlbum(int num, const QString &champ, const QString &valeur);
}
namespace ChargerSeries {
inline bool EcrireSerie(int n, const QString &champ, const QString &valeur)
{
    return EcrireFiche::PoserParNom(Champs::Feuille::Serie, n, champ, valeur);
}
}
namespace ChargerAuteurs {
inline bool EcrireAuteur(int n, const QString &champ, const QString &valeur)
{
    return EcrireFiche::PoserParNom(Champs::Feuille::Auteur, n, champ, valeur);
}
}
namespace ChargerEditeur {
inline bool EcrireEditeur(int n, const QString &champ, const QString &valeur)
{
    return EcrireFiche::PoserParNom(Champs::Feuille::Editeur, n, champ, valeur);
}
}
namespace ChargerExLibris {
inline bool EcrireExLibris(int n, const QString &champ, const QString &valeur)
{
    return EcrireFiche::PoserParNom(Champs::Feuille::ExLibris, n, champ, valeur);
}
}
namespace ChargerPresse {
inline bool EcrirePresse(int n, const QString &champ, const QString &valeur)
{
    return EcrireFiche::PoserParNom(Champs::Feuille::Presse, n, champ, valeur);
}
}
