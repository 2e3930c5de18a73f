#include "acts/Supprimer.h"

#include "acts/Acte.h"
#include "core/Traduction.h"
#include "model/Fiche.h"

#include <QCoreApplication>

namespace {

void oterMetier(Base &base, int auteur, AccesBase::Role role)
{
    auto rs = base.edit(QStringLiteral("Auteurs"), QStringLiteral("NAuteur = ?"), {auteur});
    if (rs.AtEnd())
        return;
    rs.Edit();
    rs.SetField(AccesBase::NomDuRole(role), false);
    rs.Update();
}

void oterLignes(General::Entree entree)
{
    for (const Especes::Rangs &rangs : General::EspeceDe(entree.tri).fiche)
        AccesBase::SupprimerLignes(QLatin1String(rangs.table), QLatin1String(rangs.cle), entree.id);
    if (entree.tri != General::Tri::Albums)
        return;
    for (const Especes::Espece *espece : Especes::Liees)
        AccesBase::SupprimerLignes(QLatin1String(espece->liens), QStringLiteral("NAlbum"), entree.id);
}

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Supprimer)
};

QString sansElle(General::Tri tri, int albums)
{
    using General::Tri;
    switch (tri) {
    case Tri::Series:
        return Tr::tr("%n album(s) restent, sans série.", nullptr, albums);
    case Tri::Editeurs:
        return Tr::tr("%n album(s) restent, sans éditeur.", nullptr, albums);
    case Tri::Collections:
        return Tr::tr("%n album(s) restent, sans cette collection.", nullptr, albums);
    default:
        return Tr::tr("%n album(s) restent, sans cet auteur.", nullptr, albums);
    }
}

QString chezQui(int album)
{
    const auto valeurs = Fiche::Lire(Champs::Feuille::Album, album);
    const QString qui = valeurs ? valeurs->at(QStringLiteral("NPret")).affichee : QString();
    return qui.isEmpty() ? QString() : Tr::tr("Cet album est prêté à %1.").arg(qui);
}

}

QString Supprimer::Suites(General::Entree entree)
{
    if (entree.tri == General::Tri::Albums)
        return chezQui(entree.id);
    const int albums = General::LireAlbums(entree.tri, entree.id).size();
    return albums > 0 ? sansElle(entree.tri, albums) : QString();
}

void Supprimer::SupprimerEntree(General::Entree entree)
{
    Acte acte(
        texte(Txt::Supprimer) + QStringLiteral(": ") + General::LireTexte(entree.tri, entree.id), entree);
    if (const auto role = General::ListeDe(entree.tri).role)
        oterMetier(acte.base(), entree.id, *role);
    else
        oterLignes(entree);
    acte.valider();
}
