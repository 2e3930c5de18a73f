#include "db/schema/Tables.h"

#include "core/Error.h"
#include "db/Base.h"
#include "db/Collation.h"
#include "db/Comparaison.h"
#include "db/Connexion.h"
#include "db/Sql.h"
#include "db/Transaction.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <array>
#include <functional>

namespace {

using Schema::Champ;
using Schema::Table;
using Schema::Type;

constexpr int VersionSchema = 1;

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

QString declaration(const Champ &champ)
{
    const QString nom = QLatin1String(champ.nom);
    switch (champ.type) {
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
    QStringList champs;
    for (const Champ &champ : table.champs)
        champs << declaration(champ);
    return QStringLiteral("CREATE TABLE %1 (%2) STRICT")
        .arg(QLatin1String(table.nom), champs.join(QStringLiteral(", ")));
}

/// The statements that add the indexes and rules which are missing.
QStringList complements()
{
    QStringList instructions;
    for (const char *index : Index) {
        const QString cible = QLatin1String(index);
        QString nom = QStringLiteral("Index") + cible;
        nom.remove(u'(').remove(u')').remove(u',').remove(u' ');
        instructions << QStringLiteral("CREATE INDEX IF NOT EXISTS %1 ON %2").arg(nom, cible);
    }
    for (const Declencheur &d : declencheurs())
        instructions << QStringLiteral("CREATE TRIGGER IF NOT EXISTS %1 %2 BEGIN %3; END")
                            .arg(QLatin1String(d.nom), QLatin1String(d.evenement), d.acte);
    return instructions;
}

/// Makes a database file of a kind by the statements given, whole or not at all.
void creerFichier(const QString &chemin, Entete::Nature nature, const QStringList &instructions)
{
    const auto echec = [&](const QString &details) {
        throw Error(QCoreApplication::translate("Base", "La base ne peut pas être créée."), chemin, details);
    };
    if (QFileInfo::exists(chemin))
        echec(QCoreApplication::translate("Base", "Ce fichier existe déjà."));
    try {
        SQLite::Database db(chemin.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        Collation::Enregistrer(db.getHandle());
        db.exec("BEGIN");
        db.exec("PRAGMA application_id=" + std::to_string(static_cast<unsigned>(nature)));
        db.exec("PRAGMA user_version=" + std::to_string(Schema::Version()));
        for (const QString &instruction : instructions)
            db.exec(instruction.toStdString());
        db.exec("COMMIT");
    } catch (const SQLite::Exception &e) {
        echec(QString::fromUtf8(e.what()));
    }
}

const Table *chercher(const QString &nom)
{
    for (const Table &table : Schema::Definitions()) {
        if (nom.compare(QLatin1String(table.nom), Qt::CaseInsensitive) == 0)
            return &table;
    }
    return nullptr;
}

/// The rules can stand only where both added fields do, so they tell at once that nothing is to do.
bool estANiveau(const Base &base)
{
    return base.OpenRecordset(
                   QStringLiteral(
                       "SELECT count(*) FROM sqlite_schema WHERE type = 'trigger' AND name LIKE 'CleTome%'"))
               .Int64(0)
        == static_cast<qint64>(declencheurs().size());
}

void ajouterChamp(const Base &base, const QString &table, const QString &nom)
{
    const auto colonnes = base.OpenRecordset(
        QStringLiteral("SELECT count(*) FROM pragma_table_info(?) WHERE name = ? COLLATE NOCASE"),
        {table, nom});
    if (colonnes.Int64(0) > 0)
        return;
    for (const Champ &champ : chercher(table)->champs) {
        if (nom == QLatin1String(champ.nom))
            base.Execute(QStringLiteral("ALTER TABLE %1 ADD COLUMN %2").arg(table, declaration(champ)));
    }
}

/// One step of the upgrade: when it fails it is undone, and the next one runs.
void essayer(const Base &base, const std::function<void()> &etape)
{
    try {
        Transaction transaction(base);
        etape();
        transaction.Commit();
    } catch (const Error &) {
        // A file that lacks more than the two fields is told of by the operation that misses it.
    }
}

void mettreANiveau()
{
    const Base base;
    if (estANiveau(base))
        return;
    const Journal::Pause pause(base);
    Transaction transaction(base);
    essayer(base, [&] {
        ajouterChamp(base, QStringLiteral("Album"), QStringLiteral("Coffret"));
        // Rows older than the field must hold it, or the journal would see Null where the default stands.
        base.Execute(QStringLiteral("UPDATE Album SET Coffret = Coffret"));
    });
    essayer(base, [&] { ajouterChamp(base, QStringLiteral("SerieAlbums"), QStringLiteral("NumeroAlbum2")); });
    const QStringList instructions = complements();
    for (const QString &instruction : instructions)
        essayer(base, [&] { base.Execute(instruction); });
    essayer(base, [&] {
        base.Execute(QStringLiteral("UPDATE SerieAlbums SET NumeroAlbum2 = char(65 + Album.NAlbum) FROM Album"
                                    " WHERE Album.Num = SerieAlbums.NAlbum AND Album.NAlbum BETWEEN 0 AND 190"
                                    " AND NumeroAlbum2 IS NOT char(65 + Album.NAlbum)"));
    });
    transaction.Commit();
}

}

const std::vector<Schema::Table> &Schema::Definitions()
{
    using enum Type;
    static const std::vector<Table> toutes{
        {"Album",
            {{"Num", Cle}, {"NAlbum", Entier}, {"NumSerie", Entier}, {"NGenre", Entier}, {"NEdit", Entier},
                {"NDessin", Entier}, {"NScen", Entier}, {"NColor", Entier}, {"QualBD", Entier},
                {"EtatBD", Entier}, {"NbPage", Texte}, {"ISBN", Texte}, {"ISSN", Texte}, {"Histoire", Texte},
                {"Commentaire", Texte}, {"NPays", Entier}, {"DepotL", Texte}, {"Dateparu", Texte},
                {"NCouverture", Entier}, {"DPret", Texte}, {"NPret", Entier}, {"DA", Texte},
                {"PrixA", Montant}, {"Broche", Booleen}, {"Couleur", Entier}, {"Integrale", Booleen},
                {"SerieLim", Booleen}, {"EDitOrig", Booleen}, {"HSerie", Booleen}, {"Coffret", Booleen}}},
        {"LAlbums",
            {{"NAlbum", Cle}, {"TAlbum", Nom}, {"Photo1", Texte}, {"Photo2", Texte}, {"Histoire", Texte},
                {"dedi1", Texte}, {"dedi2", Texte}, {"LieuD", Texte}, {"DateD", Texte}, {"EtatD", Texte}}},
        {"Serie",
            {{"NSerie", Cle}, {"Nom", Nom}, {"NGenre", Entier}, {"NEditeur", Entier}, {"NoteG", Entier},
                {"NoteD", Entier}, {"NoteS", Entier}, {"cote", Entier}, {"SiteWeb1", Texte},
                {"SiteWeb2", Texte}, {"Commentaire", Texte}, {"Histoire", Texte}, {"Photo1", Texte},
                {"Photo2", Texte}}},
        {"Auteurs",
            {{"NAuteur", Cle}, {"Nom", Nom}, {"Prenom", Nom}, {"SurNom", Nom}, {"DateNaiss", Texte},
                {"LieuNaiss", Texte}, {"NPays", Entier}, {"web1", Texte}, {"web2", Texte}, {"Photo1", Texte},
                {"Photo2", Texte}, {"Commentaire", Texte}, {"Dessin", Booleen}, {"Scena", Booleen},
                {"Color", Booleen}}},
        {"Editeur",
            {{"NEdit", Cle}, {"Nom", Nom}, {"adresse1", Texte}, {"adresse2", Texte}, {"ville", Texte},
                {"CP", Texte}, {"NPays", Entier}, {"Tel", Texte}, {"Site", Texte}, {"Photo1", Texte},
                {"Photo2", Texte}}},
        {"Genre", {{"NGenre", Cle}, {"Nom", Nom}}},
        {"Coll", {{"NColl", Cle}, {"Nom", Nom}}},
        {"Pays", {{"NPays", Cle}, {"Nom", Nom}}},
        {"Pret", {{"NPret", Cle}, {"Nom", Nom}, {"Prenom", Nom}, {"Tel", Texte}}},
        {"Librairie", {{"NLibrairie", Cle}, {"Nom", Nom}}},
        {"ExLibris",
            {{"NExLibris", Cle}, {"Nom", Nom}, {"NSerie", Entier}, {"NDessin", Entier},
                {"NLibrairie", Entier}, {"TypeExlibris", Entier}, {"DAchat", Texte}, {"PrixA", Montant},
                {"Comm", Texte}, {"Dedicace", Booleen}, {"Signe", Booleen}, {"Photo1", Texte},
                {"Photo2", Texte}}},
        {"PresseBD",
            {{"NPressBD", Cle}, {"Nom", Nom}, {"NPresseBD", Entier}, {"NEdit", Entier}, {"Parution", Entier},
                {"DepotLegale", Texte}, {"Reliure", Booleen}, {"HS", Booleen}, {"PrixA", Montant},
                {"DAchat", Texte}, {"Comm", Texte}, {"Photo1", Texte}, {"Photo2", Texte}}},
        {"Inter", {{"NInter", Cle}, {"Nom", Nom}, {"Prenom", Nom}}},
        {"Metier", {{"NMetier", Cle}, {"Nom", Nom}}},
        {"SerieAlbums", {{"NSerie", Entier}, {"NAlbum", Entier}, {"NumeroAlbum2", Texte}}},
        {"GenreAlbums", {{"NGenre", Entier}, {"NAlbum", Entier}}},
        {"EditeurAlbums", {{"NEdit", Entier}, {"NAlbum", Entier}}},
        {"CollAlbums", {{"NColl", Entier}, {"NAlbum", Entier}}},
        {"PaysAlbum", {{"NPays", Entier}, {"NAlbum", Entier}}},
        {"AuteursAlbums",
            {{"NAuteur", Entier}, {"NAlbum", Entier}, {"Dessin", Booleen}, {"Scena", Booleen},
                {"Color", Booleen}}},
        {"InterMetier", {{"NAlbum", Entier}, {"NInter", Entier}, {"NMetier", Entier}}},
        {"CotesAlbum", {{"NAlbum", Entier}, {"Mois", Texte}, {"Cotes", Texte}}},
    };
    return toutes;
}

const Schema::Table &Schema::DefinitionDuCatalogue()
{
    // Its texts are coded, so none of them is a name to the collation.
    using enum Type;
    static const Table bd{"BD",
        {{"Numero", Cle}, {"Titre", Texte}, {"Tome", Entier}, {"Serie", Texte}, {"Dateparu", Texte},
            {"Genre", Texte}, {"Dessin", Texte}, {"Scena", Texte}, {"Editeur", Texte}, {"Couleur", Booleen},
            {"Integrale", Booleen}, {"Carton", Texte}}};
    return bd;
}

int Schema::Version()
{
    return Comparaison::version() << 8 | VersionSchema;
}

QStringList Schema::Tables()
{
    QStringList noms;
    for (const Table &table : Definitions())
        noms << QLatin1String(table.nom);
    return noms;
}

QStringList Schema::Champs(const QString &table)
{
    QStringList noms;
    if (const Table *trouvee = chercher(table)) {
        for (const Champ &champ : trouvee->champs)
            noms << QLatin1String(champ.nom);
    }
    return noms;
}

QVariantList Schema::Blanc(const QString &table)
{
    QVariantList valeurs;
    if (const Table *trouvee = chercher(table)) {
        for (const Champ &champ : trouvee->champs) {
            const bool texte = champ.type == Type::Texte || champ.type == Type::Nom;
            valeurs << (texte                     ? QVariant(QStringLiteral(" "))
                    : champ.type == Type::Booleen ? QVariant(false)
                                                  : QVariant(0));
        }
    }
    return valeurs;
}

void Schema::CreerVierge(const QString &chemin)
{
    QStringList instructions;
    for (const Table &table : Definitions())
        instructions << creation(table);
    creerFichier(chemin, Entete::Nature::Collection, instructions + complements());
}

void Schema::CreerCatalogue(const QString &chemin)
{
    creerFichier(chemin, Entete::Nature::Catalogue,
        {creation(DefinitionDuCatalogue()),
            QStringLiteral("CREATE INDEX IndexBDSerie ON BD(Serie DESC, Tome, Titre)")});
}

void Schema::MettreANiveau()
{
    // The first operation that follows asks the user about a file in use; once is enough.
    auto &reessayer = Annonces::courant().reessayer;
    const auto demande = std::exchange(reessayer, nullptr);
    try {
        mettreANiveau();
    } catch (const Error &) {
        // A file that cannot be upgraded is told of by the first operation on it.
    }
    reessayer = demande;
}
