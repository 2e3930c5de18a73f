#include "core/Dossier.h"
#include "support/Bac.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTest>

class tst_dossier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unCheminIgnoreLaCasse()
    {
        const QTemporaryDir lieu;
        QVERIFY(QDir(lieu.path()).mkdir("images"));
        for (const char *fichier : {"bd.mdb", "images/Été.JPG", "images/Double.png", "images/double.png"})
            Bac::ecrire(lieu.filePath(fichier), "");
        for (const auto &[nom, attendu] :
            {std::pair("IMAGES\\éTÉ.jpg", "images/Été.JPG"), {"images\\double.png", "images/double.png"},
                {"\\Images\\Neuf.JPG", "images/Neuf.JPG"}, {"images\\..\\BD.mdb", "images/../bd.mdb"}})
            QCOMPARE(Dossier(lieu.path(), {}).chemin(nom), lieu.filePath(attendu));
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
