#include "db/schema/Paliers.h"

#include "db/schema/Tables.h"

#include <QString>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <algorithm>
#include <array>

using Schema::Colonne;
using Schema::Table;
using Schema::Type;

namespace {

/// One index for each way in which a query enters a table; those that fill a list hold all that it shows.
constexpr std::array Index{
    "Album(NumSerie, NAlbum)",
    "Album(NPret)",
    "Album(PrixA)",
    "LAlbums(TAlbum)",
    "Serie(Nom)",
    "Auteurs(Nom, Prenom, Dessin, Scena, Color)",
    "Editeur(Nom)",
    "Genre(Nom)",
    "Coll(Nom)",
    "Pays(Nom)",
    "Pret(Nom)",
    "Librairie(Nom)",
    "ExLibris(Nom)",
    "PresseBD(Nom, NPresseBD)",
    "PresseBD(NEdit)",
    "Inter(Nom, Prenom)",
    "Metier(Nom)",
    "SerieAlbums(NSerie, NumeroAlbum2, NAlbum)",
    "SerieAlbums(NAlbum)",
    "GenreAlbums(NGenre)",
    "GenreAlbums(NAlbum, NGenre)",
    "EditeurAlbums(NEdit)",
    "EditeurAlbums(NAlbum)",
    "CollAlbums(NColl)",
    "CollAlbums(NAlbum, NColl)",
    "PaysAlbum(NPays)",
    "PaysAlbum(NAlbum, NPays)",
    "AuteursAlbums(NAuteur)",
    "AuteursAlbums(NAlbum)",
    "InterMetier(NAlbum)",
    "CotesAlbum(NAlbum, Mois, Cotes)",
};

/// The sort key of an album in its series is the character 65 + tome number. The file itself keeps it true,
/// whoever writes, so that a start has nothing to recompute. A tome above 190 or a missing album leaves it.
const char *const CleDuTome = "(SELECT char(65 + Album.NAlbum) FROM Album"
                              " WHERE Album.Num = NEW.NAlbum AND Album.NAlbum BETWEEN 0 AND 190)";

struct Declencheur
{
    const char *nom;
    const char *evenement;
    QString acte;
};

std::array<Declencheur, 4> declencheurs()
{
    const QString lien
        = QStringLiteral("UPDATE SerieAlbums SET NumeroAlbum2 = coalesce(%1, NumeroAlbum2)"
                         " WHERE rowid = NEW.rowid AND NumeroAlbum2 IS NOT coalesce(%1, NumeroAlbum2)")
              .arg(QLatin1String(CleDuTome));
    const QString album
        = QStringLiteral("UPDATE SerieAlbums SET NumeroAlbum2 = char(65 + NEW.NAlbum) WHERE NAlbum = NEW.Num"
                         " AND NEW.NAlbum BETWEEN 0 AND 190 AND NumeroAlbum2 IS NOT char(65 + NEW.NAlbum)");
    return {Declencheur{"CleTomeLienNeuf", "AFTER INSERT ON SerieAlbums", lien},
        Declencheur{"CleTomeLien", "AFTER UPDATE OF NAlbum, NumeroAlbum2 ON SerieAlbums", lien},
        Declencheur{"CleTomeAlbumNeuf", "AFTER INSERT ON Album", album},
        Declencheur{"CleTomeAlbum", "AFTER UPDATE OF NAlbum ON Album", album}};
}

QString declaration(const Colonne &colonne)
{
    const QString nom = QLatin1String(colonne.nom);
    switch (colonne.type) {
    case Type::Cle:
        return nom + QStringLiteral(" INTEGER PRIMARY KEY");
    case Type::Entier:
        return nom + QStringLiteral(" INTEGER");
    case Type::Booleen:
        return QStringLiteral("%1 INTEGER NOT NULL DEFAULT 0 CHECK (%1 IN (-1, 0))").arg(nom);
    case Type::Montant:
        return nom + QStringLiteral(" REAL");
    case Type::Texte:
        return nom + QStringLiteral(" TEXT");
    case Type::Nom:
        return nom + QStringLiteral(" TEXT COLLATE FRANCAIS");
    }
    Q_UNREACHABLE();
}

QString creation(const Table &table)
{
    QStringList colonnes;
    for (const Colonne &colonne : table.colonnes)
        colonnes << declaration(colonne);
    return QStringLiteral("CREATE TABLE %1 (%2) STRICT")
        .arg(QLatin1String(table.nom), colonnes.join(QStringLiteral(", ")));
}

/// An index or a rule by its name, and the statement that makes it, in the engine's own writing.
struct Complement
{
    QString sorte;
    QString nom;
    QString instruction;
};

std::vector<Complement> complements()
{
    std::vector<Complement> tous;
    for (const char *index : Index) {
        const QString cible = QLatin1String(index);
        QString nom = QStringLiteral("Index") + cible;
        nom.remove(u'(').remove(u')').remove(u',').remove(u' ');
        tous.push_back(
            {QStringLiteral("INDEX"), nom, QStringLiteral("CREATE INDEX %1 ON %2").arg(nom, cible)});
    }
    for (const Declencheur &d : declencheurs())
        tous.push_back({QStringLiteral("TRIGGER"), QLatin1String(d.nom),
            QStringLiteral("CREATE TRIGGER %1 %2 BEGIN %3; END")
                .arg(QLatin1String(d.nom), QLatin1String(d.evenement), d.acte)});
    return tous;
}

bool aLaColonne(SQLite::Database &db, const Table &table, const Colonne &colonne)
{
    SQLite::Statement cherche(db, "SELECT 1 FROM pragma_table_info(?) WHERE name = ? COLLATE NOCASE");
    cherche.bind(1, table.nom);
    cherche.bind(2, colonne.nom);
    return cherche.executeStep();
}

void ajouterColonne(SQLite::Database &db, const Table &table, const Colonne &colonne)
{
    const QString nom = QLatin1String(table.nom);
    db.exec(QStringLiteral("ALTER TABLE %1 ADD COLUMN %2").arg(nom, declaration(colonne)).toStdString());
    // Rows older than the column must hold its default, or the journal would see Null there.
    if (colonne.type == Type::Booleen)
        db.exec(QStringLiteral("UPDATE %1 SET %2 = %2").arg(nom, QLatin1String(colonne.nom)).toStdString());
}

/// Adds the tables and columns that came with a step, unless they are there.
void ajouterNouveautes(SQLite::Database &db, int palier)
{
    for (const Table &table : Schema::Definitions()) {
        if (table.depuis == palier && !db.tableExists(table.nom))
            db.exec(creation(table).toStdString());
        for (const Colonne &colonne : table.colonnes) {
            if (table.depuis < palier && colonne.depuis == palier && !aLaColonne(db, table, colonne))
                ajouterColonne(db, table, colonne);
        }
    }
}

/// Whatever the file has under the name of an index or a rule becomes what it should be.
void poserComplements(SQLite::Database &db)
{
    for (const Complement &c : complements()) {
        SQLite::Statement la(db, "SELECT sql FROM sqlite_schema WHERE type = lower(?) AND name = ?");
        la.bind(1, c.sorte.toStdString());
        la.bind(2, c.nom.toStdString());
        const bool existe = la.executeStep();
        if (existe && la.getColumn(0).getString() == c.instruction.toStdString())
            continue;
        la.reset();
        if (existe)
            db.exec(QStringLiteral("DROP %1 %2").arg(c.sorte, c.nom).toStdString());
        db.exec(c.instruction.toStdString());
    }
}

/// The first files lack two fields; files that were brought up halfway may lack anything of indexes and rules.
void completer(SQLite::Database &db)
{
    for (const Declencheur &d : declencheurs())
        db.exec(std::string("DROP TRIGGER IF EXISTS ") + d.nom);
    ajouterNouveautes(db, 2);
    db.exec("UPDATE SerieAlbums SET NumeroAlbum2 = char(65 + Album.NAlbum) FROM Album"
            " WHERE Album.Num = SerieAlbums.NAlbum AND Album.NAlbum BETWEEN 0 AND 190"
            " AND NumeroAlbum2 IS NOT char(65 + Album.NAlbum)");
    poserComplements(db);
}

constexpr Paliers::Palier LesPaliers[] = {{2, completer}};
static_assert(LesPaliers[std::size(LesPaliers) - 1].numero == Version::DernierPalier);

}

std::span<const Paliers::Palier> Paliers::Tous()
{
    return LesPaliers;
}

std::map<std::string, std::string> Paliers::Declencheurs()
{
    std::map<std::string, std::string> regles;
    for (const Complement &c : complements()) {
        if (c.sorte == QLatin1String("TRIGGER"))
            regles.emplace(c.nom.toStdString(), c.instruction.toStdString());
    }
    return regles;
}

QStringList Paliers::CollectionVierge()
{
    QStringList instructions;
    for (const Table &table : Schema::Definitions())
        instructions << creation(table);
    for (const Complement &c : complements())
        instructions << c.instruction;
    return instructions;
}

QStringList Paliers::CatalogueVierge()
{
    return {creation(Schema::DefinitionDuCatalogue()),
        QStringLiteral("CREATE INDEX IndexBDSerie ON BD(Serie DESC, Tome, Titre)")};
}
