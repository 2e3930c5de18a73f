#include "acts/Creer.h"

#include "acts/Acte.h"
#include "core/Traduction.h"
#include "db/Base.h"
#include "db/schema/Tables.h"
#include "model/Trouver.h"

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

/// A text field that has no value holds one blank.
QString texteOuVide(const QString &texte)
{
    return texte.trimmed().isEmpty() ? Vide : texte;
}

QString titreDe(const Creer::Album &album)
{
    return texteOuVide(album.titre).left(LongueurTitre);
}

/// Finds the entry of this name or makes it, and links the album to it. Nothing for a blank name.
QVariant lier(Base &base, const Especes::Espece &espece, const QString &nom, int album)
{
    if (nom.trimmed().isEmpty())
        return {};
    int numero = Trouver::ParNom(base, espece, nom);
    if (numero == 0)
        numero = Creer::CreerEntree(espece, nom);
    Creer::Lier(base, espece, numero, album);
    return numero;
}

/// A series that comes to be with an album has the genre and the publisher of that album.
void garnirSerie(Base &base, int serie, const QVariant &genre, const QVariant &editeur)
{
    auto rs = base.edit(QStringLiteral("Serie"), QStringLiteral("NSerie = ?"), {serie});
    rs.Edit();
    poser(rs, {{"NGenre", genre}, {"NEditeur", editeur}});
    rs.Update();
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
    const QVariant genre = lier(base, Especes::Genre, album.genre, num);
    const QVariant editeur = lier(base, Especes::Editeur, album.editeur, num);
    const bool neuve = Trouver::ParNom(base, Especes::Serie, album.serie) == 0;
    const QVariant serie = lier(base, Especes::Serie, album.serie, num);
    if (neuve && serie.isValid())
        garnirSerie(base, serie.toInt(), genre, editeur);
    poser(rs, {{"NGenre", genre}, {"NEdit", editeur}, {"NumSerie", serie}});
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
    const qsizetype virgule = nom.indexOf(u',');
    const int entier = Trouver::ParNom(base, Especes::Auteur, nom);
    if (entier > 0 || virgule < 0)
        return entier;
    return Trouver::Personne(
        base, Especes::Auteur, nom.left(virgule).trimmed(), nom.mid(virgule + 1).trimmed());
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

int Creer::CreerEntree(const Especes::Espece &espece, const QString &nom, const QString &suite)
{
    Base base;
    const QString table = QLatin1String(espece.table);
    const QVariantList blanc = Schema::Blanc(table);
    const int numero = AccesBase::NouvelIdentifiant(table, QLatin1String(espece.cle));
    auto rs = base.edit(table);
    rs.AddNew();
    for (int i = 0; i < blanc.size(); ++i)
        rs.SetField(i, blanc.at(i));
    rs.SetField(QLatin1String(espece.cle), numero);
    rs.SetField(QLatin1String(espece.nom), nom);
    if (!suite.trimmed().isEmpty())
        rs.SetField(QLatin1String(espece.suite), suite);
    if (&espece == &Especes::Serie)
        poser(rs, {{"NoteG", NoteNeuve}, {"NoteD", NoteNeuve}, {"NoteS", NoteNeuve}, {"cote", NoteNeuve}});
    rs.Update();
    return numero;
}

int Creer::CreerAuteur(const QString &nom, const QString &prenom, Role role)
{
    const int numero = CreerEntree(Especes::Auteur, nom, prenom);
    AccesBase::PoserRole(numero, role);
    return numero;
}

void Creer::Lier(Base &base, const Especes::Espece &espece, int numero, int album)
{
    auto rs = base.edit(QLatin1String(espece.liens));
    rs.AddNew();
    rs.SetField(QLatin1String(espece.cle), numero);
    rs.SetField(QStringLiteral("NAlbum"), album);
    rs.Update();
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
