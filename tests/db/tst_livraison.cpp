#include "db/files/Livraison.h"
#include "support/Bac.h"

#include <QDir>
#include <QDirIterator>
#include <QTest>

class tst_livraison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unDossierNeufEstRempli_data();
    void unDossierNeufEstRempli();
    void unDossierNonVideNEstPasEcrase_data();
    void unDossierNonVideNEstPasEcrase();
};

namespace {

/// What would be shipped, all of it, the files read-only; and beside it the folder to prepare.
struct Lieu
{
    Lieu()
    {
        for (const char *nom :
            {"Base vierge.bd", "BDbase.bd", "langues/English.lng", "Fond Ecran/bois.jpg", "Help/index.htm"}) {
            poser("livre/" + QString(nom), nom);
            QFile::setPermissions(temporaire.filePath("livre/" + QString(nom)), QFile::ReadOwner);
        }
    }

    void poser(const QString &nom, const QByteArray &octets) const
    {
        QDir(temporaire.path()).mkpath(QFileInfo(nom).path());
        Bac::ecrire(temporaire.filePath(nom), octets);
    }
    void preparer() const
    {
        const Dossier dossier(temporaire.filePath("mien"), temporaire.filePath("livre"));
        Livraison::Preparer();
    }
    /// Each file as "name=content", each empty folder as "name/", in order.
    QStringList contenu() const
    {
        QStringList lignes;
        const QDir racine(temporaire.filePath("mien"));
        for (QDirIterator i(racine.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                 QDirIterator::Subdirectories);
             i.hasNext();) {
            const QString chemin = i.next();
            const QString nom = racine.relativeFilePath(chemin);
            if (i.fileInfo().isFile())
                lignes << nom + u'=' + QString::fromUtf8(Bac::lire(chemin));
            else if (QDir(chemin).isEmpty())
                lignes << nom + u'/';
        }
        lignes.sort();
        return lignes;
    }

    QTemporaryDir temporaire;
};

const QStringList Complements{"BDbase.bd=BDbase.bd", "Fond Ecran/bois.jpg=Fond Ecran/bois.jpg",
    "Help/index.htm=Help/index.htm", "langues/English.lng=langues/English.lng"};

}

void tst_livraison::unDossierNeufEstRempli_data()
{
    QTest::addColumn<QString>("dejaLa");
    QTest::newRow("absent") << "";
    QTest::newRow("vide") << "mien/";
    QTest::newRow("verrou seul") << "mien/.bulleo.lock";
}

void tst_livraison::unDossierNeufEstRempli()
{
    QFETCH(QString, dejaLa);
    const Lieu lieu;
    if (dejaLa.endsWith(u'/'))
        QVERIFY(QDir(lieu.temporaire.path()).mkdir(dejaLa));
    else if (!dejaLa.isEmpty())
        lieu.poser(dejaLa, "");
    lieu.preparer();
    QStringList attendu = Complements
        + QStringList{"Base vierge.bd=Base vierge.bd", "bd.mdb=Base vierge.bd", "image/", "images/"};
    if (dejaLa.endsWith("lock"))
        attendu << ".bulleo.lock=";
    attendu.sort();
    QCOMPARE(lieu.contenu(), attendu);
    QVERIFY(QFile::permissions(lieu.temporaire.filePath("mien/bd.mdb")).testFlag(QFile::WriteOwner));
}

void tst_livraison::unDossierNonVideNEstPasEcrase_data()
{
    QTest::addColumn<QStringList>("dejaLa");
    QTest::addColumn<QStringList>("ajoute");
    QTest::newRow("collection perdue") << QStringList{"images/a.jpg=moi"} << QStringList();
    QTest::newRow("collection seule") << QStringList{"bd.mdb=moi"} << Complements;
    QTest::newRow("collection en majuscules") << QStringList{"BD.MDB=moi"} << Complements;
    QTest::newRow("langues a moi") << QStringList{"bd.mdb=moi", "LANGUES/Moi.lng=moi", "help/index.htm=moi"}
                                   << Complements.mid(0, 2);
    QTest::newRow("complet") << QStringList{"bd.mdb=moi", "BDbase.bd=moi", "langues/a=moi", "Help/a=moi",
        "Fond Ecran/a=moi"} << QStringList();
}

void tst_livraison::unDossierNonVideNEstPasEcrase()
{
    QFETCH(QStringList, dejaLa);
    QFETCH(QStringList, ajoute);
    const Lieu lieu;
    for (const QString &entree : std::as_const(dejaLa))
        lieu.poser("mien/" + entree.section(u'=', 0, 0), entree.section(u'=', 1).toUtf8());
    QStringList attendu = dejaLa + ajoute;
    attendu.sort();
    for (int i = 0; i < 2; ++i) {
        lieu.preparer();
        QCOMPARE(lieu.contenu(), attendu);
    }
}

QTEST_GUILESS_MAIN(tst_livraison)
#include "tst_livraison.moc"
