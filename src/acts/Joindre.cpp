#include "acts/Joindre.h"

#include "acts/Acte.h"
#include "core/Error.h"
#include "core/Images.h"
#include "core/Texte.h"
#include "db/AccesBase.h"
#include "db/schema/Tables.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

constexpr QSize TailleDEssai(64, 64);

void ecrire(const Edition &edition, const QString &valeur, const QString &titre)
{
    const Champs::Champ *champ = Ecrire::ChampDe(edition);
    const QString table = QLatin1String(champ->table);
    const bool dedicace = champ->vue != Champs::Vue::Image;
    const bool seconde = QString::fromLatin1(champ->colonne).endsWith(u'2');
    Acte acte(Ecrire::TitreDe(edition, titre), edition.entree);
    AccesBase::EcrireImage(table, seconde ? AccesBase::Rang::Seconde : AccesBase::Rang::Premiere,
        Schema::Champs(table).first(), edition.entree.id, valeur,
        dedicace ? AccesBase::Sorte::Dedicace : AccesBase::Sorte::Image);
    acte.valider();
}

}

QString Joindre::QuestionSurLaNote(const Edition &edition)
{
    constexpr qsizetype LongueurMontree = 60;
    if (Ecrire::NomDe(edition) != QLatin1String("Dedi"))
        return {};
    const auto valeurs = Fiche::Lire(General::GenreDe(edition.entree.tri).feuille, edition.entree.id);
    const QString note = valeurs ? valeurs->at(edition.champ).affichee : QString();
    if (Texte::EstVide(note) || Images::EstUneImage(note))
        return {};
    return QCoreApplication::translate(
        "AccordPourLaNote", "Cette dédicace est une note : « %1 ». L'image la remplacera. Continuer ?")
        .arg(note.left(LongueurMontree));
}

void Joindre::Poser(const Edition &edition, const QString &chemin)
{
    if (!QFileInfo(chemin).isFile() || Images::Decoder(chemin, TailleDEssai).isNull())
        throw Error(
            QCoreApplication::translate("PhotosFiche", "Ce fichier n'est pas une image lisible."), chemin);
    if (const QString absente = Ecrire::RaisonSiAbsente(edition); !absente.isEmpty())
        throw Error(absente, {});
    const QString nom = Images::Copier(chemin);
    ecrire(edition, nom, nom);
}

void Joindre::PoserImage(const Edition &edition, const QImage &image)
{
    constexpr int BonneQualite = 92;
    const QString entree = General::LireTexte(edition.entree.tri, edition.entree.id);
    const QTemporaryDir passage;
    const QString chemin = passage.filePath(
        Images::NomDeFichier(entree.isEmpty() ? edition.champ : entree) + QStringLiteral(".jpg"));
    if (!passage.isValid() || !image.save(chemin, "JPG", BonneQualite))
        throw Error(
            QCoreApplication::translate("PhotosFiche", "L'image ne peut pas être enregistrée."), chemin);
    Poser(edition, chemin);
}

void Joindre::Oter(const Edition &edition)
{
    ecrire(edition, QStringLiteral(" "), {});
}
