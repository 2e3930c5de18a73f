#pragma once

#include "model/Champs.h"

#include <QString>
#include <QVariant>
#include <map>
#include <optional>
#include <vector>

/// What a sheet holds for one field: the value as stored and the text to show, empty where there is none.
struct ValeurDeChamp
{
    QVariant stockee;
    QString affichee;
};

/// A loaded sheet: its values by field name.
using Valeurs = std::map<QString, ValeurDeChamp>;

/// The routines that every sheet shares; they walk the field table. All throw Error.
namespace Fiche {

/// Longer titles and tome numbers are cut, in characters.
constexpr qsizetype LongueurTitre = 50;
constexpr qsizetype LongueurTome = 3;

/// The values of an entry's sheet, or nothing when there is no such entry.
std::optional<Valeurs> Lire(Champs::Feuille feuille, int id);

/// A stored value as a person reads it, in the language in force; empty for nothing.
QString Afficher(const Champs::Champ &champ, const QVariant &stockee);

/// The values of a field that takes one of a few, in order: number as stored, and word. None for other fields.
struct Option
{
    int valeur;
    QString mot;
};
std::vector<Option> Options(const Champs::Champ &champ);

/// The value to store for an entered text, or nothing when the field refuses it.
std::optional<QVariant> Verifier(const Champs::Champ &champ, const QString &saisie);
/// What the field takes, in one line, for the user whose text it refused.
QString RaisonDuRefus(const Champs::Champ &champ, const QString &saisie);

/// True when the entry has its row in this table of the sheet, by default in the first.
bool Existe(Champs::Feuille feuille, int id, const char *table = nullptr);

/// A typed amount, in the signs of the language in force; nothing when it is none, or could be two.
std::optional<double> LireMontant(const QString &saisie);

/// The word for a grade of 1 to 5 stars; any other value is the lowest.
QString MotDeLaNote(int note);

}

// The names that the loaders of the sheets were given; each reads the sheet of its kind.
namespace ChargerSeries {
inline std::optional<Valeurs> AfficherSerie(int n)
{
    return Fiche::Lire(Champs::Feuille::Serie, n);
}
}
namespace ChargerAuteurs {
inline std::optional<Valeurs> AfficherAuteur(int n)
{
    return Fiche::Lire(Champs::Feuille::Auteur, n);
}
}
namespace ChargerEditeur {
inline std::optional<Valeurs> AfficherEditeur(int n)
{
    return Fiche::Lire(Champs::Feuille::Editeur, n);
}
}
namespace ChargerExLibris {
inline std::optional<Valeurs> AfficherExLibris(int n)
{
    return Fiche::Lire(Champs::Feuille::ExLibris, n);
}
}
namespace ChargerPresse {
inline std::optional<Valeurs> AfficherPresse(int n)
{
    return Fiche::Lire(Champs::Feuille::Presse, n);
}
}
namespace ChargerColl {
inline std::optional<Valeurs> AfficherColl(int n)
{
    return Fiche::Lire(Champs::Feuille::Coll, n);
}
}
