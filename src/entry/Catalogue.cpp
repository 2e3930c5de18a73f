#include "entry/Catalogue.h"

#include "core/Dossier.h"
#include "core/Error.h"
#include "db/Base.h"
#include "db/Module2.h"
#include "db/schema/Version.h"

#include <QCoreApplication>

namespace {

Base ouvrir(const QString &chemin)
{
    return Base(chemin, Entete::Nature::Catalogue);
}

QString chemin()
{
    return Dossier::courant().catalogue();
}

bool estTelQuel(const Base &base)
{
    const auto marques = base.read(QStringLiteral("PRAGMA user_version")).Int64(0);
    return (marques & Version::TextesTelsQuels) != 0;
}

std::optional<QString> decoder(const QString &code, bool telQuel)
{
    return telQuel ? code : Module2::Decoder(code);
}

/// Decodes the text fields of one row, and remembers when one of them could not be.
struct Lecture
{
    const Cursor &rs;
    bool telQuel;
    bool lisible = true;

    QString operator()(const char *champ)
    {
        const auto texte = decoder(rs.Fields(QLatin1String(champ)).toString(), telQuel);
        lisible = lisible && texte.has_value();
        return texte.value_or(QString()).trimmed();
    }
};

}

Catalogue::Liste Catalogue::LireAlbums()
{
    const Base base = ouvrir(chemin());
    Liste liste;
    liste.telsQuels = estTelQuel(base);
    // Named columns, so that the walk stays on the index.
    for (auto rs
         = base.read(QStringLiteral("SELECT Numero, Titre, Tome From BD order by Serie desc, Tome asc"));
         !rs.AtEnd(); rs.MoveNext()) {
        const auto titre = decoder(rs.Fields(1).toString(), liste.telsQuels);
        if (!titre) {
            ++liste.illisibles;
            continue;
        }
        liste.albums.ajouter(static_cast<int>(rs.Int64(0)), titre->trimmed().toStdString());
        liste.albums.prolonger("  (N° ");
        liste.albums.prolonger(rs.Utf8(2));
        liste.albums.prolonger(")");
    }
    if (liste.albums.empty() && liste.illisibles > 0)
        throw Error(Error::Sorte::Abimee,
            QCoreApplication::translate(
                "Catalogue", "Les textes du catalogue de référence ne peuvent pas être décodés."),
            chemin());
    return liste;
}

std::optional<Catalogue::Reference> Catalogue::LireReference(int numero)
{
    const Base base = ouvrir(chemin());
    const auto rs
        = base.read(QStringLiteral("SELECT * From BD  where Numero = ? order by Serie desc"), {numero});
    if (rs.AtEnd())
        return std::nullopt;
    Lecture lire{rs, estTelQuel(base)};
    Reference r;
    r.titre = lire("Titre");
    r.tome = rs.Fields(QStringLiteral("Tome")).toInt();
    r.serie = lire("Serie");
    r.dateparu = lire("Dateparu");
    r.genre = lire("Genre");
    r.dessin = lire("Dessin");
    r.scena = lire("Scena");
    r.editeur = lire("Editeur");
    r.couleur = rs.Fields(QStringLiteral("Couleur")).toBool();
    r.integrale = rs.Fields(QStringLiteral("Integrale")).toBool();
    r.carton = lire("Carton");
    return lire.lisible ? std::optional(r) : std::nullopt;
}
