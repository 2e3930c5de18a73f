#include "acts/Supprimer.h"

#include "acts/Acte.h"
#include "core/Traduction.h"
#include "db/AccesBase.h"

#include <array>

using General::Tri;

namespace {

struct Cible
{
    Tri tri;
    const char *table;
    const char *champ; ///< key, or the flag that is cleared in "Auteurs"
};

/// What goes with an entry, in this order.
constexpr std::array Cibles{
    Cible{Tri::Albums, "Album", "Num"},
    Cible{Tri::Albums, "LAlbums", "NAlbum"},
    Cible{Tri::Albums, "AuteursAlbums", "NAlbum"},
    Cible{Tri::Albums, "CollAlbums", "NAlbum"},
    Cible{Tri::Albums, "EditeurAlbums", "NAlbum"},
    Cible{Tri::Albums, "GenreAlbums", "NAlbum"},
    Cible{Tri::Albums, "PaysAlbum", "NAlbum"},
    Cible{Tri::Albums, "SerieAlbums", "NAlbum"},
    Cible{Tri::Series, "Serie", "NSerie"},
    Cible{Tri::Dessinateurs, "Auteurs", "Dessin"},
    Cible{Tri::Scenaristes, "Auteurs", "Scena"},
    Cible{Tri::Coloristes, "Auteurs", "Color"},
    Cible{Tri::ExLibris, "ExLibris", "NExLibris"},
    Cible{Tri::Presse, "Pressebd", "NPressbd"},
    Cible{Tri::Editeurs, "Editeur", "NEdit"},
    Cible{Tri::Collections, "Coll", "NColl"},
};

void oterMetier(Base &base, int auteur, const QString &drapeau)
{
    auto rs = base.edit(QStringLiteral("Auteurs"), QStringLiteral("NAuteur = ?"), {auteur});
    if (rs.AtEnd())
        return;
    rs.Edit();
    rs.SetField(drapeau, false);
    rs.Update();
}

}

void Supprimer::SupprimerEntree(General::Entree entree)
{
    Acte acte(
        texte(Txt::Supprimer) + QStringLiteral(": ") + General::LireTexte(entree.tri, entree.id), entree);
    for (const Cible &cible : Cibles) {
        if (cible.tri != entree.tri)
            continue;
        const QString table = QLatin1String(cible.table);
        if (table == QLatin1String("Auteurs"))
            oterMetier(acte.base(), entree.id, QLatin1String(cible.champ));
        else
            AccesBase::SupprimerLignes(table, QLatin1String(cible.champ), entree.id);
    }
    acte.valider();
}
