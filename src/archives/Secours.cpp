#include "archives/Secours.h"

#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Traduction.h"
#include "core/ui/Messages.h"
#include "db/Entete.h"
#include "db/files/Remplacement.h"
#include "db/files/Sauvegardes.h"
#include "db/files/Verification.h"

#include <QCoreApplication>

namespace {

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Secours)
};

/// What is wrong with the collection; without words when nothing is, or when that is for others to tell. One that
/// does not open is told of by whoever opens it next, too.
struct Mal
{
    QString mots;
    bool ouvrable = false;
};
Mal examiner(bool finBrutale)
{
    const QString chemin = Dossier::courant().collection();
    try {
        if (finBrutale)
            return {Verification::Verifier(), true};
        Entete::Verifier(chemin, Entete::Nature::Collection);
    } catch (const Error &e) {
        // A crash or a full disk may leave it empty, without its head, or not at all.
        if (e.sorte() == Error::Sorte::Abimee || e.sorte() == Error::Sorte::Etrangere
            || e.sorte() == Error::Sorte::Introuvable)
            return {e.message()};
    }
    return {};
}

}

void Secours::Examiner(QWidget *parent, bool finBrutale)
{
    const Mal mal = examiner(finBrutale);
    if (mal.mots.isEmpty())
        return;
    const QString constat = Tr::tr("Votre base est abîmée, ou n'est plus là.") + u'\n' + mal.mots;
    const QString sauvegarde = Sauvegardes::DerniereSaine();
    if (sauvegarde.isEmpty() && !mal.ouvrable)
        return;
    if (sauvegarde.isEmpty())
        return Messages::Arreter(
            parent, constat + u'\n' + Tr::tr("Il n'y a aucune sauvegarde qui soit saine."));
    const QString date
        = Traduction::courant().locale().toString(Sauvegardes::DateDe(sauvegarde), QLocale::ShortFormat);
    const QString question
        = Tr::tr("Voulez-vous reprendre la sauvegarde du %1 ? Le fichier abîmé est gardé à côté.").arg(date);
    if (!Messages::Demander(parent, constat + QStringLiteral("\n\n") + question))
        return;
    const QString refus = Remplacement::Restaurer(sauvegarde);
    if (!refus.isEmpty())
        throw Error(refus, sauvegarde);
    Messages::Informer(parent, texte(Txt::RestaurationEffectuee));
}
