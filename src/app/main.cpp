#include "app/Application.h"
#include "app/Bureau.h"
#include "app/Options.h"
#include "core/Annonces.h"
#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Habillage.h"
#include "core/ui/Messages.h"
#include "db/files/Livraison.h"

#include <QTextStream>

namespace {

/// Takes hold of the application folder and prepares it; false when another copy of the program has it.
bool prendreLeDossier(Dossier &dossier)
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

/// Runs the program for a picture: nobody is there to answer, so what boxes say goes to the error output and
/// makes the picture worthless.
int capturer(const Options &options, Dossier &dossier)
{
    const Messages::Doublure personne;
    int code = 1;
    if (prendreLeDossier(dossier)) {
        Bureau bureau(options);
        bureau.demarrer();
        code = QApplication::exec();
    }
    for (const QString &dit : personne.textes)
        QTextStream(stderr) << dit << '\n';
    return personne.textes.isEmpty() ? code : 1;
}

}

int main(int argc, char *argv[])
{
    int code = 0;
    const auto options = Options::Lire(argc, argv, code);
    if (!options)
        return code;

    Application application(argc, argv);
    Dossier dossier(Dossier::Choisir(options->dossier), Dossier::Livre());
    Reglages reglages;
    Traduction traduction;
    Annonces annonces;
    Habillage::Appliquer(application);
    QApplication::setQuitOnLastWindowClosed(false);
    if (!options->capture.isEmpty())
        return capturer(*options, dossier);
    if (!prendreLeDossier(dossier))
        return 1;
    Bureau bureau(*options);
    bureau.demarrer();
    return QApplication::exec();
}
