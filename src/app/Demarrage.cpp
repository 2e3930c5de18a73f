#include "app/Demarrage.h"

#include "acts/Restes.h"
#include "archives/Secours.h"
#include "core/Annonces.h"
#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Messages.h"
#include "db/files/Livraison.h"
#include "db/files/MiseANiveau.h"
#include "model/General.h"

#include <QCoreApplication>
#include <QDir>
#include <QScopedValueRollback>
#include <functional>

namespace {

/// Each content is taken in once, so that what was set since stays.
void importerIni()
{
    const QDir dossier(Dossier::courant().racine());
    for (const QString &nom : dossier.entryList({QStringLiteral("*.ini")}, QDir::Files, QDir::Name)) {
        // The desktop of another system keeps its own settings of a folder there.
        if (nom.compare(QLatin1String("desktop.ini"), Qt::CaseInsensitive) != 0)
            Reglages::courant().importerIni(dossier.filePath(nom));
    }
}

/// Nothing of a collection that does not open now, or where nothing could be done about it.
std::optional<bool> resteQuelqueChose()
{
    try {
        const QScopedValueRollback demande(Annonces::courant().reessayer, {});
        return General::EstEnLectureSeule() ? std::nullopt : std::optional(Restes::YEnA());
    } catch (const Error &) {
        return std::nullopt;
    }
}

}

bool Demarrage::PrendreLeDossier(Dossier &dossier)
{
    try {
        Traduction::courant().chargerCourante();
    } catch (const Error &) {
        // Told of once the window is there.
    }
    if (!dossier.verrouiller()) {
        Messages::Arreter(nullptr,
            titre() + u' ' + texte(Txt::EstEnCoursDUtilisation) + u'\n'
                + texte(Txt::VeuillezFermerLaVersion));
        return false;
    }
    try {
        Livraison::Preparer();
    } catch (const Error &e) {
        Messages::Arreter(nullptr, texte(Txt::UneErreurEstSurvenue) + u'\n' + e.message());
    }
    return true;
}

void Demarrage::MettreEnEtat()
{
    const auto essayer = [](const std::function<void()> &etape) {
        try {
            etape();
        } catch (const Error &e) {
            Messages::Signaler(e);
        }
    };
    essayer([] { Secours::Examiner(nullptr, Dossier::courant().finBrutale()); });
    essayer(MiseANiveau::Executer);
    essayer(importerIni);
}

void Demarrage::ProposerDOterLesRestes(QWidget *parent)
{
    const QString examinee = QCoreApplication::applicationVersion() + u' ' + Dossier::courant().collection();
    if (Reglages::courant().texte(Cle::RestesVus) == examinee)
        return;
    const auto reste = resteQuelqueChose();
    if (!reste)
        return;
    const QString question = QCoreApplication::translate("Demarrage",
        "La base contient des restes que rien ne montre : saisies interrompues, liens en double, lignes"
        " d'albums supprimés. Les ôter ? Ctrl+Z les remet.");
    if (*reste && Messages::Demander(parent, question))
        Restes::Oter();
    Reglages::courant().ecrire(Cle::RestesVus, examinee);
}
