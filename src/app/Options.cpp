#include "app/Options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

std::optional<Options> Options::Lire(int argc, char **argv, int &code)
{
    // A core application of its own, for the time of reading: the words may ask for something that needs no
    // display, on a machine that has none.
    const QCoreApplication application(argc, argv);
    QCommandLineParser lecteur;
    lecteur.setApplicationDescription(QStringLiteral("Bulleo V1.2 : le gestionnaire de votre BDThèque"));
    const QCommandLineOption aide(
        {QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Montre cette aide."));
    const QCommandLineOption version(
        {QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Montre la version."));
    const QCommandLineOption dossier(
        QStringLiteral("dossier"), QStringLiteral("Dossier de l'application."), QStringLiteral("DIR"));
    const QCommandLineOption capture(QStringLiteral("capture"),
        QStringLiteral("Enregistre une image de la fenêtre et se termine."), QStringLiteral("FILE.png"));
    const QCommandLineOption forme(QStringLiteral("forme"),
        QStringLiteral("Fenêtre à montrer pour la capture."), QStringLiteral("NAME"),
        QStringLiteral("Frmmain"));
    const QCommandLineOption entree(
        QStringLiteral("entree"), QStringLiteral("Fiche à montrer, par sa clé."), QStringLiteral("\"N 12\""));
    lecteur.addOptions({aide, version, dossier, capture, forme, entree});

    QTextStream sortie(stdout);
    code = 0;
    if (!lecteur.parse(QCoreApplication::arguments()) || !lecteur.positionalArguments().isEmpty()) {
        QTextStream(stderr) << lecteur.errorText() << '\n' << lecteur.helpText();
        code = 2;
        return std::nullopt;
    }
    if (lecteur.isSet(aide)) {
        sortie << lecteur.helpText();
        return std::nullopt;
    }
    if (lecteur.isSet(version)) {
        sortie << QStringLiteral("Bulleo " VERSION "\n");
        return std::nullopt;
    }
    Options options;
    options.dossier = lecteur.value(dossier);
    options.capture = lecteur.value(capture);
    options.forme = lecteur.value(forme);
    if (lecteur.isSet(entree)) {
        bool sur = false;
        options.entree = lecteur.value(entree).remove(QStringLiteral("N ")).trimmed().toInt(&sur);
        if (!sur) {
            QTextStream(stderr) << QStringLiteral("--entree %1 ?\n").arg(lecteur.value(entree));
            code = 2;
            return std::nullopt;
        }
    }
    return options;
}
