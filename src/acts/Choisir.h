#pragma once

#include "acts/Ecrire.h"

/// The choice of a value that is an entry of another table, or a date: what is offered for a field, and what
/// happens when one is taken. All throw Error.
namespace Choisir {

/// True for a field that a date is chosen for.
bool EstUneDate(const Edition &edition);

/// The entries to choose from, with the one that the field holds.
General::Choix LireChoix(const Edition &edition);

/// A choice: an entry of the list, or a text that was typed. Without both it is empty.
struct Choisie
{
    int id = 0;
    QString texte;
    bool neuve = false; ///< a person of this name is made, whoever else bears a part of it
};

/// The entry that a typed text names, whatever case; 0 for none. A person is "name, first name", a contributor
/// "first name , name".
int Chercher(const Edition &edition, const QString &texte);

/// The entry whose whole name, first name included, a typed text is, whether the field offers it or not; 0 for none.
int PorteurDe(const Edition &edition, const QString &texte);

/// The names of a typed text that name nobody yet: what validating will add.
QStringList Nouveaux(const Edition &edition, const QString &texte);

/// Adds what a text names to the field's table; an author gets the trade of the field. Returns the identifier of the
/// first, 0 for what is no name.
int Ajouter(const Edition &edition, const QString &texte);

/// True when the field holds the number of an entry that is gone: it shows nothing, and can be emptied none the less.
bool TientUnDisparu(const Edition &edition);
/// True when the field holds something and may be emptied; names and titles may not.
bool PeutVider(const Edition &edition);
/// Stores nothing in the field, as one step.
void Vider(const Edition &edition);

/// Stores a choice as one step: finds or makes the entry, replaces the album's links of that table, writes the
/// field. Says why not, in one line, when the entry edited or the one chosen is gone; nothing is written then.
QString Valider(const Edition &edition, const Choisie &choisie);

}
