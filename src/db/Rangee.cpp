#include "db/Rangee.h"

#include <QHashFunctions>
#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Statement.h>
#include <cmath>
#include <cstring>
#include <sqlite3.h>

namespace {

enum class Sorte : char { Nul, Entier, Reel, Texte, Octets };

/// Amounts beyond this are kept as such by the engine, whole or not.
constexpr double EntierMax = 140737488355328.0;

template <class T>
void poser(std::string &octets, T valeur)
{
    octets.append(reinterpret_cast<const char *>(&valeur), sizeof valeur);
}

template <class T>
T lire(std::string_view octets)
{
    T valeur;
    std::memcpy(&valeur, octets.data(), sizeof valeur);
    return valeur;
}

void poserSuite(std::string &octets, Sorte sorte, const void *debut, int taille)
{
    octets.push_back(static_cast<char>(sorte));
    poser(octets, static_cast<quint32>(taille));
    octets.append(static_cast<const char *>(debut), static_cast<std::size_t>(taille));
}

void poserEntier(std::string &octets, qint64 valeur)
{
    octets.push_back(static_cast<char>(Sorte::Entier));
    poser(octets, valeur);
}

void poserReel(std::string &octets, double valeur)
{
    if (std::abs(valeur) < EntierMax && valeur == std::trunc(valeur))
        return poserEntier(octets, static_cast<qint64>(valeur));
    octets.push_back(static_cast<char>(Sorte::Reel));
    poser(octets, valeur);
}

}

void Rangee::Ajouter(std::string &octets, sqlite3_value *valeur)
{
    switch (valeur ? sqlite3_value_type(valeur) : SQLITE_NULL) {
    case SQLITE_INTEGER:
        return poserEntier(octets, sqlite3_value_int64(valeur));
    case SQLITE_FLOAT:
        return poserReel(octets, sqlite3_value_double(valeur));
    case SQLITE_TEXT: {
        const unsigned char *texte = sqlite3_value_text(valeur);
        return poserSuite(octets, Sorte::Texte, texte, sqlite3_value_bytes(valeur));
    }
    case SQLITE_BLOB: {
        const void *suite = sqlite3_value_blob(valeur);
        return poserSuite(octets, Sorte::Octets, suite, sqlite3_value_bytes(valeur));
    }
    default:
        octets.push_back(static_cast<char>(Sorte::Nul));
    }
}

void Rangee::Ajouter(std::string &octets, const SQLite::Column &valeur)
{
    switch (valeur.getType()) {
    case SQLITE_INTEGER:
        return poserEntier(octets, valeur.getInt64());
    case SQLITE_FLOAT:
        return poserReel(octets, valeur.getDouble());
    case SQLITE_TEXT: {
        const char *texte = valeur.getText();
        return poserSuite(octets, Sorte::Texte, texte, valeur.getBytes());
    }
    case SQLITE_BLOB: {
        const void *suite = valeur.getBlob();
        return poserSuite(octets, Sorte::Octets, suite, valeur.getBytes());
    }
    default:
        octets.push_back(static_cast<char>(Sorte::Nul));
    }
}

std::string_view Rangee::Prendre(std::string_view &octets)
{
    std::size_t taille = 1;
    switch (static_cast<Sorte>(octets.front())) {
    case Sorte::Nul:
        break;
    case Sorte::Entier:
    case Sorte::Reel:
        taille += sizeof(qint64);
        break;
    case Sorte::Texte:
    case Sorte::Octets:
        taille += sizeof(quint32) + lire<quint32>(octets.substr(1));
        break;
    }
    const std::string_view valeur = octets.substr(0, taille);
    octets.remove_prefix(taille);
    return valeur;
}

void Rangee::Lier(SQLite::Statement &instruction, int position, std::string_view valeur)
{
    const std::string_view contenu = valeur.substr(1);
    switch (static_cast<Sorte>(valeur.front())) {
    case Sorte::Nul:
        return instruction.bind(position);
    case Sorte::Entier:
        return instruction.bind(position, static_cast<int64_t>(lire<qint64>(contenu)));
    case Sorte::Reel:
        return instruction.bind(position, lire<double>(contenu));
    case Sorte::Texte:
        return instruction.bind(position, std::string(contenu.substr(sizeof(quint32))));
    case Sorte::Octets: {
        const std::string_view suite = contenu.substr(sizeof(quint32));
        return instruction.bind(
            position, static_cast<const void *>(suite.data()), static_cast<int>(suite.size()));
    }
    }
}

quint64 Rangee::Empreinte(std::string_view octets)
{
    return qHashBits(octets.data(), octets.size(), 0);
}
