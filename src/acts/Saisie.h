#pragma once

#include "acts/Creer.h"

#include <QString>
#include <QStringList>
#include <map>
#include <optional>

/// What the creation forms know of the collection, and how what was entered becomes an album.
namespace Saisie {

/// The names that the choice lists of the forms offer, in order; authors as "name, first name". Throws Error.
using Choix = std::map<Rubrique, QStringList>;
Choix LireChoix();

/// One above the highest tome of a series of the collection; nothing when it has no such series. Throws Error.
std::optional<int> ProchainTome(const QString &serie);

/// "dd mmmm yyyy" with the parts that are given; 0 is none. Months by name, in the language in force.
QString ComposerDate(int jour, int mois, int annee);

/// What refuses its text, and why, in one line.
struct Refus
{
    Rubrique rubrique;
    QString raison;
};
/// The first refusal, before anything is written; nothing when all is well. A picture that is a path must be the one of
/// a picture file.
std::optional<Refus> Verifier(const Album &album);
/// The same of one text by itself.
std::optional<Refus> VerifierTexte(Rubrique rubrique, const QString &texte);

/// Takes the pictures that are files into the collection and creates the album; returns its number. It must have
/// passed Verifier. Throws Error.
int CreerAlbum(Album album);

}
