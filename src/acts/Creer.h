#pragma once

#include "model/Album.h"
#include "model/Trouver.h"

/// The creation of an album with its link rows: the one way in which albums come to be, whatever they come from.
namespace Creer {

/// True when the collection has an album of this title, tome and series, texts compared as the engine does.
/// Throws Error.
bool Existe(const Album &album);

/// Makes the album and all that ties it to the collection; returns its number. Titles are cut at 50 characters; names
/// are looked up and made when there are none; the texts must be such as their fields take. Every row is committed by
/// itself unless a Transaction holds it, so what was made before an error stays. Throws Error.
int CreerAlbum(const Album &album);

/// The same as one act: what a form does. After an error nothing stays of it.
int CreerEnUnActe(const Album &album);

/// Credits an author on an album in a role; one who is credited already gets the role's flag beside those he
/// has. Returns his number, 0 for a blank name. Throws Error.
int AjouterAuteur(const QString &nom, AccesBase::Role role, int album);

/// A new entry of a kind that has names, with the defaults of a creation: blank texts, 0, marks of 5; of a person the
/// text may say both names. Returns its number. Throws Error.
int CreerEntree(const Especes::Espece &espece, const QString &texte);
int CreerEntree(const Especes::Espece &espece, const Trouver::Noms &noms);

/// A new author with one trade; returns his number. Throws Error.
int CreerAuteur(const QString &texte, AccesBase::Role role);

/// Ties an album to an entry by a row of links. Throws Error.
void Lier(Base &base, const Especes::Espece &espece, int numero, int album);

/// Gives an author a role of an album, beside those he has there. Throws Error.
void LierAuteur(int auteur, AccesBase::Role role, int album);

}
