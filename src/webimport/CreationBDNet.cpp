#include "webimport/CreationBDNet.h"

#include "acts/Creer.h"
#include "model/Fiche.h"

#include <QCoreApplication>

using namespace CreationBDNet;

namespace {

const Champs::Champ &regle(const char *nom)
{
    return *Champs::Chercher(Champs::Feuille::Album, nom);
}

}

std::optional<Refus> CreationBDNet::Verifier(const Saisie &saisie)
{
    if (saisie.champs[Titre].trimmed().isEmpty() && saisie.champs[Serie].trimmed().isEmpty())
        return Refus{Titre, QCoreApplication::translate("Saisie", "Donnez au moins un titre.")};
    if (!Fiche::Verifier(regle("NumBD"), saisie.champs[Tome]))
        return Refus{Tome, Fiche::RaisonDuRefus(regle("NumBD"))};
    if (!Fiche::Verifier(regle("PrixA"), saisie.champs[PrixA]))
        return Refus{PrixA, Fiche::RaisonDuRefus(regle("PrixA"))};
    return std::nullopt;
}

int CreationBDNet::Creer(const Saisie &saisie)
{
    const auto champ = [&](Champ rang) { return saisie.champs[rang].trimmed(); };
    Creer::Album album;
    album.titre = champ(Titre);
    album.tome = Fiche::Verifier(regle("NumBD"), champ(Tome))->toInt();
    album.serie = champ(Serie);
    album.dateparu = champ(Dateparu);
    album.genre = champ(Genre);
    album.dessin = champ(Dessin);
    album.scena = champ(Scena);
    album.editeur = champ(Editeur);
    album.prix = Fiche::Verifier(regle("PrixA"), champ(PrixA))->toDouble();
    album.broche = saisie.broche;
    album.couleur = saisie.couleur;
    album.integrale = saisie.integrale;
    album.histoire = saisie.histoire;
    album.photo1 = saisie.photos[0];
    album.photo2 = saisie.photos[1];
    return Creer::CreerEnUnActe(album);
}
