#include "acts/Joindre.h"

#include "acts/EcrireFiche.h"
#include "core/Error.h"
#include "core/Images.h"
#include "core/Texte.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

constexpr QSize TailleDEssai(64, 64);

/// Throws Error when the entry is gone.
void ecrire(const Edition &edition, const QString &valeur)
{
    const QString refus = Ecrire::EnUnActe(edition, valeur, [&](Base &) {
        EcrireFiche::Poser(*Ecrire::ChampDe(edition), edition.entree.id, valeur);
        return QString();
    });
    if (!refus.isEmpty())
        throw Error(refus, {});
}

}

QString Joindre::QuestionSurLaNote(const Edition &edition)
{
    constexpr qsizetype LongueurMontree = 60;
    const Champs::Champ &champ = *Ecrire::ChampDe(edition);
    if (champ.vue != Champs::Vue::Dedicace)
        return {};
    const QString note = Ecrire::EditionDe(edition.entree, champ).affichee;
    if (Texte::EstVide(note) || Images::EstUneImage(note))
        return {};
    return QCoreApplication::translate(
        "AccordPourLaNote", "Cette dédicace est une note : « %1 ». L'image la remplacera. Continuer ?")
        .arg(Texte::Couper(note, LongueurMontree));
}

void Joindre::Poser(const Edition &edition, const QString &chemin)
{
    if (!QFileInfo(chemin).isFile() || Images::Decoder(chemin, TailleDEssai).isNull())
        throw Error(
            QCoreApplication::translate("PhotosFiche", "Ce fichier n'est pas une image lisible."), chemin);
    if (const QString absente = Ecrire::RaisonSiAbsente(edition); !absente.isEmpty())
        throw Error(absente, {});
    ecrire(edition, Images::Copier(chemin));
}

void Joindre::PoserImage(const Edition &edition, const QImage &image)
{
    constexpr int BonneQualite = 92;
    const QString entree = General::LireTexte(edition.entree.tri, edition.entree.id);
    const QTemporaryDir passage;
    const QString chemin = passage.filePath(
        Images::NomDeFichier(entree.isEmpty() ? QLatin1String(Ecrire::ChampDe(edition)->nom) : entree)
        + QStringLiteral(".jpg"));
    if (!passage.isValid() || !image.save(chemin, "JPG", BonneQualite))
        throw Error(
            QCoreApplication::translate("PhotosFiche", "L'image ne peut pas être enregistrée."), chemin);
    Poser(edition, chemin);
}

void Joindre::Oter(const Edition &edition)
{
    ecrire(edition, QStringLiteral(" "));
}
