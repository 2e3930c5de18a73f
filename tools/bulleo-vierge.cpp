// Makes the blank collection: bulleo-vierge FILE. An older one is replaced.

#include "core/Error.h"
#include "db/files/FichierNeuf.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QTextStream sortie(stderr);
    if (argc != 2) {
        sortie << "bulleo-vierge FILE\n";
        return 2;
    }
    const QString chemin = QString::fromLocal8Bit(argv[1]);
    try {
        QFile::remove(chemin);
        FichierNeuf::CreerVierge(chemin);
    } catch (const Error &e) {
        sortie << e.message() << '\n';
        return 1;
    }
    return 0;
}
