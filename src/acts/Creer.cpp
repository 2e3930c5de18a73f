#include "acts/Creer.h"

#include "acts/Acte.h"
#include "core/Traduction.h"
#include "db/Base.h"
#include "db/schema/Tables.h"

#include <array>
#include <initializer_list>

namespace {

using AccesBase::Role;

constexpr qsizetype LongueurTitre = 50;
constexpr int NoteNeuve = 5;
constexpr int EnCouleur = 1;
constexpr int NoirEtBlanc = 2;
const QString Vide = QStringLiteral(" ");

struct Valeur
{
    const char *champ;
    QVariant valeur;
};

void poser(Recordset &rs, std::initializer_list<Valeur> valeurs)
{
    for (const Valeur &v : valeurs)
        rs.SetField(QLatin1String(v.champ), v.valeur);
}

void poserVides(Recordset &rs, std::initializer_list<const char *> champs)
{
    for (const char *champ : champs)
        rs.SetField(QLatin1String(champ), Vide);
}

/// A text field that has no value holds one blank.
QString texteOuVide(const QString &texte)
{
    return texte.trimmed().isEmpty() ? Vide : texte;
}

QString titreDe(const Creer::Album &album)
{
    return texteOuVide(album.titre).left(LongueurTitre);
}

/// The tables of one kind of named entry, and how an album is linked to it.
struct Lien
{
    const char *table;
    const char *cle;
    const char *recherche;
    const char *liens;
};
constexpr Lien Genre{"Genre", "NGenre", "SELECT * From Genre where Nom = ? order by Nom asc", "GenreAlbums"};
constexpr Lien Editeur{
    "Editeur", "NEdit", "SELECT * From Editeur where Nom  = ? order by Nom asc", "EditeurAlbums"};
constexpr Lien Serie{"Serie", "NSerie", "SELECT * From Serie where Nom = ? order by Nom asc", "SerieAlbums"};

/// Finds the entry of this name or makes it, with the fields that `garnir` adds, and links the album to it.
/// Nothing for a blank name.
template <class Garnir>
QVariant lier(Base &base, const Lien &lien, const QString &nom, int album, const Garnir &garnir)
{
    if (nom.trimmed().isEmpty())
        return {};
    const QString cle = QLatin1String(lien.cle);
    const auto trouvee = base.read(QLatin1String(lien.recherche), {nom});
    int numero = 0;
    if (trouvee.AtEnd()) {
        numero = AccesBase::NouvelIdentifiant(QLatin1String(lien.table), cle);
        auto rs = base.edit(QLatin1String(lien.table));
        rs.AddNew();
        rs.SetField(cle, numero);
        rs.SetField(QStringLiteral("Nom"), nom);
        garnir(rs);
        rs.Update();
    } else {
        numero = trouvee.Fields(cle).toInt();
    }
    auto rs = base.edit(QLatin1String(lien.liens));
    rs.AddNew();
    rs.SetField(cle, numero);
    rs.SetField(QStringLiteral("NAlbum"), album);
    rs.Update();
    return numero;
}

/// What an earlier album of the same number left behind would seem to belong to the new one.
void oterRestes(Base &base, int album)
{
    for (const char *table : {"InterMetier", "CotesAlbum"})
        base.Execute(QStringLiteral("DELETE From %1 where NAlbum = ?").arg(QLatin1String(table)), {album});
}

void poserAlbum(Recordset &rs, int num, const Creer::Album &album)
{
    poser(rs,
        {{"Num", num}, {"NAlbum", album.tome}, {"QualBD", NoteNeuve}, {"NbPage", Vide}, {"ISBN", Vide},
            {"Histoire", texteOuVide(album.histoire)}, {"Commentaire", Vide}, {"NPays", 0},
            {"EtatBD", NoteNeuve}, {"DepotL", Vide}, {"NCouverture", 0}, {"DPret", Vide}, {"NPret", 0},
            {"DA", Vide}, {"PrixA", album.prix}, {"ISSN", Vide}, {"Dateparu", texteOuVide(album.dateparu)},
            {"Broche", album.broche}, {"Couleur", album.couleur ? EnCouleur : NoirEtBlanc},
            {"Integrale", album.integrale}});
}

void lierSerie(Base &base, Recordset &rs, int num, const Creer::Album &album)
{
    const QVariant genre = lier(base, Genre, album.genre, num, [](Recordset &) {});
    rs.SetField(QStringLiteral("NGenre"), genre);
    const QVariant editeur = lier(base, Editeur, album.editeur, num, [](Recordset &neuf) {
        poserVides(neuf, {"adresse1", "adresse2", "ville", "CP", "Tel", "Site", "Photo1", "Photo2"});
        poser(neuf, {{"NPays", 0}});
    });
    rs.SetField(QStringLiteral("NEdit"), editeur);
    rs.SetField(QStringLiteral("NumSerie"), lier(base, Serie, album.serie, num, [&](Recordset &neuve) {
        poser(neuve,
            {{"NGenre", genre}, {"NoteG", NoteNeuve}, {"NoteD", NoteNeuve}, {"NoteS", NoteNeuve},
                {"cote", NoteNeuve}, {"NEditeur", editeur}});
        poserVides(neuve, {"SiteWeb1", "SiteWeb2", "Commentaire", "Histoire", "Photo1", "Photo2"});
    }));
}

QVariant numeroOuRien(int numero)
{
    return numero == 0 ? QVariant() : QVariant(numero);
}

/// The row of the list, which lists and sheets read first.
void ajouterAuxListes(Base &base, int num, const Creer::Album &album)
{
    auto rs = base.edit(QStringLiteral("LAlbums"));
    rs.AddNew();
    poser(rs,
        {{"NAlbum", num}, {"TAlbum", titreDe(album)}, {"Photo1", texteOuVide(album.photo1)},
            {"Photo2", texteOuVide(album.photo2)}, {"Histoire", texteOuVide(album.histoire)}, {"dedi1", Vide},
            {"dedi2", Vide}});
    rs.Update();
}

/// The author of this name. A text with a comma that is nobody's name is read as "name, first name".
int chercherAuteur(const Base &base, const QString &nom)
{
    const auto entier
        = base.read(QStringLiteral("SELECT * From Auteurs where Nom = ? order by Nom asc"), {nom});
    if (!entier.AtEnd())
        return entier.Fields(0).toInt();
    const qsizetype virgule = nom.indexOf(u',');
    if (virgule < 0)
        return 0;
    const auto coupe = base.read(QStringLiteral("SELECT * From Auteurs where Nom = ? and trim(Prenom) = ?"
                                                " collate FRANCAIS order by Nom asc"),
        {nom.left(virgule).trimmed(), nom.mid(virgule + 1).trimmed()});
    return coupe.AtEnd() ? 0 : coupe.Fields(0).toInt();
}

}

bool Creer::Existe(const Album &album)
{
    const Base base;
    const auto rs = base.read(
        QStringLiteral("SELECT a.Num From LAlbums l join Album a on a.Num = l.NAlbum"
                       " left join Serie s on s.NSerie = a.NumSerie where l.TAlbum = ? and a.NAlbum = ?"
                       " and trim(coalesce(s.Nom, '')) = ? collate FRANCAIS"),
        {titreDe(album), album.tome, album.serie.trimmed()});
    return !rs.AtEnd();
}

int Creer::CreerAlbum(const Album &album)
{
    Base base;
    const int num = AccesBase::NouvelIdentifiant(QStringLiteral("Album"), QStringLiteral("Num"));
    oterRestes(base, num);
    auto rs = base.edit(QStringLiteral("Album"));
    rs.AddNew();
    poserAlbum(rs, num, album);
    // The links are made, and stay, before the album itself is written.
    lierSerie(base, rs, num, album);
    rs.SetField(QStringLiteral("NDessin"), numeroOuRien(AjouterAuteur(album.dessin, Role::Dessin, num)));
    rs.SetField(QStringLiteral("NScen"), numeroOuRien(AjouterAuteur(album.scena, Role::Scena, num)));
    rs.SetField(QStringLiteral("NColor"), numeroOuRien(AjouterAuteur(album.color, Role::Color, num)));
    rs.Update();
    ajouterAuxListes(base, num, album);
    return num;
}

int Creer::CreerEnUnActe(const Album &album)
{
    Acte acte(texte(Txt::Creation) + QStringLiteral(": ") + album.titre.trimmed());
    const int num = CreerAlbum(album);
    acte.placer({General::Tri::Albums, num});
    acte.valider();
    return num;
}

int Creer::AjouterAuteur(const QString &nom, Role role, int album)
{
    if (nom.trimmed().isEmpty())
        return 0;
    const Base base;
    int auteur = chercherAuteur(base, nom);
    if (auteur == 0)
        auteur = CreerAuteur(nom, QStringLiteral(" "), role);
    else
        AccesBase::PoserRole(auteur, role);
    LierAuteur(auteur, role, album);
    return auteur;
}

int Creer::CreerEntree(const QString &table, const QString &nom)
{
    Base base;
    const QVariantList blanc = Schema::Blanc(table);
    const int numero = AccesBase::NouvelIdentifiant(table, Schema::Champs(table).first());
    auto rs = base.edit(table);
    rs.AddNew();
    for (int i = 0; i < blanc.size(); ++i)
        rs.SetField(i, blanc.at(i));
    rs.SetField(0, numero);
    rs.SetField(1, nom);
    if (table.compare(QLatin1String("Serie"), Qt::CaseInsensitive) == 0)
        poser(rs, {{"NoteG", NoteNeuve}, {"NoteD", NoteNeuve}, {"NoteS", NoteNeuve}, {"cote", NoteNeuve}});
    rs.Update();
    return numero;
}

int Creer::CreerAuteur(const QString &nom, const QString &prenom, Role role)
{
    Base base;
    const int numero = CreerEntree(QStringLiteral("Auteurs"), nom);
    auto rs = base.edit(QStringLiteral("Auteurs"), QStringLiteral("NAuteur = ?"), {numero});
    rs.Edit();
    poser(rs, {{"Prenom", texteOuVide(prenom)}});
    rs.SetField(AccesBase::NomDuRole(role), true);
    rs.Update();
    return numero;
}

void Creer::LierAuteur(int auteur, Role role, int album)
{
    Base base;
    auto rs = base.edit(QStringLiteral("AuteursAlbums"),
        QStringLiteral("NAuteur = ? and NAlbum = ? order by NAuteur asc"), {auteur, album});
    if (rs.AtEnd()) {
        rs.AddNew();
        poser(rs,
            {{"NAuteur", auteur}, {"NAlbum", album}, {"Dessin", false}, {"Scena", false}, {"Color", false}});
    } else {
        rs.Edit();
    }
    rs.SetField(AccesBase::NomDuRole(role), true);
    rs.Update();
}
