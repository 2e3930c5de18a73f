#include "archives/Secours.h"

#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Traduction.h"
#include "core/ui/Messages.h"
#include "db/Entete.h"
#include "db/Remplacement.h"
#include "db/Sauvegardes.h"
#include "db/Verification.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

QString dire(const char *texte)
{
    return QCoreApplication::translate("Secours", texte);
}

/// What is wrong with the collection; empty when nothing is, or when it is for others to tell.
QString mal(bool finBrutale)
{
    const QString chemin = Dossier::courant().chemin(QStringLiteral("bd.mdb"));
    try {
        if (finBrutale)
            return Verification::Verifier();
        Entete::Verifier(chemin, Entete::Nature::Collection);
    } catch (const Error &e) {
        if (e.sorte() == Error::Sorte::Abimee)
            return e.message();
    }
    return {};
}

}

void Secours::Examiner(QWidget *parent, bool finBrutale)
{
    const QString mots = mal(finBrutale);
    if (mots.isEmpty())
        return;
    const QString constat = dire(QT_TRANSLATE_NOOP("Secours", "Votre base est abîmée.")) + u'\n' + mots;
    const QString sauvegarde = Sauvegardes::DerniereSaine();
    if (sauvegarde.isEmpty())
        return Messages::Arreter(parent,
            constat + u'\n'
                + dire(QT_TRANSLATE_NOOP("Secours", "Il n'y a aucune sauvegarde qui soit saine.")));
    const QString date
        = Traduction::courant().locale().toString(Sauvegardes::DateDe(sauvegarde), QLocale::ShortFormat);
    const QString question
        = dire(QT_TRANSLATE_NOOP("Secours",
                   "Voulez-vous reprendre la sauvegarde du %1 ? Le fichier abîmé est gardé à côté."))
              .arg(date);
    if (!Messages::Demander(parent, constat + QStringLiteral("\n\n") + question))
        return;
    const QString refus = Remplacement::Restaurer(sauvegarde);
    if (!refus.isEmpty())
        throw Error(refus, sauvegarde);
    Messages::Informer(parent, texte(Txt::RestaurationEffectuee));
}
