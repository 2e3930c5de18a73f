#pragma once

#include <QString>
#include <array>
#include <optional>

/// The album that the looked-over fields of a catalogue page make.
namespace CreationBDNet {

/// The entry fields, by the places that they have on the form.
enum Champ { Titre, Tome, Dateparu, Serie, Genre, Dessin, Scena, Editeur, PrixA };
constexpr int NombreDeChamps = 9;

struct Saisie
{
    std::array<QString, NombreDeChamps> champs;
    bool broche = false;
    bool couleur = false;
    bool integrale = false;
    QString histoire;
    QString photos[2]; ///< bare names of files in "images"
};

/// The first field that refuses its text, and why, in one line; nothing when all is well.
struct Refus
{
    Champ champ;
    QString raison;
};
std::optional<Refus> Verifier(const Saisie &saisie);

/// Creates the album; the fields must have passed Verifier. Returns its number. Throws Error.
int Creer(const Saisie &saisie);

}
