// Makes a generated collection: bulleo-generateur FOLDER ALBUMS [SEED].

#include "Generateur.h"
#include "core/Error.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList mots = QCoreApplication::arguments();
    QTextStream sortie(stderr);
    if (mots.size() < 3) {
        sortie << "bulleo-generateur FOLDER ALBUMS [SEED]\n";
        return 2;
    }
    try {
        generer(mots[1], mots[2].toInt(), mots.value(3, QStringLiteral("1")).toUInt());
    } catch (const Error &e) {
        sortie << e.message() << '\n';
        return 1;
    }
    return 0;
}
