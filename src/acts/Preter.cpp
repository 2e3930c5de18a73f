#include "acts/Preter.h"

#include "acts/Acte.h"
#include "core/Traduction.h"
#include "db/AccesBase.h"

#include <QCoreApplication>

namespace {

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Prets)
};

QString nomDe(int emprunteur)
{
    const Base base;
    const auto rs = base.read(QStringLiteral("SELECT Nom From Pret where NPret = ?"), {emprunteur});
    return rs.AtEnd() ? QString() : rs.Fields(0).toString().trimmed();
}

}

void Preter::Rendre(int album)
{
    const General::Entree entree{General::Tri::Albums, album};
    Acte acte(Tr::tr("Retour") + QStringLiteral(": ") + General::LireTexte(entree.tri, album), entree);
    auto rs
        = acte.base().edit(QStringLiteral("Album"), QStringLiteral("Num = ? order by NAlbum asc"), {album});
    if (rs.RecordCount() == 0)
        return;
    rs.Edit();
    rs.SetField(QStringLiteral("DPret"), QString());
    rs.SetField(QStringLiteral("NPret"), 0);
    rs.Update();
    acte.valider();
}

void Preter::SupprimerEmprunteur(int emprunteur)
{
    Acte acte(texte(Txt::Supprimer) + QStringLiteral(": ") + nomDe(emprunteur));
    AccesBase::SupprimerLignes(QStringLiteral("Pret"), QStringLiteral("NPret"), emprunteur);
    acte.valider();
}
