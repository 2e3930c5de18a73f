#include "reports/Listage.h"

#include "core/Images.h"
#include "core/Traduction.h"
#include "db/Base.h"
#include "model/ChargerAlbums.h"
#include "model/ChargerAuteurs.h"
#include "model/Fiche.h"

#include <QCoreApplication>
#include <memory>
#include <unordered_map>
#include <unordered_set>

using namespace Listage;
using Champs::Champ;
using Champs::De;
using Champs::Feuille;
using Champs::Vue;
using General::Tri;

namespace {

/// The columns of albums that have a name of their own in a list; they come first and are chosen at first.
constexpr Colonne DAlbums[] = {
    {&De(Feuille::Album, "TAlbum"), Txt::TitreAlbum, false, true},
    {&De(Feuille::Album, "NumBD"), Txt::NumeroAlbum, false, true},
    {&De(Feuille::Album, "Serie"), Txt::TitreSerie, false, true},
    {&De(Feuille::Album, "Qualite"), Txt::Qualite, false, true},
    {&De(Feuille::Album, "DateParu"), Txt::DateParution, false, true},
    {&De(Feuille::Album, "LSerieLim"), Txt::SerieLimiteeAbregee, false, true},
    {&De(Feuille::Album, "LBrochee"), Txt::Cartonnee, true, true},
    {&De(Feuille::Album, "LEditionOri"), Txt::EditionOriginale, false, true},
    {&De(Feuille::Album, "Format"), Txt::FormatCouverture, false, true},
    {&De(Feuille::Album, "LCoffret"), Txt::FaitPartieDuCoffret, false, true},
};

bool estIntitulee(const Champ &champ)
{
    return std::any_of(std::begin(DAlbums), std::end(DAlbums),
        [&](const Colonne &c) { return !c.contraire && c.champ == &champ; });
}

bool estUnNombre(const Champ &champ)
{
    switch (champ.vue) {
    case Vue::Tome:
    case Vue::Prix:
    case Vue::Cote:
        return true;
    default:
        return champ.regle == Champs::Regle::Nombre && champ.vue == Vue::Texte;
    }
}

/// The names behind identifiers, each read once; those of link rows all at once.
class Noms
{
public:
    explicit Noms(const Sources::Source &source)
        : m_source(source)
        , m_lies(source.lien == Sources::Lien::Tous ? Sources::LireTousLesNomsLies(source)
                                                    : std::unordered_map<int, QString>())
    {
    }
    const QString &de(int id, int cle)
    {
        if (m_source.lien == Sources::Lien::Tous)
            return m_lies[id];
        const auto [place, neuf] = m_connus.try_emplace(cle);
        if (neuf && cle > 0)
            place->second = Sources::LireNom(m_source, cle);
        return place->second;
    }

private:
    const Sources::Source &m_source;
    std::unordered_map<int, QString> m_lies;
    std::unordered_map<int, QString> m_connus;
};

/// A grade by its word, blank for none; whatever else as a sheet shows it.
QString motDe(const Champ &champ, const QString &affichee)
{
    bool nombre = false;
    const int grade = affichee.toInt(&nombre);
    if (champ.vue != Vue::Etoiles || !nombre)
        return affichee;
    return grade >= 1 ? Fiche::MotDeLaNote(grade) : QString();
}

/// A column during a walk: where its value stands in the row, and how it becomes text.
class Lecteur
{
public:
    Lecteur(const Colonne &colonne, int rang)
        : m_colonne(colonne)
        , m_rang(rang)
        , m_noms(colonne.champ->source ? std::make_unique<Noms>(*colonne.champ->source) : nullptr)
    {
    }
    QString lire(const Cursor &rs, int id) const
    {
        const Champ &champ = *m_colonne.champ;
        if (m_noms)
            return m_noms->de(id, champ.colonne ? static_cast<int>(rs.Int64(m_rang)) : 0);
        const QVariant valeur = rs.Fields(m_rang);
        if (champ.vue == Vue::Case)
            return texte(valeur.toBool() != m_colonne.contraire ? Txt::Oui : Txt::Non);
        return motDe(champ, Fiche::Afficher(champ, valeur));
    }

private:
    Colonne m_colonne;
    int m_rang;
    std::unique_ptr<Noms> m_noms;
};

/// Where the entries of a list stand.
QString dans(Tri tri)
{
    const QString condition = General::ConditionDe(tri);
    return QStringLiteral(" From ") + QLatin1String(General::EspeceDe(tri).table)
        + (condition.isEmpty() ? QString() : QStringLiteral(" where ") + condition);
}

/// What the rows of a kind are read from; the first column is the identifier, the second the series of an album.
QString requete(Tri tri, const std::vector<Colonne> &colonnes, Ordre ordre)
{
    const bool albums = tri == Tri::Albums;
    const Especes::Espece &espece = General::EspeceDe(tri);
    QStringList champs{albums ? QStringLiteral("l.NAlbum") : QString::fromLatin1(espece.cle),
        albums ? QStringLiteral("a.NumSerie") : QStringLiteral("0")};
    for (const Colonne &c : colonnes) {
        const QString nom = QLatin1String(c.champ->colonne ? c.champ->colonne : "NULL");
        const QString alias = !albums || !c.champ->colonne ? QString()
            : qstrcmp(c.champ->table, "LAlbums") == 0      ? QStringLiteral("l.")
                                                           : QStringLiteral("a.");
        // The summary may stand in the list row alone.
        champs << (albums && nom == QLatin1String("Histoire")
                ? QStringLiteral("coalesce(nullif(trim(a.Histoire), ''), l.Histoire)")
                : alias + nom);
    }
    QString sql = QStringLiteral("SELECT ") + champs.join(QStringLiteral(", "));
    if (!albums) {
        return sql + dans(tri) + QStringLiteral(" order by Nom asc");
    }
    sql += QStringLiteral(" From LAlbums l left join Album a on a.Num = l.NAlbum");
    if (ordre == Ordre::Albums)
        return sql + QStringLiteral(" order by l.TAlbum asc");
    return sql
        + QStringLiteral(" left join Serie s on s.NSerie = a.NumSerie and s.NSerie > 0"
                         " order by s.Nom is null, s.Nom asc, a.NAlbum asc, l.TAlbum asc");
}

qint64 compter(Tri tri)
{
    const Base base;
    return base.read(QStringLiteral("SELECT count(*)") + dans(tri)).Int64(0);
}

/// What a walk counts for the lines below the table.
struct Compte
{
    qint64 lignes = 0;
    std::unordered_set<qint64> series;
};

bool parcourirEntrees(Tri tri, const std::vector<Colonne> &colonnes, Ordre ordre,
    const std::optional<std::vector<int>> &seulement, Compte &compte, const Rangee &rangee)
{
    constexpr int PremiereColonne = 2;
    compte = {};
    const Base base;
    std::vector<Lecteur> lecteurs;
    lecteurs.reserve(colonnes.size());
    for (const Colonne &colonne : colonnes)
        lecteurs.emplace_back(colonne, PremiereColonne + static_cast<int>(lecteurs.size()));
    QStringList cellules(static_cast<qsizetype>(colonnes.size()));
    for (auto rs = base.read(requete(tri, colonnes, ordre)); !rs.AtEnd(); rs.MoveNext()) {
        const int id = static_cast<int>(rs.Int64(0));
        if (seulement && !std::binary_search(seulement->begin(), seulement->end(), id))
            continue;
        ++compte.lignes;
        if (const qint64 serie = rs.Int64(1); serie > 0)
            compte.series.insert(serie);
        for (std::size_t i = 0; i < lecteurs.size(); ++i)
            cellules[static_cast<qsizetype>(i)] = lecteurs[i].lire(rs, id);
        if (!rangee(cellules))
            return false;
    }
    return true;
}

QString total(Txt libelle, qint64 nombre)
{
    return QStringLiteral("%1 : %2").arg(texte(libelle)).arg(nombre);
}

QStringList totauxDe(Tri tri, const Compte &compte)
{
    if (tri != Tri::Albums)
        return {total(General::ListeDe(tri).bouton, compte.lignes)};
    return {total(Txt::NombreTotalDAlbums, compte.lignes),
        total(Txt::NombreTotalDeSeries, static_cast<qint64>(compte.series.size()))};
}

using Lignes = std::vector<QStringList>;

void ajouterChamps(Lignes &lignes, Feuille feuille, const Valeurs &valeurs)
{
    for (const Champ &champ : Champs::Tous) {
        if (champ.feuille != feuille || champ.vue == Vue::Image)
            continue;
        const auto valeur = valeurs.find(QLatin1String(champ.nom));
        const QString mot = valeur == valeurs.end() ? QString() : motDe(champ, valeur->second.affichee);
        if (!mot.isEmpty())
            lignes.push_back({texte(champ.libelle), mot});
    }
}

void ajouterGrilles(Lignes &lignes, int album)
{
    for (const auto &i : ChargerAlbums::AfficherIntervenants(album))
        lignes.push_back({i.activite.isEmpty() ? texte(Txt::Intervenants) : i.activite, i.nom});
    for (const auto &c : ChargerAlbums::AfficherCotes(album))
        lignes.push_back({QStringLiteral("%1, %2").arg(texte(Txt::Cotes), c.mois), c.cote});
}

void ajouterLies(Lignes &lignes, Txt libelle, const Entrees &liees)
{
    for (int i = 0; i < liees.size(); ++i)
        lignes.push_back({i == 0 ? texte(libelle) : QString(), liees.texte(i)});
}

Lignes lireFiche(General::Entree entree, QString &image)
{
    Lignes lignes;
    const Base base;
    const Feuille feuille = General::ListeDe(entree.tri).feuille;
    std::optional<Valeurs> valeurs = Fiche::Lire(feuille, entree.id);
    if (!valeurs)
        return lignes;
    if (entree.tri == Tri::Albums)
        valeurs = ChargerAlbums::AfficherAlbum(entree.id)->valeurs;
    ajouterChamps(lignes, feuille, *valeurs);
    if (const auto photo = valeurs->find(QStringLiteral("Photo1")); photo != valeurs->end())
        image = Images::Trouver(photo->second.stockee.toString());
    if (entree.tri == Tri::Albums)
        ajouterGrilles(lignes, entree.id);
    ajouterLies(lignes, Txt::AlbumsDeBD, General::LireAlbums(entree.tri, entree.id));
    if (entree.tri == Tri::Editeurs)
        ajouterLies(lignes, Txt::PressesBD, General::LirePresse(entree.id));
    return lignes;
}

}

std::vector<Colonne> Listage::ColonnesDe(Tri tri)
{
    std::vector<Colonne> colonnes;
    const Feuille feuille = General::ListeDe(tri).feuille;
    const bool albums = feuille == Feuille::Album;
    if (albums)
        colonnes.assign(std::begin(DAlbums), std::end(DAlbums));
    for (const Champ &champ : Champs::Tous) {
        if (champ.feuille == feuille && champ.vue != Vue::Image && !(albums && estIntitulee(champ)))
            colonnes.push_back({&champ, champ.libelle, false, !albums && champ.vue != Vue::Memo});
    }
    return colonnes;
}

QString Listage::LibelleDe(const Colonne &colonne)
{
    return texte(colonne.libelle);
}

Tableau Listage::DesEntrees(
    Tri tri, const std::vector<Colonne> &colonnes, Ordre ordre, std::optional<std::vector<int>> seulement)
{
    if (seulement)
        std::sort(seulement->begin(), seulement->end());
    Tableau tableau;
    tableau.titre = texte(General::ListeDe(tri).titre);
    for (const Colonne &colonne : colonnes)
        tableau.tetes.push_back({LibelleDe(colonne), estUnNombre(*colonne.champ)});
    tableau.lignes = seulement ? static_cast<qint64>(seulement->size()) : compter(tri);
    const auto compte = std::make_shared<Compte>();
    tableau.parcourir = [=](const Rangee &rangee) {
        return parcourirEntrees(tri, colonnes, ordre, seulement, *compte, rangee);
    };
    tableau.totaux = [=] { return totauxDe(tri, *compte); };
    return tableau;
}

Tableau Listage::DeLaFiche(General::Entree entree)
{
    Tableau tableau;
    const auto lignes = std::make_shared<Lignes>(lireFiche(entree, tableau.image));
    tableau.titre = General::LireTexte(entree.tri, entree.id);
    tableau.tetes = {{QCoreApplication::translate("Listage", "Champ"), false},
        {QCoreApplication::translate("Listage", "Valeur"), false}};
    tableau.lignes = static_cast<qint64>(lignes->size());
    tableau.parcourir
        = [lignes](const Rangee &rangee) { return std::all_of(lignes->begin(), lignes->end(), rangee); };
    tableau.totaux = [] { return QStringList(); };
    return tableau;
}
