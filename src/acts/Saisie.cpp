#include "acts/Saisie.h"

#include "core/Images.h"
#include "core/Texte.h"
#include "core/Traduction.h"
#include "db/Base.h"
#include "model/Fiche.h"

#include <QCoreApplication>
#include <QDir>

using ChampsDeCreation::ChampDeCreation;
using ChampsDeCreation::Maniere;

namespace {

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

bool estUneImage(const QString &texte)
{
    return QDir::isRelativePath(texte) || !Images::Decoder(texte, TailleDEssai).isNull();
}

/// A tome number alone, and boxes, which are always entered, make no album.
bool ditQuelqueChose(const Album &album)
{
    return std::any_of(std::begin(ChampsDeCreation::Tous), std::end(ChampsDeCreation::Tous),
        [&](const ChampDeCreation &champ) {
            return champ.maniere != Maniere::Case && champ.rubrique != Rubrique::Tome
                && album.a(champ.rubrique);
        });
}

/// Why a text is refused; empty when it is taken.
QString raisonDuRefus(const ChampDeCreation &champ, const QString &texte)
{
    // What was left blank is nobody's business here: an album may have no title.
    if (texte.trimmed().isEmpty())
        return {};
    if (champ.maniere == Maniere::Choix)
        return Texte::EstUnNom(texte) ? QString() : Tr::tr("Il manque un nom.");
    if (champ.maniere == Maniere::Image)
        return estUneImage(texte) ? QString() : Tr::tr("Ce fichier n'est pas une image lisible.");
    const bool coupe
        = champ.champ->regle == Champs::Regle::Tome && texte.trimmed().size() > Fiche::LongueurTome;
    return coupe || !Fiche::Verifier(*champ.champ, texte) ? Fiche::RaisonDuRefus(*champ.champ, texte)
                                                          : QString();
}

}

Saisie::Choix Saisie::LireChoix()
{
    const Base base;
    Choix choix;
    const QStringList auteurs = lireAuteurs(base);
    for (const ChampDeCreation &champ : ChampsDeCreation::Tous) {
        if (champ.maniere != Maniere::Choix || !champ.controle)
            continue;
        const Especes::Espece &espece = *champ.champ->source->espece;
        choix[champ.rubrique]
            = &espece == &Especes::Auteur ? auteurs : AccesBase::LireNoms(QLatin1String(espece.table));
    }
    return choix;
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

std::optional<Saisie::Refus> Saisie::Verifier(const Album &album)
{
    if (!ditQuelqueChose(album))
        return Refus{Rubrique::Titre, Tr::tr("Donnez au moins un titre.")};
    for (const ChampDeCreation &champ : ChampsDeCreation::Tous) {
        if (const auto refus = VerifierTexte(champ.rubrique, album[champ.rubrique]))
            return refus;
    }
    return std::nullopt;
}

std::optional<Saisie::Refus> Saisie::VerifierTexte(Rubrique rubrique, const QString &texte)
{
    const QString raison = raisonDuRefus(ChampsDeCreation::De(rubrique), texte);
    return raison.isEmpty() ? std::nullopt : std::optional(Refus{rubrique, raison});
}

int Saisie::CreerAlbum(Album album)
{
    for (const Rubrique photo : {Rubrique::Photo1, Rubrique::Photo2}) {
        if (QDir::isAbsolutePath(album[photo]))
            album[photo] = Images::Copier(album[photo]);
    }
    return Creer::CreerEnUnActe(album);
}
