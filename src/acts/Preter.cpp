#include "acts/Preter.h"

#include "acts/Acte.h"
#include "acts/Creer.h"
#include "core/Dates.h"
#include "core/Traduction.h"
#include "db/AccesBase.h"
#include "model/Trouver.h"

#include <QCoreApplication>

namespace {

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Prets)
};

struct DonneeStockee
{
    const char *champ;
    Txt libelle;
};
constexpr DonneeStockee Donnees[] = {{"Nom", Txt::Nom}, {"Prenom", Txt::Prenom}, {"Tel", Txt::Telephone}};

QString nomDe(int emprunteur)
{
    const Base base;
    const auto rs = base.read(QStringLiteral("SELECT Nom From Pret where NPret = ?"), {emprunteur});
    return rs.AtEnd() ? QString() : rs.Fields(0).toString().trimmed();
}

/// Who has the album, and since when; the act is called by the album.
void poserPret(const QString &quoi, int album, int emprunteur, const QString &date)
{
    const General::Entree entree{General::Tri::Albums, album};
    Acte acte(quoi + QStringLiteral(": ") + General::LireTexte(entree.tri, album), entree);
    if (emprunteur > 0 && !Trouver::Existe(acte.base(), Especes::Emprunteur, emprunteur))
        return;
    auto rs
        = acte.base().edit(QStringLiteral("Album"), QStringLiteral("Num = ? order by NAlbum asc"), {album});
    if (rs.RecordCount() == 0)
        return;
    rs.Edit();
    rs.SetField(QStringLiteral("DPret"), date);
    rs.SetField(QStringLiteral("NPret"), emprunteur);
    rs.Update();
    acte.valider();
}

}

void Preter::PreterAlbum(int album, int emprunteur)
{
    if (emprunteur > 0)
        poserPret(Tr::tr("Prêt"), album, emprunteur, Dates::Ecrire(QDate::currentDate()));
}

void Preter::Rendre(int album)
{
    poserPret(Tr::tr("Retour"), album, 0, {});
}

int Preter::AjouterEmprunteur(const QString &nom)
{
    const QString net = nom.simplified();
    if (net.isEmpty())
        return 0;
    Acte acte(texte(Txt::Ajouter) + QStringLiteral(": ") + net);
    const int id = Creer::CreerEntree(Especes::Emprunteur, net);
    acte.valider();
    return id;
}

bool Preter::EcrireEmprunteur(int emprunteur, Donnee donnee, const QString &saisie)
{
    const QString nette = saisie.simplified();
    if (donnee == Donnee::Nom && nette.isEmpty())
        return false;
    const auto &[champ, libelle] = Donnees[static_cast<std::size_t>(donnee)];
    Acte acte(texte(libelle) + QStringLiteral(": ") + nette);
    auto rs = acte.base().edit(QStringLiteral("Pret"), QStringLiteral("NPret = ?"), {emprunteur});
    if (rs.AtEnd() || rs.Fields(QLatin1String(champ)).toString() == nette)
        return true;
    rs.Edit();
    rs.SetField(QLatin1String(champ), nette);
    rs.Update();
    acte.valider();
    return true;
}

void Preter::SupprimerEmprunteur(int emprunteur)
{
    Acte acte(texte(Txt::Supprimer) + QStringLiteral(": ") + nomDe(emprunteur));
    AccesBase::SupprimerLignes(QStringLiteral("Pret"), QStringLiteral("NPret"), emprunteur);
    acte.valider();
}
