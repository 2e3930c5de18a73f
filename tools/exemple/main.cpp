// Makes the sample collection, a complete application folder: bulleo-exemple SOURCES SHIPPED FOLDER. What is
// shipped comes from SHIPPED, the entries from the CSV files of SOURCES; an older FOLDER is replaced.

#include "core/Annonces.h"
#include "core/Dossier.h"
#include "core/Error.h"
#include "db/files/Livraison.h"
#include "exemple/Couvertures.h"
#include "exemple/Remplir.h"

#include <QDir>
#include <QGuiApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    // Text is drawn on the covers, but no display is needed for it.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList mots = QCoreApplication::arguments();
    QTextStream sortie(stderr);
    if (mots.size() != 4) {
        sortie << "bulleo-exemple SOURCES SHIPPED FOLDER\n";
        return 2;
    }
    try {
        QDir(mots[3]).removeRecursively();
        const Dossier dossier(mots[3], mots[2]);
        const Annonces annonces;
        Livraison::Preparer();
        remplirExemple(mots[1]);
        dessinerCouvertures();
    } catch (const Error &e) {
        sortie << e.message() << '\n';
        return 1;
    }
    return 0;
}
