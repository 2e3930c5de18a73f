#pragma once

#include "core/Annonces.h"
#include "model/Champs.h"
#include "model/Entrees.h"

#include <QString>
#include <functional>

class Cursor;

/// The lists of the collection.
namespace General {

/// What a list shows; the numbers are those of the setting "Tris".
enum class Tri {
    Albums,
    Series,
    Dessinateurs,
    Scenaristes,
    Coloristes,
    ExLibris,
    Presse,
    Editeurs,
    Collections
};
constexpr int NombreDeTris = 9;

/// An entry as the forms name it to each other.
struct Entree
{
    Tri tri = Tri::Albums;
    int id = 0;
    bool operator==(const Entree &) const = default;
};

/// The entries of a kind that a list shows, in its order.
struct Selection
{
    Tri tri = Tri::Albums;
    std::vector<int> ids;
};

/// One of the lists: whom it holds, and how the window presents it.
struct Liste
{
    Tri tri;
    Txt titre;
    Txt prefixe; ///< stands before the number of lines
    Txt bouton;
    Champs::Feuille feuille;
    const char *icone;
    std::optional<AccesBase::Role> role = {}; ///< the trade of the authors that it lists
};
const Liste &ListeDe(Tri tri);
inline const Especes::Espece &EspeceDe(Tri tri)
{
    return Especes::De(ListeDe(tri).feuille);
}
/// What the entries of a kind must have to be in its list: "Scena <> 0"; empty where the table holds no others.
QString ConditionDe(Tri tri);
/// The kind of a stored number; albums when there is no such kind.
Tri TriDe(int numero);

/// Called now and then during a long fill, with lines done and lines in all.
using Avance = std::function<void(qint64 faites, qint64 total)>;

/// Adds the line of a row that begins with the columns of Especes::Colonnes.
void AjouterLigne(Entrees &entrees, const Cursor &rs, Especes::Libelle forme);

/// All entries of a kind, in order. Throws Error.
Entrees LireListe(Tri tri, const Avance &avance = {});
/// The albums linked to an entry; none for the kinds that have no albums. Throws Error.
Entrees LireAlbums(Tri tri, int id);
/// Front cover (path of its file, empty without one) and tome of an album, as a shelf shows it.
struct Volume
{
    QString image;
    int tome = 0;
};
/// The volumes of these albums, in their order; empty ones for albums that are gone. Throws Error.
std::vector<Volume> LireVolumes(const std::vector<int> &albums);
/// The press items of a publisher. Throws Error.
Entrees LirePresse(int editeur);
/// The entries that a choice offers, and the line of the value to preselect (-1 for none); a value of dots is none.
/// Throws Error.
struct Choix
{
    Entrees entrees;
    int choisie = -1;
};
Choix LireChoix(const Sources::Source &source, const QString &valeur);
/// Numbers of the albums that are lent, in rising order. Throws Error.
std::vector<int> LirePretes();
/// One line of a list, read anew; its text is empty when the entry is gone. Throws Error.
QString LireTexte(Tri tri, int id);

/// True when the list of this kind holds the entry. Throws Error.
bool EstDansLaListe(Tri tri, int id);

/// How many albums and series there are, and what the albums cost. Throws Error.
struct Totaux
{
    qint64 albums = 0;
    qint64 series = 0;
    double valeur = 0;
};
Totaux LireTotaux();

/// True when no list holds anything. Throws Error.
bool EstVierge();

/// True when the collection can only be read. Throws Error.
bool EstEnLectureSeule();

/// True when changes may show in this list.
bool Concerne(const Changements &changements, Tri tri);

/// Why a copy of the collection may not be saved under this path: the name of the file that it would hit.
/// Empty when it may.
QString VerifierCopie(const QString &chemin);
/// Copies the collection file; an existing file is replaced once the copy is whole. Throws Error.
void CopierBase(const QString &chemin);

}
