#pragma once

#include <QString>

/// What is done to loans and to those who borrow. A loan begins here, or where its field is chosen. All throw Error.
namespace Preter {

/// Lends an album from today on, whoever had it until then. Nothing happens when the album or the borrower is gone.
void PreterAlbum(int album, int emprunteur);

/// Ends a loan; an album that is gone is no error.
void Rendre(int album);

/// A new borrower, even when there is one of that name; returns his number, 0 for a blank name.
int AjouterEmprunteur(const QString &nom);

/// What is known of a borrower, in the order in which lists show it.
enum class Donnee { Nom, Prenom, Telephone };
/// Writes it; false for a blank name, and nothing is written. A borrower who is gone is no error.
bool EcrireEmprunteur(int emprunteur, Donnee donnee, const QString &saisie);

/// Deletes a borrower. His albums stay marked as lent to his number.
void SupprimerEmprunteur(int emprunteur);

}
