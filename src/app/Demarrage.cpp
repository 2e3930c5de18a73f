#include "app/Demarrage.h"

#include "archives/Secours.h"
#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Messages.h"
#include "db/files/Livraison.h"
#include "db/files/MiseANiveau.h"

#include <QDir>
#include <functional>

namespace {

void importerIni()
{
    const QDir dossier(Dossier::courant().racine());
    const QStringList fichiers = dossier.entryList({QStringLiteral("*.ini")}, QDir::Files, QDir::Name);
    if (!fichiers.isEmpty())
        Reglages::courant().importerIni(dossier.filePath(fichiers.first()));
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
