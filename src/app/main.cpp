#include "app/Application.h"
#include "app/Bureau.h"
#include "app/Capture.h"
#include "app/Demarrage.h"
#include "app/Options.h"
#include "core/Annonces.h"
#include "core/Dossier.h"
#include "core/Reglages.h"
#include "core/Traduction.h"
#include "core/ui/Habillage.h"
#include "core/ui/Messages.h"

#include <QTextStream>

namespace {

/// Runs the program for a picture: nobody is there to answer, so what boxes say goes to the error output and
/// makes the picture worthless.
int capturer(const Options &options, Dossier &dossier)
{
    const Messages::Doublure personne;
    int code = 1;
    if (Demarrage::PrendreLeDossier(dossier)) {
        Bureau bureau(options);
        bureau.demarrer();
        const Capture capture(bureau, options);
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
    if (!Demarrage::PrendreLeDossier(dossier))
        return 1;
    Bureau bureau(*options);
    bureau.demarrer();
    return QApplication::exec();
}
