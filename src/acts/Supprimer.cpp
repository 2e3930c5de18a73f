#include "acts/Supprimer.h"

#include "acts/Acte.h"
#include "core/Traduction.h"

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
