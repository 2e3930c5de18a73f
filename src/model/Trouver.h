#pragma once

#include "model/Especes.h"

#include <QStringList>

class Base;

/// The entry that a name names, whatever its letter case; of several the oldest one. 0 when there is none. All throw
/// Error.
namespace Trouver {

/// By the whole name; of an author's namesakes one who has the trade comes first.
int ParNom(const Base &base, const Especes::Espece &espece, const QString &nom,
    std::optional<AccesBase::Role> metier = {});
/// A person by both names.
int Personne(const Base &base, const Especes::Espece &espece, const QString &nom, const QString &prenom);
/// By a text as labels show it: a person's two names, then the whole text as the name.
int ParTexte(const Base &base, const Especes::Espece &espece, const QString &texte,
    std::optional<AccesBase::Role> metier = {});
/// True when there is an entry of this number.
bool Existe(const Base &base, const Especes::Espece &espece, int numero);

/// The name and first name of a text with one comma and something on both sides of it, in the order of the labels;
/// any other text is a name.
struct Noms
{
    QString nom;
    QString prenom = {};
};
Noms Separer(const Especes::Espece &espece, const QString &texte);

/// The names of a text that may hold several, joined by commas: the whole text when there is such an entry, else its
/// parts, each once. A name with a comma of its own may stand in double quotes.
QStringList Enumerer(const Base &base, const Especes::Espece &espece, const QString &texte);

}
