#include "reports/Repartition.h"

#include "core/Dates.h"
#include "core/Traduction.h"
#include "db/Base.h"
#include "model/Fiche.h"
#include "model/Montant.h"

#include <QCoreApplication>
#include <algorithm>
#include <functional>
#include <map>
#include <unordered_map>

using namespace Repartition;

namespace {

constexpr std::size_t PlusGrands = 15;

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Repartition)
};

Part inconnue()
{
    return {Tr::tr("Inconnu"), {}, {}, true};
}

void compterAlbums(Graphique &graphique)
{
    for (Part &part : graphique.parts)
        part.valeurs = {static_cast<double>(part.albums.size())};
}

/// One part for each entry that albums are linked to, the largest first; albums without a link are unknown.
/// `sql` gives name and album.
std::vector<Part> lireLiens(const char *sql)
{
    const Base base;
    std::map<QString, std::size_t> places;
    std::vector<Part> parts;
    Part sans = inconnue();
    for (auto rs = base.read(QLatin1String(sql)); !rs.AtEnd(); rs.MoveNext()) {
        const QString nom = rs.Fields(0).toString().trimmed();
        const int album = static_cast<int>(rs.Int64(1));
        if (nom.isEmpty()) {
            sans.albums.push_back(album);
            continue;
        }
        const auto [place, neuf] = places.try_emplace(nom, parts.size());
        if (neuf)
            parts.push_back({nom, {}, {}, false});
        parts[place->second].albums.push_back(album);
    }
    std::stable_sort(parts.begin(), parts.end(),
        [](const Part &a, const Part &b) { return a.albums.size() > b.albums.size(); });
    if (!sans.albums.empty())
        parts.push_back(std::move(sans));
    return parts;
}

/// Those beyond the largest become one.
void regrouper(std::vector<Part> &parts)
{
    const bool aInconnue = !parts.empty() && parts.back().inconnue;
    const std::size_t connues = parts.size() - (aInconnue ? 1 : 0);
    if (connues <= PlusGrands + 1)
        return;
    const auto debut = parts.begin() + static_cast<std::ptrdiff_t>(PlusGrands);
    const auto fin = parts.begin() + static_cast<std::ptrdiff_t>(connues);
    Part reste{Tr::tr("Autres (%1)").arg(fin - debut), {}, {}, false};
    for (auto part = debut; part != fin; ++part)
        reste.albums.insert(reste.albums.end(), part->albums.begin(), part->albums.end());
    std::sort(reste.albums.begin(), reste.albums.end());
    reste.albums.erase(std::unique(reste.albums.begin(), reste.albums.end()), reste.albums.end());
    *debut = std::move(reste);
    parts.erase(debut + 1, fin);
}

struct Achat
{
    int album = 0;
    int annee = 0; ///< 0 when nobody can say
    double prix = 0;
};

/// The year of a stored date, 0 when there is none; many albums bear the same text.
int anneeDe(const QString &texte, std::unordered_map<QString, int> &connues)
{
    const auto [place, neuf] = connues.try_emplace(texte, 0);
    if (neuf) {
        const auto date = Dates::Lire(texte);
        place->second = date ? date->annee : 0;
    }
    return place->second;
}

std::vector<Achat> lireAnnees(const char *colonne)
{
    const Base base;
    std::unordered_map<QString, int> connues;
    std::vector<Achat> achats;
    for (auto rs = base.read(
             QStringLiteral("SELECT Num, PrixA, %1 From Album where Num > 0").arg(QLatin1String(colonne)));
         !rs.AtEnd(); rs.MoveNext())
        achats.push_back({static_cast<int>(rs.Int64(0)), anneeDe(rs.Fields(2).toString().trimmed(), connues),
            rs.Fields(1).toDouble()});
    return achats;
}

/// One part for each period of `pas` years from the first to the last, empty ones too, unless they are many.
std::map<int, Part> periodes(const std::vector<Achat> &achats, int pas)
{
    constexpr int PlusLongVide = 60;
    std::map<int, Part> parts;
    for (const Achat &achat : achats) {
        if (achat.annee > 0)
            parts.try_emplace(achat.annee / pas * pas);
    }
    if (parts.size() > 1 && parts.rbegin()->first - parts.begin()->first <= PlusLongVide * pas) {
        for (int annee = parts.begin()->first; annee < parts.rbegin()->first; annee += pas)
            parts.try_emplace(annee);
    }
    for (auto &[annee, part] : parts) {
        part.libelle
            = pas == 1 ? QString::number(annee) : QStringLiteral("%1-%2").arg(annee).arg(annee + pas - 1);
        part.abrege = QString::number(annee);
    }
    return parts;
}

/// What the albums are quoted at: the amount of the latest month that can be read, else of the last one noted.
std::unordered_map<int, double> lireCotes()
{
    struct Derniere
    {
        QDate jour;
        double montant = 0;
    };
    const Base base;
    std::unordered_map<int, Derniere> cotes;
    std::unordered_map<QString, QDate> jours;
    for (auto rs = base.read(QStringLiteral("SELECT NAlbum, Mois, Cotes From CotesAlbum")); !rs.AtEnd();
         rs.MoveNext()) {
        // Of what could be two amounts the larger one is meant: nobody quotes thousandths.
        const auto lectures = Montant::Lectures(rs.Fields(2).toString());
        if (lectures.empty())
            continue;
        const auto [jour, neuf] = jours.try_emplace(rs.Fields(1).toString().trimmed());
        if (neuf)
            jour->second = Dates::LireJour(jour->first).value_or(QDate());
        Derniere &derniere = cotes[static_cast<int>(rs.Int64(0))];
        if (!derniere.jour.isValid() || (jour->second.isValid() && jour->second >= derniere.jour))
            derniere = {jour->second, lectures.front()};
    }
    std::unordered_map<int, double> montants;
    for (const auto &[album, cote] : cotes)
        montants[album] = cote.montant;
    return montants;
}

/// The parts of periods, each with its albums; those of no period last.
std::vector<Part> repartir(const std::vector<Achat> &achats, int pas,
    const std::function<std::vector<double>(const Achat &)> &valeurs)
{
    std::map<int, Part> parts = periodes(achats, pas);
    Part sans = inconnue();
    sans.abrege = QStringLiteral("?");
    for (const Achat &achat : achats) {
        Part &part = achat.annee > 0 ? parts[achat.annee / pas * pas] : sans;
        part.albums.push_back(achat.album);
        const std::vector<double> ajoutees = valeurs(achat);
        part.valeurs.resize(ajoutees.size());
        for (std::size_t i = 0; i < ajoutees.size(); ++i)
            part.valeurs[i] += ajoutees[i];
    }
    std::vector<Part> liste;
    liste.reserve(parts.size() + 1);
    for (auto &[annee, part] : parts)
        liste.push_back(std::move(part));
    if (!sans.albums.empty())
        liste.push_back(std::move(sans));
    for (Part &part : liste)
        part.valeurs.resize(valeurs({}).size());
    return liste;
}

std::vector<double> un(const Achat &)
{
    return {1};
}

/// Beside the purchases of each year, how many albums there were at its end.
void cumuler(std::vector<Part> &parts)
{
    double somme = 0;
    for (Part &part : parts) {
        somme += part.valeurs.front();
        if (!part.inconnue)
            part.valeurs.push_back(somme);
    }
}

Graphique lireValeurs()
{
    const auto cotes = lireCotes();
    const auto valeurs = [&](const Achat &achat) -> std::vector<double> {
        const auto cote = cotes.find(achat.album);
        return {achat.prix, cote == cotes.end() ? 0 : cote->second};
    };
    return {Sujet::Valeurs, true, true, {{Tr::tr("Payé")}, {Tr::tr("Coté")}},
        repartir(lireAnnees("DA"), 1, valeurs)};
}

}

QString Repartition::Titre(Sujet sujet)
{
    switch (sujet) {
    case Sujet::Genres:
        return Tr::tr("Albums par genre");
    case Sujet::Editeurs:
        return Tr::tr("Albums par éditeur");
    case Sujet::Decennies:
        return Tr::tr("Albums par décennie de parution");
    case Sujet::Croissance:
        return Tr::tr("Croissance de la collection, par date d'achat");
    case Sujet::Valeurs:
        return Tr::tr("Valeur par année d'achat");
    }
    Q_UNREACHABLE();
}

Graphique Repartition::Lire(Sujet sujet)
{
    const Serie albums{texte(Txt::AlbumsDeBD)};
    Graphique g;
    switch (sujet) {
    case Sujet::Genres:
        g = {Sujet::Genres, false, false, {albums},
            lireLiens("SELECT g.Nom, a.Num From Album a left join GenreAlbums l on l.NAlbum = a.Num"
                      " left join Genre g on g.NGenre = l.NGenre where a.Num > 0")};
        compterAlbums(g);
        break;
    case Sujet::Editeurs:
        g = {Sujet::Editeurs, false, false, {albums},
            lireLiens("SELECT e.Nom, a.Num From Album a left join EditeurAlbums l on l.NAlbum = a.Num"
                      " left join Editeur e on e.NEdit = l.NEdit where a.Num > 0")};
        regrouper(g.parts);
        compterAlbums(g);
        break;
    case Sujet::Decennies: {
        constexpr int Decennie = 10;
        g = {Sujet::Decennies, true, false, {albums}, repartir(lireAnnees("Dateparu"), Decennie, un)};
        break;
    }
    case Sujet::Croissance:
        g = {Sujet::Croissance, true, false, {{Tr::tr("Achetés dans l'année")}, {Tr::tr("En tout"), true}},
            repartir(lireAnnees("DA"), 1, un)};
        cumuler(g.parts);
        break;
    case Sujet::Valeurs:
        g = lireValeurs();
        break;
    }
    return g;
}
