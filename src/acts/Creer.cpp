#include "acts/Creer.h"

#include "acts/Acte.h"
#include "core/Dates.h"
#include "core/Texte.h"
#include "core/Traduction.h"
#include "db/Base.h"
#include "db/schema/Tables.h"
#include "model/Fiche.h"
#include "model/Numeros.h"
#include "model/Trouver.h"

using AccesBase::Role;
using ChampsDeCreation::ChampDeCreation;

namespace {

constexpr int NoteNeuve = 5;

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

/// The entry of this name, made when there is none, with the album tied to it.
int lierUne(Base &base, const Sources::Source &source, const QString &nom, int album)
{
    if (source.role)
        return Creer::AjouterAuteur(nom, *source.role, album);
    int numero = Trouver::ParTexte(base, *source.espece, nom);
    if (numero == 0)
        numero = Creer::CreerEntree(*source.espece, nom);
    if (source.lien != Sources::Lien::Aucun)
        Creer::Lier(base, *source.espece, numero, album);
    return numero;
}

/// All entries that a text names, where a field may hold several; the number is that of the first, nothing for a
/// blank text.
QVariant lier(Base &base, const Sources::Source &source, const QString &texte, int album)
{
    if (!Texte::EstUnNom(texte))
        return {};
    const QStringList noms = source.lien == Sources::Lien::Tous
        ? Trouver::Enumerer(base, *source.espece, texte)
        : QStringList{texte};
    QVariant premier;
    for (const QString &nom : noms) {
        const int numero = lierUne(base, source, nom, album);
        if (!premier.isValid())
            premier = numero;
    }
    return premier;
}

/// A series that comes to be with an album has the genre and the publisher of that album.
void garnirSerie(Base &base, int serie, const QVariant &genre, const QVariant &editeur)
{
    auto rs = base.edit(QStringLiteral("Serie"), QStringLiteral("NSerie = ?"), {serie});
    rs.Edit();
    poser(rs, {{"NGenre", genre}, {"NEditeur", editeur}});
    rs.Update();
}

/// What is stored for an entered text; nothing where nothing was entered and nothing stands for that.
QVariant valeurDe(const ChampDeCreation &champ, const Album &album)
{
    const bool entre = album.a(champ.rubrique);
    if (!entre && !champ.siVide)
        return {};
    const QString texte = entre ? album[champ.rubrique] : QString::fromLatin1(champ.siVide);
    return texte.trimmed().isEmpty() ? QVariant(texte) : *Fiche::Verifier(*champ.champ, texte);
}

/// The values of the album's row of a table; what names another entry comes with its links.
void poserValeurs(Recordset &rs, const char *table, const Album &album)
{
    for (const ChampDeCreation &champ : ChampsDeCreation::Tous) {
        const bool nomme = champ.champ->source && album.a(champ.rubrique);
        if (nomme || !champ.champ->colonne || qstrcmp(champ.champ->table, table) != 0)
            continue;
        if (const QVariant valeur = valeurDe(champ, album); valeur.isValid())
            rs.SetField(QLatin1String(champ.champ->colonne), valeur);
    }
}

/// Ties the album to what it names; the numbers go into its row.
void lierEntrees(Base &base, Recordset &rs, int num, const Album &album)
{
    const bool serieNeuve
        = album.a(Rubrique::Serie) && Trouver::ParNom(base, Especes::Serie, album[Rubrique::Serie]) == 0;
    std::array<QVariant, NombreDeRubriques> numeros;
    for (const ChampDeCreation &champ : ChampsDeCreation::Tous) {
        if (!champ.champ->source || !album.a(champ.rubrique))
            continue;
        const QVariant numero = lier(base, *champ.champ->source, album[champ.rubrique], num);
        numeros[static_cast<std::size_t>(champ.rubrique)] = numero;
        if (champ.champ->colonne)
            rs.SetField(QLatin1String(champ.champ->colonne), numero);
    }
    const auto numeroDe = [&](Rubrique r) { return numeros[static_cast<std::size_t>(r)]; };
    if (serieNeuve)
        garnirSerie(
            base, numeroDe(Rubrique::Serie).toInt(), numeroDe(Rubrique::Genre), numeroDe(Rubrique::Editeur));
}

/// The row of the list, which lists and sheets read first; it has a copy of the summary.
void ajouterAuxListes(Base &base, int num, const Album &album)
{
    auto rs = base.edit(QStringLiteral("LAlbums"));
    rs.AddNew();
    rs.SetField(QStringLiteral("NAlbum"), num);
    poserValeurs(rs, "LAlbums", album);
    rs.SetField(QStringLiteral("Histoire"), valeurDe(ChampsDeCreation::De(Rubrique::Histoire), album));
    rs.Update();
}

/// A loan begins today unless its date is known.
Album dateDuPretComprise(Album album)
{
    if (album.a(Rubrique::Emprunteur) && !album.a(Rubrique::DatePret))
        album[Rubrique::DatePret] = Dates::Ecrire(QDate::currentDate());
    return album;
}

}

bool Creer::Existe(const Album &album)
{
    const Base base;
    const auto rs = base.read(
        QStringLiteral("SELECT a.Num From LAlbums l join Album a on a.Num = l.NAlbum"
                       " left join Serie s on s.NSerie = a.NumSerie where l.TAlbum = ? and a.NAlbum = ?"
                       " and trim(coalesce(s.Nom, '')) = ? collate FRANCAIS"),
        {valeurDe(ChampsDeCreation::De(Rubrique::Titre), album),
            valeurDe(ChampsDeCreation::De(Rubrique::Tome), album), album[Rubrique::Serie].trimmed()});
    return !rs.AtEnd();
}

int Creer::CreerAlbum(const Album &saisi)
{
    Base base;
    const Album album = dateDuPretComprise(saisi);
    const int num = Numeros::Suivant(base, Especes::Album);
    auto rs = base.edit(QStringLiteral("Album"));
    rs.AddNew();
    rs.SetField(QStringLiteral("Num"), num);
    poserValeurs(rs, "Album", album);
    // The links are made, and stay, before the album itself is written.
    lierEntrees(base, rs, num, album);
    rs.Update();
    ajouterAuxListes(base, num, album);
    return num;
}

int Creer::CreerEnUnActe(const Album &album)
{
    Acte acte(texte(Txt::Creation) + QStringLiteral(": ") + album[Rubrique::Titre].trimmed());
    const int num = CreerAlbum(album);
    acte.placer({General::Tri::Albums, num});
    acte.valider();
    return num;
}

int Creer::AjouterAuteur(const QString &nom, Role role, int album)
{
    if (!Texte::EstUnNom(nom))
        return 0;
    const Base base;
    int auteur = Trouver::ParTexte(base, Especes::Auteur, nom, role);
    if (auteur == 0)
        auteur = CreerAuteur(nom, role);
    else
        AccesBase::PoserRole(auteur, role);
    LierAuteur(auteur, role, album);
    return auteur;
}

int Creer::CreerEntree(const Especes::Espece &espece, const QString &texte)
{
    const Trouver::Noms noms = Trouver::Separer(espece, texte);
    return CreerEntree(espece, noms);
}

int Creer::CreerEntree(const Especes::Espece &espece, const Trouver::Noms &noms)
{
    Base base;
    const QString table = QLatin1String(espece.table);
    const QVariantList blanc = Schema::Blanc(table);
    const int numero = Numeros::Suivant(base, espece);
    auto rs = base.edit(table);
    rs.AddNew();
    for (int i = 0; i < blanc.size(); ++i)
        rs.SetField(i, blanc.at(i));
    rs.SetField(QLatin1String(espece.cle), numero);
    rs.SetField(QLatin1String(espece.nom), noms.nom);
    if (!noms.prenom.isEmpty())
        rs.SetField(QLatin1String(espece.suite), noms.prenom);
    if (&espece == &Especes::Serie)
        poser(rs, {{"NoteG", NoteNeuve}, {"NoteD", NoteNeuve}, {"NoteS", NoteNeuve}, {"cote", NoteNeuve}});
    rs.Update();
    return numero;
}

int Creer::CreerAuteur(const QString &texte, Role role)
{
    const int numero = CreerEntree(Especes::Auteur, texte);
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
