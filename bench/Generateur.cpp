#include "Generateur.h"

#include "core/Annonces.h"
#include "core/Dossier.h"
#include "db/Base.h"
#include "db/Connexion.h"
#include "db/Transaction.h"
#include "db/files/Livraison.h"

#include <QFileInfo>
#include <SQLiteCpp/Statement.h>
#include <array>
#include <random>
#include <string>

namespace {

constexpr std::array Noms{"Ange", "Brume", "Château", "Désert", "Écume", "Falaise", "Gouffre", "Héritage",
    "Île", "Jardin", "Lumière", "Mystère", "Nuit", "Œuvre", "Pirate", "Quai", "Rivière", "Secret", "Trésor",
    "Voyage"};
constexpr std::array Qualites{"ancien", "bleu", "caché", "dernier", "errant", "fragile", "glacé", "hanté",
    "immobile", "lointain", "maudit", "oublié", "perdu", "rouge", "sombre", "tranquille"};

class Tirage
{
public:
    explicit Tirage(unsigned graine)
        : m_moteur(graine)
    {
    }
    int entre(int bas, int haut) { return std::uniform_int_distribution<int>(bas, haut)(m_moteur); }
    std::string titre(int numero)
    {
        const auto nom = static_cast<std::size_t>(entre(0, static_cast<int>(Noms.size()) - 1));
        const auto qualite = static_cast<std::size_t>(entre(0, static_cast<int>(Qualites.size()) - 1));
        return std::string(Noms[nom]) + ' ' + Qualites[qualite] + ' ' + std::to_string(numero);
    }

private:
    std::mt19937 m_moteur;
};

/// One prepared insertion, run with the values given.
class Insertion
{
public:
    Insertion(Base &base, const std::string &sql)
        : m_instruction(base.connexion().db(), sql)
    {
    }
    template <class... V>
    void operator()(const V &...valeurs)
    {
        int position = 0;
        (m_instruction.bind(++position, valeurs), ...);
        m_instruction.exec();
        m_instruction.reset();
    }

private:
    SQLite::Statement m_instruction;
};

void remplirEntites(Base &base, Tirage &tirage, int albums)
{
    const int series = std::max(1, albums / 20);
    const int auteurs = std::max(1, albums * 8 / 100);
    const int editeurs = std::max(1, albums / 500);
    Insertion serie(base,
        "INSERT INTO Serie(NSerie, Nom, NGenre, NEditeur, NoteG, NoteD, NoteS, cote) "
        "VALUES(?,?,?,?,3,4,5,6)");
    for (int i = 1; i <= series; ++i)
        serie(i, tirage.titre(i), tirage.entre(1, 20), tirage.entre(1, editeurs));
    Insertion auteur(
        base, "INSERT INTO Auteurs(NAuteur, Nom, Prenom, Dessin, Scena, Color) VALUES(?,?,?,?,?,?)");
    for (int i = 1; i <= auteurs; ++i)
        auteur(i, tirage.titre(i), std::string(Noms[static_cast<std::size_t>(i) % Noms.size()]),
            -(i % 3 == 0 || i % 5 == 0), -(i % 3 == 1), -(i % 3 == 2));
    for (const char *table : {"Genre", "Coll", "Pays", "Librairie", "Pret", "Metier", "Inter"}) {
        Insertion nom(base, std::string("INSERT INTO ") + table + "(N" + table + ", Nom) VALUES(?,?)");
        for (int i = 1; i <= 20; ++i)
            nom(i, tirage.titre(i));
    }
    Insertion editeur(base, "INSERT INTO Editeur(NEdit, Nom, NPays) VALUES(?,?,?)");
    for (int i = 1; i <= editeurs; ++i)
        editeur(i, tirage.titre(i), tirage.entre(1, 20));
    Insertion exLibris(base, "INSERT INTO ExLibris(NExLibris, Nom, NSerie, NDessin) VALUES(?,?,?,?)");
    Insertion presse(base, "INSERT INTO PresseBD(NPressBD, Nom, NPresseBD, NEdit) VALUES(?,?,?,?)");
    for (int i = 1; i <= std::max(1, albums / 100); ++i) {
        exLibris(i, tirage.titre(i), tirage.entre(1, series), tirage.entre(1, auteurs));
        presse(i, tirage.titre(i), i, tirage.entre(1, editeurs));
    }
}

void remplirAlbums(Base &base, Tirage &tirage, int albums)
{
    const int series = std::max(1, albums / 20);
    const int auteurs = std::max(1, albums * 8 / 100);
    const int editeurs = std::max(1, albums / 500);
    Insertion album(base,
        "INSERT INTO Album(Num, NAlbum, NumSerie, NGenre, NEdit, NDessin, NScen, QualBD, EtatBD, NbPage, "
        "Histoire,"
        " Commentaire, Dateparu, NCouverture, NPret, PrixA, Couleur) "
        "VALUES(?,?,?,?,?,?,?,4,5,'48',?,?,?,0,?,?,1)");
    Insertion liste(base, "INSERT INTO LAlbums(NAlbum, TAlbum, Photo1, Histoire) VALUES(?,?,?,?)");
    Insertion lienSerie(base, "INSERT INTO SerieAlbums(NSerie, NAlbum) VALUES(?,?)");
    Insertion lienEditeur(base, "INSERT INTO EditeurAlbums(NEdit, NAlbum) VALUES(?,?)");
    Insertion lienGenre(base, "INSERT INTO GenreAlbums(NGenre, NAlbum) VALUES(?,?)");
    Insertion lienColl(base, "INSERT INTO CollAlbums(NColl, NAlbum) VALUES(?,?)");
    Insertion lienAuteur(
        base, "INSERT INTO AuteursAlbums(NAuteur, NAlbum, Dessin, Scena, Color) VALUES(?,?,?,?,0)");
    Insertion cote(base, "INSERT INTO CotesAlbum(NAlbum, Mois, Cotes) VALUES(?,'01 janvier 2025',?)");
    Insertion intervenant(base, "INSERT INTO InterMetier(NAlbum, NInter, NMetier) VALUES(?,?,?)");
    const std::string histoire
        = "Une histoire de quelques lignes, comme on en garde avec chaque album de la collection.";
    for (int i = 1; i <= albums; ++i) {
        const int s = (i - 1) % series + 1;
        const int editeur = i % 5 == 0 ? 1 : tirage.entre(1, editeurs);
        const int genre = tirage.entre(1, 20);
        const int dessin = tirage.entre(1, auteurs);
        const int scenario = tirage.entre(1, auteurs);
        album(i, (i - 1) / series + 1, s, genre, editeur, dessin, scenario, histoire, histoire,
            std::to_string(tirage.entre(1950, 2025)), i % 1000 == 0 ? tirage.entre(1, 20) : 0,
            static_cast<double>(tirage.entre(5, 90)));
        liste(i, tirage.titre(i), "album-" + std::to_string(i) + ".jpg", histoire);
        lienSerie(s, i);
        lienEditeur(editeur, i);
        lienGenre(genre, i);
        if (i % 4 == 0)
            lienColl(tirage.entre(1, 20), i);
        lienAuteur(dessin, i, -1, dessin == scenario ? -1 : 0);
        if (dessin != scenario)
            lienAuteur(scenario, i, 0, -1);
        if (i % 10 == 0) {
            cote(i, std::to_string(tirage.entre(10, 99)));
            intervenant(i, tirage.entre(1, 20), tirage.entre(1, 20));
        }
    }
}

}

void generer(const QString &chemin, int albums, unsigned graine)
{
    const Dossier dossier(chemin, Dossier::Livre());
    const Annonces annonces;
    if (QFileInfo::exists(dossier.collection()))
        return;
    Livraison::Preparer();
    Base base;
    Transaction transaction(base);
    Tirage tirage(graine);
    remplirEntites(base, tirage, albums);
    remplirAlbums(base, tirage, albums);
    transaction.Commit();
}
