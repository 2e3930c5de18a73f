#include "entry/Catalogue.h"

#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Traduction.h"
#include "db/Base.h"
#include "db/Module2.h"
#include "db/schema/Version.h"

#include <QCoreApplication>

using ChampsDeCreation::ChampDeCreation;

namespace {

/// No text of the catalogue holds it, and nobody types it.
constexpr QChar Entre(0x1F);

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

/// The texts that a line is made of, in the order of their parts; nothing when one of them cannot be decoded.
std::optional<QStringList> lireParties(const Cursor &rs, bool telsQuels)
{
    QStringList parties;
    for (int i = 1; i <= 6; ++i) {
        const QString stockee = rs.Fields(i).toString();
        // The tome is a number, and in no code.
        const auto partie = i == 2 ? stockee : decoder(stockee, telsQuels);
        if (!partie)
            return std::nullopt;
        parties << partie->trimmed();
    }
    return parties;
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
    for (auto rs
         = base.read(QStringLiteral("SELECT Numero, Titre, Tome, Serie, Dessin, Scena, Editeur From BD"
                                    " order by Serie desc, Tome asc"));
         !rs.AtEnd(); rs.MoveNext()) {
        if (const auto parties = lireParties(rs, liste.telsQuels))
            liste.albums.ajouter(static_cast<int>(rs.Int64(0)), parties->join(Entre).toStdString());
        else
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
    return ligne.section(Entre, rang, rang);
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
