#include "browse/AccordPourLaNote.h"

#include "browse/Edition.h"
#include "core/Images.h"
#include "core/Texte.h"
#include "core/ui/Messages.h"

#include <QCoreApplication>

bool AccordPourLaNote(QWidget *parent, const Edition &edition)
{
    constexpr qsizetype LongueurMontree = 60;
    const auto valeurs = Fiche::Lire(General::GenreDe(edition.entree.tri).feuille, edition.entree.id);
    const bool dedicace = Ecriture::NomDe(edition) == QLatin1String("Dedi");
    if (!dedicace || !valeurs)
        return true;
    const QString note = valeurs->at(edition.champ).affichee;
    if (Texte::EstVide(note) || Images::EstUneImage(note))
        return true;
    return Messages::Demander(parent,
        QCoreApplication::translate(
            "AccordPourLaNote", "Cette dédicace est une note : « %1 ». L'image la remplacera. Continuer ?")
            .arg(note.left(LongueurMontree)));
}
