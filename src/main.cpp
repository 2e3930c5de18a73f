#include "Application.h"
#include "Bureau.h"
#include "Options.h"
#include "core/Collection.h"
#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Messages.h"
#include "core/ui/Theme.h"

namespace {

/// Prepares the application folder and takes hold of it; false when another copy of the program has it.
bool prendreLeDossier(Dossier &dossier)
{
    try {
        dossier.preparer();
    } catch (const Error &e) {
        Messages::Arreter(nullptr, texte(Txt::UneErreurEstSurvenue) + u'\n' + e.message());
    }
    if (dossier.verrouiller())
        return true;
    Messages::Arreter(nullptr,
        titre() + u' ' + texte(Txt::EstEnCoursDUtilisation) + u'\n' + texte(Txt::VeuillezFermerLaVersion));
    return false;
}

}

int main(int argc, char *argv[])
{
    int code = 0;
    const auto options = Options::Lire(argc, argv, code);
    if (!options)
        return code;

    Application application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(VERSION));
    Dossier dossier(Dossier::Choisir(options->dossier), Dossier::Livre());
    Reglages reglages;
    Traduction traduction;
    Collection collection;
    Theme::Appliquer(application);
    if (!prendreLeDossier(dossier))
        return 1;
    QApplication::setQuitOnLastWindowClosed(false);
    Bureau bureau(*options);
    bureau.demarrer();
    return QApplication::exec();
}
