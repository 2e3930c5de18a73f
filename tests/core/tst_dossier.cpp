#include "core/Dossier.h"
#include "support/Bac.h"
#include "support/Colonnes.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTest>

class tst_dossier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unCheminIgnoreLaCasse_data()
    {
        colonnes<QString, QString>();
        QTest::newRow("casse de l'accent") << "IMAGES\\éTÉ.jpg"
                                           << "images/Été.JPG";
        QTest::newRow("le nom exact d'abord") << "images\\double.png"
                                              << "images/double.png";
        QTest::newRow("absent") << "\\Images\\Neuf.JPG"
                                << "images/Neuf.JPG";
        QTest::newRow("au-dessus") << "images\\..\\BD.mdb"
                                   << "images/../bd.mdb";
    }

    void unCheminIgnoreLaCasse()
    {
        const auto [nom, attendu] = essai<QString, QString>();
        const QTemporaryDir lieu;
        QVERIFY(QDir(lieu.path()).mkdir("images"));
        for (const char *fichier : {"bd.mdb", "images/Été.JPG", "images/Double.png", "images/double.png"})
            Bac::ecrire(lieu.filePath(fichier), "");
        QCOMPARE(Dossier(lieu.path(), {}).chemin(nom), lieu.path() + u'/' + attendu);
    }

    void leVerrouAUnDetenteurEtCeluiDUnMortEstRepris()
    {
        const QTemporaryDir lieu;
        QProcess detenteur;
        detenteur.start(QCoreApplication::applicationFilePath(), {"verrouiller", lieu.path()});
        QVERIFY(detenteur.waitForReadyRead());
        QCOMPARE(detenteur.readAll(), "pris");
        Dossier dossier(lieu.path(), {});
        QVERIFY(!dossier.verrouiller() && !dossier.finBrutale());
        detenteur.kill();
        QVERIFY(detenteur.waitForFinished());
        QVERIFY(QFile::exists(dossier.chemin(".bulleo.lock")));
        QVERIFY(dossier.verrouiller() && dossier.finBrutale());
        QVERIFY(!Dossier(lieu.filePath(""), {}).verrouiller());
    }
};

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (application.arguments().value(1) == "verrouiller") {
        Dossier dossier(application.arguments().value(2), {});
        QTextStream(stdout) << (dossier.verrouiller() ? "pris" : "tenu") << Qt::flush;
        return QTextStream(stdin).readAll().isEmpty() ? 0 : 1;
    }
    tst_dossier test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dossier.moc"
