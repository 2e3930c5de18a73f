// The catalogue on the loopback, for trying the import by hand: bulleo-catalogue-essai [PORT].

#include "catalogue/ServeurCatalogue.h"

#include <QGuiApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const ServeurCatalogue serveur(arguments.value(1, "8099").toUShort());
    if (!serveur.isListening()) {
        QTextStream(stderr) << serveur.errorString() << '\n';
        return 1;
    }
    QTextStream(stdout) << serveur.adresse() << '\n';
    return QGuiApplication::exec();
}
