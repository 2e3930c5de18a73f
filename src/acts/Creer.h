#pragma once

#include "model/Especes.h"

#include <QString>

class Base;

/// The creation of an album with its link rows: the one way in which albums come to be, whatever they come from.
namespace Creer {

/// What a new album is made of. Names are looked up and made when there are none; a blank one is none.
struct Album
{
    QString titre; ///< cut at 50 characters
    int tome = 0;
    QString serie;
    QString dateparu;
    QString editeur;
    bool broche = false;
    bool couleur = false;
    bool integrale = false;
    QString genre;
    QString dessin;
    QString color;
    QString scena;
    QString histoire;
    QString photo1;
    QString photo2;
    double prix = 0;
};

/// True when the collection has an album of this title, tome and series, texts compared as the engine does.
/// Throws Error.
bool Existe(const Album &album);

/// Makes the album and all that ties it to the collection; returns its number. Every row is committed by
/// itself unless a Transaction holds it, so what was made before an error stays. Throws Error.
int CreerAlbum(const Album &album);

/// The same as one act: what a form does. After an error nothing stays of it.
int CreerEnUnActe(const Album &album);

/// Credits an author on an album in a role; one who is credited already gets the role's flag beside those he
/// has. Returns his number, 0 for a blank name. Throws Error.
int AjouterAuteur(const QString &nom, AccesBase::Role role, int album);

/// A new entry of a kind that has names, with the defaults of a creation: blank texts, 0, marks of 5; `suite` is
/// what stands behind the name, a first name. Returns its number. Throws Error.
int CreerEntree(const Especes::Espece &espece, const QString &nom, const QString &suite = {});

/// A new author with one trade; returns his number. Throws Error.
int CreerAuteur(const QString &nom, const QString &prenom, AccesBase::Role role);

/// Ties an album to an entry by a row of links. Throws Error.
void Lier(Base &base, const Especes::Espece &espece, int numero, int album);

/// Gives an author a role of an album, beside those he has there. Throws Error.
void LierAuteur(int auteur, AccesBase::Role role, int album);

}
