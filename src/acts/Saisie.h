#pragma once

#include "acts/Creer.h"

#include <QString>
#include <QStringList>
#include <optional>

/// What the creation forms know of the collection, and how their texts become an album.
namespace Saisie {

/// The names that the choice lists offer, in order; authors as "name, first name". Throws Error.
struct Choix
{
    QStringList series;
    QStringList editeurs;
    QStringList genres;
    QStringList auteurs;
};
Choix LireChoix();

/// One above the highest tome of a series of the collection; nothing when it has no such series. Throws Error.
std::optional<int> ProchainTome(const QString &serie);

/// "dd mmmm yyyy" with the parts that are given; 0 is none. Months by name, in the language in force.
QString ComposerDate(int jour, int mois, int annee);

/// The form's fields as they were typed.
struct Textes
{
    Creer::Album album; ///< all but tome, price and pictures
    QString tome;
    QString prix;
    QString photo1; ///< picture files, by path
    QString photo2;
};

/// A field that refuses its text, and why, in one line.
struct Refus
{
    QString champ;
    QString raison;
};
/// The first refusal, before anything is written; nothing when all is well.
std::optional<Refus> Verifier(const Textes &textes);

/// The album of texts that have passed Verifier, without the pictures.
Creer::Album Composer(const Textes &textes);

/// Takes the pictures into the collection and creates the album; returns its number. The texts must have
/// passed Verifier. Throws Error.
int CreerAlbum(const Textes &textes);

}
