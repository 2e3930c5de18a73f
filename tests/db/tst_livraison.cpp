#include "db/files/FichierNeuf.h"
#include "db/files/Livraison.h"
#include "support/Autre.h"
#include "support/Bac.h"
#include "support/Colonnes.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QTest>

namespace {

const QString Marque = QStringLiteral(".bulleo.livre");

QByteArray empreinteDe(const QByteArray &octets)
{
    return QCryptographicHash::hash(octets, QCryptographicHash::Sha256).toHex();
}

/// What would be shipped, all of it, the files read-only; and beside it the folder to prepare.
struct Lieu
{
    Lieu() { livrer(1); }

    /// Ships a version of all files: each holds its name and that number. The list knows them, and those before.
    void livrer(int version)
    {
        for (const char *nom :
            {"Base vierge.bd", "BDbase.bd", "langues/English.lng", "Fond Ecran/bois.jpg", "Help/index.htm"})
            livrer(nom, nom + QByteArray::number(version));
    }
    void livrer(const QString &nom, const QByteArray &octets)
    {
        const QString chemin = livre(nom);
        QFile::remove(chemin);
        poser("livre/" + nom, octets);
        QFile::setPermissions(chemin, QFile::ReadOwner);
        noter(empreinteDe(octets), nom);
    }
    void noter(const QByteArray &empreinte, const QString &nom)
    {
        liste += empreinte + "  " + nom.toUtf8() + '\n';
        poser("livre/empreintes.txt", liste);
    }

    void poser(const QString &nom, const QByteArray &octets) const
    {
        QDir(temporaire.path()).mkpath(QFileInfo(nom).path());
        Bac::ecrire(temporaire.filePath(nom), octets);
    }
    QString livre(const QString &nom) const { return temporaire.filePath("livre/" + nom); }
    QString mien(const QString &nom = {}) const { return temporaire.filePath("mien/" + nom); }
    QByteArray lire(const QString &nom) const { return Bac::lire(mien(nom)); }
    void preparer() const
    {
        const Dossier dossier(mien(), temporaire.filePath("livre"));
        Livraison::Preparer();
    }
    /// Each file as "name=content", the mark by its name only, each empty folder as "name/", in order.
    QStringList contenu() const
    {
        QStringList lignes;
        const QDir racine(mien());
        for (QDirIterator i(racine.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                 QDirIterator::Subdirectories);
             i.hasNext();) {
            const QString chemin = i.next();
            const QString nom = racine.relativeFilePath(chemin);
            if (nom == Marque)
                lignes << nom;
            else if (i.fileInfo().isFile())
                lignes << nom + u'=' + QString::fromUtf8(Bac::lire(chemin));
            else if (QDir(chemin).isEmpty())
                lignes << nom + u'/';
        }
        lignes.sort();
        return lignes;
    }

    QTemporaryDir temporaire;
    QByteArray liste;
};

const QStringList Complements{"BDbase.bd=BDbase.bd1", "Fond Ecran/bois.jpg=Fond Ecran/bois.jpg1",
    "Help/index.htm=Help/index.htm1", "langues/English.lng=langues/English.lng1"};

void faireCatalogue(const QString &chemin, const QString &rangees)
{
    QFile::remove(chemin);
    FichierNeuf::CreerCatalogue(chemin);
    Autre(chemin).executer("INSERT INTO BD(Numero, Titre, Serie) VALUES " + rangees);
}

}

class tst_livraison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unDossierNeufEstRempli()
    {
        const Lieu lieu;
        lieu.poser("mien/.bulleo.lock", "");
        lieu.preparer();
        QStringList attendu = Complements
            + QStringList{".bulleo.lock=", "Base vierge.bd=Base vierge.bd1", "bd.mdb=Base vierge.bd1",
                "image/", "images/", Marque};
        attendu.sort();
        QCOMPARE(lieu.contenu(), attendu);
        QVERIFY(QFile::permissions(lieu.mien("bd.mdb")).testFlag(QFile::WriteOwner));
    }

    void unDossierNonVideNEstPasEcrase_data()
    {
        const Colonnes<QStringList, QStringList> cas;
        cas("collection perdue", {"images/a.jpg=moi"}, {});
        cas("collection en majuscules", {"BD.MDB=moi"}, Complements + QStringList(Marque));
        cas("langues a moi", {"bd.mdb=moi", "LANGUES/Moi.lng=moi", "help/INDEX.htm=moi"},
            {Complements[0], Complements[1], "LANGUES/English.lng=langues/English.lng1", Marque});
    }

    void unDossierNonVideNEstPasEcrase()
    {
        const auto [dejaLa, ajoute] = essai<QStringList, QStringList>();
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

    void seulCeQuiEstResteTelQuelEstRemplace()
    {
        Lieu lieu;
        lieu.livrer("Help/en/index.htm", "anglais 1");
        lieu.livrer("Help/en/images/a.png", "image 1");
        lieu.preparer();
        lieu.poser("mien/langues/English.lng", "moi");
        // Shipped once, but under another name: the user put it there.
        lieu.poser("mien/Help/en/index.htm", "Help/index.htm1");
        lieu.poser("mien/Help/en/mienne.htm", "moi");
        QVERIFY(QDir(lieu.mien("Help")).rename("index.htm", "INDEX.HTM"));
        QVERIFY(QDir(lieu.mien()).rename("Help", "help"));
        QVERIFY(QFile::remove(lieu.mien("Fond Ecran/bois.jpg")));
        // Two versions on: it is no matter which one he still has.
        lieu.livrer(2);
        lieu.livrer(3);
        lieu.livrer("Help/en/index.htm", "anglais 3");
        lieu.livrer("Help/en/images/a.png", "image 3");
        lieu.livrer("Help/en/neuve.htm", "neuve");
        lieu.preparer();
        QCOMPARE(lieu.contenu(),
            QStringList({Marque, "BDbase.bd=BDbase.bd1", "Base vierge.bd=Base vierge.bd1",
                "Fond Ecran/bois.jpg=Fond Ecran/bois.jpg3", "bd.mdb=Base vierge.bd1",
                "help/INDEX.HTM=Help/index.htm3", "help/en/images/a.png=image 3",
                "help/en/index.htm=Help/index.htm1", "help/en/mienne.htm=moi", "help/en/neuve.htm=neuve",
                "image/", "images/", "langues/English.lng=moi"}));
    }

    void laLangueEnVigueurVieillitAvecSonFichier()
    {
        for (const QByteArray courante : {"langues/English.lng1", "nl 1", "moi"}) {
            Lieu lieu;
            lieu.livrer("langues/Nederlands.lng", "nl 1");
            lieu.preparer();
            lieu.poser("mien/defaut.lng", courante);
            lieu.livrer(2);
            lieu.preparer();
            QCOMPARE(lieu.lire("defaut.lng"), courante.startsWith('l') ? "langues/English.lng2" : courante);
        }
    }

    /// What a link leads to is elsewhere, and not ours.
    void unLienEtUnDossierTiennentLaPlaceDUnFichier()
    {
        Lieu lieu;
        lieu.preparer();
        lieu.poser("ailleurs/index.htm", "Help/index.htm1");
        QVERIFY(QDir(lieu.mien("Help")).removeRecursively());
        QVERIFY(QFile::link(lieu.temporaire.filePath("ailleurs"), lieu.mien("Help")));
        QVERIFY(QFile::remove(lieu.mien("langues/English.lng")));
        QVERIFY(QDir(lieu.mien()).mkpath("langues/English.lng"));
        const QStringList avant = lieu.contenu();
        lieu.livrer(2);
        lieu.livrer("Help/neuve.htm", "neuve");
        lieu.preparer();
        QCOMPARE(lieu.contenu().replaceInStrings("bois.jpg2", "bois.jpg1"), avant);
        QCOMPARE(Bac::lire(lieu.temporaire.filePath("ailleurs/index.htm")), "Help/index.htm1");
        QCOMPARE(QDir(lieu.temporaire.filePath("ailleurs")).entryList(QDir::Files), QStringList("index.htm"));
    }

    void unPassageSuffitParLivraison()
    {
        Lieu lieu;
        lieu.preparer();
        lieu.livrer(2);
        lieu.preparer();
        // What he takes away or puts back after that is his choice, until the next version; a whole folder comes again.
        lieu.poser("mien/Help/index.htm", "Help/index.htm1");
        QVERIFY(QFile::remove(lieu.mien("langues/English.lng")));
        QVERIFY(QDir(lieu.mien("Fond Ecran")).removeRecursively());
        lieu.preparer();
        QCOMPARE(lieu.lire("Help/index.htm"), "Help/index.htm1");
        QVERIFY(!QFile::exists(lieu.mien("langues/English.lng")));
        QCOMPARE(lieu.lire("Fond Ecran/bois.jpg"), "Fond Ecran/bois.jpg2");
        lieu.livrer("Help/index.htm", "3");
        lieu.preparer();
        QCOMPARE(lieu.lire("Help/index.htm"), "3");
        QCOMPARE(lieu.lire("langues/English.lng"), "langues/English.lng2");
    }

    void uneLivraisonAbimeeNeRemplaceRien()
    {
        Lieu lieu;
        lieu.preparer();
        lieu.livrer(2);
        lieu.livrer("Help/neuve.htm", "neuve");
        lieu.poser("livre/empreintes.txt", lieu.liste + "0123456789abcdef  Help/");
        // Cut short on its way: its digest is in no list.
        QFile::setPermissions(lieu.livre("langues/English.lng"), QFile::ReadOwner | QFile::WriteOwner);
        lieu.poser("livre/langues/English.lng", "langues/Eng");
        lieu.preparer();
        QCOMPARE(lieu.lire("Help/index.htm"), "Help/index.htm1");
        QCOMPARE(lieu.lire("langues/English.lng"), "langues/English.lng1");
        QCOMPARE(lieu.lire("Help/neuve.htm"), "neuve");
    }

    void unCatalogueSeJugeASonContenu_data()
    {
        const Colonnes<QString, bool> cas;
        cas("meme contenu, autres octets", "PRAGMA user_version = 7; VACUUM", true);
        cas("une valeur changee", "UPDATE BD SET Titre = 'mien' WHERE Numero = 2", false);
        cas("une colonne de plus", "ALTER TABLE BD ADD COLUMN Note TEXT", false);
        cas("abime", "DROP TABLE BD", false);
    }

    void unCatalogueSeJugeASonContenu()
    {
        const auto [acte, remplace] = essai<QString, bool>();
        Lieu lieu;
        const QString livre = lieu.livre("BDbase.bd");
        const auto livrer = [&](const QString &rangees) {
            faireCatalogue(livre, rangees);
            lieu.noter(Livraison::EmpreinteDuCatalogue(livre), "BDbase.bd");
        };
        livrer("(1, 'a', 's'), (2, 'b', 's')");
        lieu.preparer();
        Autre(lieu.mien("BDbase.bd")).executer(acte);
        const QByteArray avant = lieu.lire("BDbase.bd");
        livrer("(1, 'a', 's'), (2, 'b', 's'), (3, 'c', 's')");
        lieu.preparer();
        QVERIFY(avant != Bac::lire(livre));
        QCOMPARE(lieu.lire("BDbase.bd"), remplace ? Bac::lire(livre) : avant);
    }

    void uneCollectionViergeEstRenouveleeTantQuElleLEst()
    {
        for (const bool remplie : {false, true}) {
            Lieu lieu;
            const QString livre = lieu.livre("Base vierge.bd");
            QFile::remove(livre);
            FichierNeuf::CreerVierge(livre);
            lieu.preparer();
            Autre(lieu.mien("Base vierge.bd"))
                .executer(remplie ? "PRAGMA user_version = 1; INSERT INTO Genre VALUES (1, 'moi')"
                                  : "PRAGMA user_version = 1");
            const QByteArray avant = lieu.lire("Base vierge.bd");
            lieu.livrer("Help/index.htm", "2");
            lieu.preparer();
            QCOMPARE(lieu.lire("Base vierge.bd"), remplie ? avant : Bac::lire(livre));
        }
    }

    /// A version that is not in the list when it is shipped can never be told from a user's own work again.
    void toutCeQuiEstLivreEstNote()
    {
        const QByteArrayList liste = Bac::lire(Bac::livre() + "/empreintes.txt").split('\n');
        const auto verifier = [&](const QByteArray &empreinte, const QString &nom) {
            QVERIFY2(liste.contains(empreinte + "  " + nom.toUtf8()),
                qPrintable(nom + " is not in data/empreintes.txt as it is now: run scripts/empreintes.sh"));
        };
        verifier(Livraison::EmpreinteDuCatalogue(Bac::livre() + "/BDbase.bd"), "BDbase.bd");
        const QDir livre(Bac::livre());
        int fichiers = 0;
        for (const char *dossier : {"langues", "Help", "Fond Ecran"}) {
            for (QDirIterator i(livre.filePath(dossier), QDir::Files, QDirIterator::Subdirectories);
                 i.hasNext(); ++fichiers) {
                const QString chemin = i.next();
                verifier(empreinteDe(Bac::lire(chemin)), livre.relativeFilePath(chemin));
            }
        }
        QVERIFY(fichiers > 50);
    }
};

QTEST_GUILESS_MAIN(tst_livraison)
#include "tst_livraison.moc"
