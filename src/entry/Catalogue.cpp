#include "entry/Catalogue.h"

#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Traduction.h"
#include "db/Base.h"
#include "db/Module2.h"
#include "db/schema/Version.h"

#include <QCoreApplication>
#include <array>
#include <unordered_map>
#include <vector>

using ChampsDeCreation::ChampDeCreation;

namespace {

/// No text of the catalogue holds it, and nobody types it.
constexpr std::string_view Entre = "\x1F";

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

/// Decodes texts that come again and again: those of series, authors and publishers.
class Decodeur
{
public:
    using Texte = std::optional<std::string>;

    explicit Decodeur(bool telsQuels)
        : m_telsQuels(telsQuels)
    {
    }
    Texte decoder(std::string_view code) const
    {
        const auto octets = static_cast<qsizetype>(code.size());
        const auto texte = ::decoder(QString::fromUtf8(code.data(), octets), m_telsQuels);
        return texte ? Texte(texte->trimmed().toStdString()) : std::nullopt;
    }
    /// The same, looked up; it stays where it is.
    const Texte *chercher(std::string_view code)
    {
        const auto [place, neuve] = m_connus.try_emplace(std::string(code));
        if (neuve)
            place->second = decoder(code);
        return &place->second;
    }

private:
    bool m_telsQuels;
    std::unordered_map<std::string, Texte> m_connus;
};

/// What an album may be looked up by besides its title and series.
struct Suite
{
    qint64 numero;
    std::array<const Decodeur::Texte *, 3> textes; ///< artist, writer, publisher
};

/// Those of all albums, by number: the walk in the order of the file is many times quicker than one by series.
std::vector<Suite> lireSuites(const Base &base, Decodeur &decodeur)
{
    std::vector<Suite> suites;
    for (auto rs = base.read(QStringLiteral("SELECT Numero, Dessin, Scena, Editeur From BD order by Numero"));
         !rs.AtEnd(); rs.MoveNext())
        suites.push_back({rs.Int64(0),
            {decodeur.chercher(rs.Utf8(1)), decodeur.chercher(rs.Utf8(2)), decodeur.chercher(rs.Utf8(3))}});
    return suites;
}

/// Adds the line of one album, its parts in their order; false when one of them cannot be decoded.
bool ajouter(Entrees &lignes, const Cursor &rs, Decodeur &decodeur, const std::vector<Suite> &suites)
{
    const qint64 numero = rs.Int64(0);
    const auto suite = std::ranges::lower_bound(suites, numero, {}, &Suite::numero);
    const auto titre = decodeur.decoder(rs.Utf8(1));
    const Decodeur::Texte *serie = decodeur.chercher(rs.Utf8(3));
    const bool lisible = titre && *serie
        && std::ranges::all_of(suite->textes, [](const Decodeur::Texte *t) { return t->has_value(); });
    if (!lisible)
        return false;
    lignes.ajouter(static_cast<int>(numero), *titre);
    const auto prolonger = [&](std::string_view partie) {
        lignes.prolonger(Entre);
        lignes.prolonger(partie);
    };
    // The tome is a number, and in no code.
    prolonger(rs.Utf8(2));
    prolonger(**serie);
    for (const Decodeur::Texte *texte : suite->textes)
        prolonger(**texte);
    return true;
}

/// The columns of one row as they are entered; remembers when a text could not be decoded.
struct Lecture
{
    const Cursor &rs;
    bool telQuel;
    bool lisible = true;

    QString texte(const char *colonne)
    {
        const auto decode = decoder(rs.Fields(QLatin1String(colonne)).toString(), telQuel);
        lisible = lisible && decode.has_value();
        return decode.value_or(QString()).trimmed();
    }
    QString operator()(const ChampDeCreation &champ)
    {
        const QVariant valeur = rs.Fields(QLatin1String(champ.catalogue));
        if (champ.maniere == ChampsDeCreation::Case)
            return QLatin1String(ChampsDeCreation::TexteDeCase(champ, valeur.toBool()));
        // A tome of the catalogue is written with three digits.
        if (champ.champ->regle == Champs::Regle::Tome)
            return QStringLiteral("%1").arg(valeur.toInt(), 3, 10, QLatin1Char('0'));
        return texte(champ.catalogue);
    }
};

}

Catalogue::Liste Catalogue::LireAlbums()
{
    const Base base = ouvrir(chemin());
    Liste liste;
    liste.telsQuels = estTelQuel(base);
    Decodeur decodeur(liste.telsQuels);
    const std::vector<Suite> suites = lireSuites(base, decodeur);
    // Named columns, so that the walk stays on the index.
    for (auto rs = base.read(
             QStringLiteral("SELECT Numero, Titre, Tome, Serie From BD order by Serie desc, Tome asc"));
         !rs.AtEnd(); rs.MoveNext()) {
        if (!ajouter(liste.albums, rs, decodeur, suites))
            ++liste.illisibles;
    }
    if (liste.albums.empty() && liste.illisibles > 0)
        throw Error(Error::Sorte::Abimee,
            QCoreApplication::translate(
                "Catalogue", "Les textes du catalogue de référence ne peuvent pas être décodés."),
            chemin());
    return liste;
}

QString Catalogue::PartieDe(const QString &ligne, Partie partie)
{
    const auto rang = static_cast<qsizetype>(partie);
    return ligne.section(QLatin1String(Entre), rang, rang);
}

QString Catalogue::Libelle(const QString &ligne)
{
    return QStringLiteral("%1  (%2 %3)")
        .arg(PartieDe(ligne, Partie::Titre), texte(Txt::NumeroAbrege), PartieDe(ligne, Partie::Tome));
}

std::optional<Catalogue::Reference> Catalogue::LireReference(int numero)
{
    const Base base = ouvrir(chemin());
    const auto rs
        = base.read(QStringLiteral("SELECT * From BD  where Numero = ? order by Serie desc"), {numero});
    if (rs.AtEnd())
        return std::nullopt;
    Lecture lire{rs, estTelQuel(base)};
    Reference reference;
    for (const ChampDeCreation &champ : ChampsDeCreation::Tous) {
        if (champ.catalogue)
            reference.album[champ.rubrique] = lire(champ);
    }
    reference.carton = lire.texte("Carton");
    reference.album[Rubrique::Broche] = QLatin1String(ChampsDeCreation::TexteDeCase(
        ChampsDeCreation::De(Rubrique::Broche), reference.carton == QStringLiteral("broché")));
    return lire.lisible ? std::optional(reference) : std::nullopt;
}
