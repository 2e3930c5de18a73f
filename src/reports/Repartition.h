#pragma once

#include <QString>
#include <vector>

/// How the albums are spread, for the charts: each part with the albums behind it.
namespace Repartition {

/// The charts, in their order.
enum class Sujet { Genres, Editeurs, Decennies, Croissance, Valeurs };
constexpr int NombreDeSujets = 5;

/// What the figures of a chart are.
struct Serie
{
    QString libelle;
    bool cumulee = false; ///< a total that runs on, beside the figures of each part
};

struct Part
{
    QString libelle;
    std::vector<double> valeurs; ///< one for each series of the chart
    std::vector<int> albums; ///< the albums behind it, by number
    bool inconnue = false; ///< nobody can say where these belong
    QString abrege = {}; ///< its name where there is little room; empty when that is the whole name
};

struct Graphique
{
    Sujet sujet = Sujet::Genres;
    bool periodes = false; ///< the parts follow each other in time
    bool montants = false; ///< figures are amounts in euros, else numbers of albums
    std::vector<Serie> series;
    std::vector<Part> parts;
};

/// What a chart is called, in the language in force.
QString Titre(Sujet sujet);

/// Genres by their number of albums, an album counting in each of its own; the fifteen largest publishers and
/// the rest; publication by decades; purchases by years, with the size of the collection; what the albums of a
/// year of purchase cost, and what they were last quoted at. Dates that nobody can read come last, as unknown.
/// Throws Error.
Graphique Lire(Sujet sujet);

}
