#include "acts/Saisie.h"

#include "core/Images.h"
#include "core/Texte.h"
#include "core/Traduction.h"
#include "db/Base.h"
#include "model/Fiche.h"

#include <QCoreApplication>

using Champs::Feuille;

namespace {

constexpr qsizetype LongueurTome = 3;
constexpr QSize TailleDEssai(64, 64);

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Saisie)
};

QStringList lireAuteurs(const Base &base)
{
    QStringList noms;
    for (auto rs = base.read(QStringLiteral("SELECT Nom, Prenom From Auteurs order by Nom asc, Prenom asc"));
         !rs.AtEnd(); rs.MoveNext())
        noms << Texte::NomPrenom(rs.Fields(0).toString(), rs.Fields(1).toString());
    return noms;
}

bool estUneImage(const QString &chemin)
{
    return chemin.isEmpty() || !Images::Decoder(chemin, TailleDEssai).isNull();
}

bool estVide(const Saisie::Textes &t)
{
    const Creer::Album &a = t.album;
    const QStringList textes{a.titre, a.serie, a.dateparu, a.editeur, a.genre, a.dessin, a.color, a.scena,
        a.histoire, t.prix, t.photo1, t.photo2};
    return textes.join(QString()).trimmed().isEmpty();
}

const Champs::Champ &champ(const char *nom)
{
    return *Champs::Chercher(Feuille::Album, nom);
}

}

Saisie::Choix Saisie::LireChoix()
{
    const Base base;
    return {AccesBase::LireNoms(QStringLiteral("Serie")), AccesBase::LireNoms(QStringLiteral("Editeur")),
        AccesBase::LireNoms(QStringLiteral("Genre")), lireAuteurs(base)};
}

std::optional<int> Saisie::ProchainTome(const QString &serie)
{
    const Base base;
    const auto rs = base.read(
        QStringLiteral("SELECT s.NSerie, (SELECT max(NAlbum) From Album where NumSerie = s.NSerie)"
                       " From Serie s where s.Nom = ?"),
        {serie.trimmed()});
    if (rs.AtEnd())
        return std::nullopt;
    return rs.Fields(1).toInt() + 1;
}

QString Saisie::ComposerDate(int jour, int mois, int annee)
{
    QStringList parties;
    if (jour > 0 && mois > 0)
        parties << QStringLiteral("%1").arg(jour, 2, 10, QLatin1Char('0'));
    if (mois > 0)
        parties << Traduction::courant().locale().monthName(mois);
    if (annee > 0)
        parties << QString::number(annee);
    return parties.join(u' ');
}

std::optional<Saisie::Refus> Saisie::Verifier(const Textes &textes)
{
    if (estVide(textes))
        return Refus{QStringLiteral("Titre"), Tr::tr("Donnez au moins un titre.")};
    if (textes.tome.trimmed().size() > LongueurTome || !Fiche::Verifier(champ("NumBD"), textes.tome))
        return Refus{QStringLiteral("Tome"), Fiche::RaisonDuRefus(champ("NumBD"))};
    if (!Fiche::Verifier(champ("PrixA"), textes.prix))
        return Refus{QStringLiteral("PrixA"), Fiche::RaisonDuRefus(champ("PrixA"))};
    if (!estUneImage(textes.photo1))
        return Refus{QStringLiteral("ImageRecto"), Tr::tr("Ce fichier n'est pas une image lisible.")};
    if (!estUneImage(textes.photo2))
        return Refus{QStringLiteral("ImageVerso"), Tr::tr("Ce fichier n'est pas une image lisible.")};
    return std::nullopt;
}

Creer::Album Saisie::Composer(const Textes &textes)
{
    Creer::Album album = textes.album;
    album.tome = Fiche::Verifier(champ("NumBD"), textes.tome)->toInt();
    album.prix = Fiche::Verifier(champ("PrixA"), textes.prix)->toDouble();
    return album;
}

int Saisie::CreerAlbum(const Textes &textes)
{
    Creer::Album album = Composer(textes);
    if (!textes.photo1.isEmpty())
        album.photo1 = Images::Copier(textes.photo1);
    if (!textes.photo2.isEmpty())
        album.photo2 = Images::Copier(textes.photo2);
    return Creer::CreerEnUnActe(album);
}
