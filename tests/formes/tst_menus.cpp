#include "formes/Menus.h"
#include "model/General.h"
#include "support/Autre.h"
#include "support/Colonnes.h"

#include <QComboBox>
#include <QFileInfo>
#include <QImage>
#include <QMouseEvent>
#include <QTreeView>

using namespace General;

class tst_menus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chaqueEndroitASesCommandes()
    {
        Menus m;
        Bac::agir("UPDATE LAlbums SET dedi2 = 'album-1.jpg' WHERE NAlbum = 101");
        Bac::agir("UPDATE Serie SET SiteWeb2 = ' ' WHERE NSerie = 20");
        m.trier(1);
        m.montrer("Gédéon");
        const QString toujours = "ajouter crea Payss quitter";
        const QString entree = "LL modifie copier supprime " + toujours;
        QCOMPARE(m.touche(), entree);
        QCOMPARE(m.pop()->actions().first()->text(), m.courante());
        m.trier(8);
        auto *vue = m.liste()->viewport();
        QCOMPARE(m.commandes(vue, vue->rect().bottomLeft() - QPoint(0, 2)), toujours);

        for (const auto &[tri, champ, propres] :
            {std::tuple(1, "SiteWeb(0)", "Visu modifier copier supprimer "), {1, "SiteWeb(1)", "modifier "},
                {0, "Photo1", "visu2 modifphoto Supphoto "},
                {0, "Dedi(0)", "modifimageDedi modifier copier supprimer "},
                {0, "Dedi(1)", "visu2 modifimageDedi suppimagededi "},
                {0, "PhotoD(1)", "visu2 modifimageDedi suppimagededi "}, {0, "TAlbum", "modifier copier "},
                {0, "Serie", "modifier copier supprimer "}, {0, "DPret", "modifier "}, {0, "Qualite", ""},
                {0, "Mois(0)", "modifier copier supprimer "}, {0, "NomI(0)", "modifier "}}) {
            m.trier(tri);
            m.montrer("Gédéon");
            auto *controle = m.sur(tri == 1 ? "FicheSerie" : "FicheAlbum", champ);
            const QString voulues = QString("LL ") + propres + (tri == 0 ? "crea Payss quitter" : toujours);
            QVERIFY2(m.commandes(controle) == voulues, champ);
            m.pop()->hide();
        }
        QCOMPARE(m.pop()->findChildren<QMenu *>().size(), 1); // that of the languages
        QVERIFY(m.boites.textes.isEmpty());
    }

    void supprimerDemandePuisMontreLaSuivante_data()
    {
        const Colonnes<int, QByteArray> cas;
        cas("album", 0, "Liste");
        cas("dessinateur", 2, "Liste");
        cas("album d'une série", 1, "LFilms");
    }

    void supprimerDemandePuisMontreLaSuivante()
    {
        const auto [tri, nomListe] = essai<int, QByteArray>();
        Menus m;
        m.trier(tri);
        if (tri == 1)
            m.montrer("Bécassine");
        auto *liste = m.liste(nomListe);
        QTRY_VERIFY(liste->isVisible() && liste->model()->rowCount() > 5);
        const QString nom = liste->model()->index(3, 0).data().toString();
        const QString suivante = liste->model()->index(4, 0).data().toString();
        m.cliquerLigne(liste, 3);
        QTRY_COMPARE(m.fiche(), nom);
        const QStringList avant = Bac::toutLire();
        const int nombre = liste->model()->rowCount();
        m.touche(nomListe);
        m.prendre("supprime");
        QCOMPARE(m.boites.textes.size(), 1);
        QVERIFY(m.boites.textes[0].startsWith("Voulez-vous réellement supprimer '" + nom + "' ?"));
        QCOMPARE(Bac::toutLire(), avant);
        QCOMPARE(m.courante(nomListe), nom);

        m.boites.reponses << true;
        QTest::keyClick(liste, Qt::Key_Delete);
        QTRY_COMPARE(liste->model()->rowCount(), nombre - 1);
        QCOMPARE(m.courante(nomListe), suivante);
        QCOMPARE(m.boites.textes.size(), 2);
        QTRY_COMPARE(m.fiche(), suivante);
        m.commander(Qt::Key_Z);
        QTRY_COMPARE(m.courante(nomListe), nom);
        QTRY_COMPARE(m.fiche(), nom);
        QCOMPARE(Bac::toutLire(), avant);
    }

    /// The sheet keeps an album that leaves the lower list. The list stands on nobody then, and its keys do nothing.
    void laListeNeQuittePasLaFiche()
    {
        Menus m;
        m.trier(1);
        m.montrer("Bécassine");
        auto *bas = m.liste("LFilms");
        m.cliquerLigne(bas, 3);
        const QString nom = bas->model()->index(3, 0).data().toString();
        QTRY_COMPARE(m.fiche(), nom);
        const int nombre = bas->model()->rowCount();
        QTest::mouseClick(m.sur("FicheAlbum", "Serie"), Qt::LeftButton, {}, {10, 8});
        auto *saisie = m.trouver<QLineEdit>("Saisie", "FrmModif");
        saisie->selectAll();
        m.taper(saisie, "Gédéon");
        m.cliquer("Valider", "FrmModif");
        QTRY_COMPARE(bas->model()->rowCount(), nombre - 1);
        QVERIFY(m.fiche() == nom && m.courante("LFilms").isEmpty() && m.courante() == "Bécassine");
        QTest::keyClick(bas, Qt::Key_Delete);
        QTest::keyClick(bas, Qt::Key_F2);
        QVERIFY(m.boites.textes.isEmpty() && !bas->findChild<QLineEdit *>());
        m.commander(Qt::Key_Z);
        QTRY_COMPARE(bas->model()->rowCount(), nombre);
        QTRY_COMPARE(m.courante("LFilms"), nom);
        QCOMPARE(m.fiche(), nom);
        // Another series shows, and none of its albums.
        m.montrer("Gédéon");
        QVERIFY(m.courante("LFilms").isEmpty());
    }

    /// One box, one "Annuler": the list goes back to the sheet that stayed.
    void uneBaseTenueLaisseLaListeSurLaFiche()
    {
        Menus m;
        m.trier(1);
        m.montrer("Bécassine");
        const Autre autre(m.bac.collection());
        QCOMPARE(sqlite3_exec(autre.db(), "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
        for (auto *liste : {m.liste(), m.liste("LFilms")}) {
            m.cliquerLigne(liste, 5);
            QTRY_COMPARE(m.boites.textes.size(), 1);
            QCoreApplication::processEvents();
            QCOMPARE(m.boites.textes.takeFirst().section('\n', 0, 0),
                "La base est utilisée par un autre programme.");
            QVERIFY(
                m.boites.textes.isEmpty() && m.courante() == "Bécassine" && m.courante("LFilms").isEmpty());
        }
    }

    void uneFicheQuiNEstPlusLaEstDite()
    {
        Menus m;
        for (const char *geste : {"touche", "clic"}) {
            const int num = qstrcmp(geste, "touche") == 0 ? 101 : 1;
            const QString nom
                = Bac::valeur(QStringLiteral("SELECT TAlbum FROM LAlbums WHERE NAlbum = %1").arg(num))
                      .toString();
            if (num == 101)
                m.montrer(nom);
            Autre(m.bac.collection())
                .executer(
                    QStringLiteral("DELETE FROM LAlbums WHERE NAlbum = %1; DELETE FROM Album WHERE Num = %1")
                        .arg(num));
            if (num == 101)
                QTest::keyClick(m.liste(), Qt::Key_Delete);
            else
                m.choisir(nom);
            auto *lignes = m.liste()->model();
            QTRY_VERIFY(
                lignes->match(lignes->index(0, 0), Qt::DisplayRole, nom, 1, Qt::MatchExactly).isEmpty());
            QVERIFY(m.boites.textes.isEmpty() && m.texteDe("Message").contains("n'est plus là"));
            QCOMPARE(m.texteDe("TAlbum"), m.courante());
        }
    }

    void uneLongueSerieDitCeQuElleCache()
    {
        Menus m;
        m.montrer(Bac::valeur("SELECT TAlbum FROM LAlbums JOIN Album ON Num = LAlbums.NAlbum WHERE NumSerie "
                              "= 19 AND Album.NAlbum = 25")
                      .toString());
        QVERIFY2(m.texteDe("TomeSur").startsWith("tome 25 · 24 possédé"), qPrintable(m.texteDe("TomeSur")));
        m.fenetre("Frmmain")->resize(1280, 800);
        auto *bande = m.sur("FicheAlbum", "Bande");
        constexpr int Places = 27;
        const auto montrees = [bande] { return 3 * ((bande->width() + 4) / 28); };
        QTRY_VERIFY(montrees() < Places);
        const QPointF la(12, 8);
        QMouseEvent passe(
            QEvent::MouseMove, la, bande->mapToGlobal(la), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(bande, &passe);
        QVERIFY(bande->toolTip().startsWith(QString::number(Places - montrees() + 1)));
        QTest::mouseClick(bande, Qt::LeftButton, {}, {12, 8});
        // Behind two albums without a tome.
        QTest::mouseClick(bande, Qt::LeftButton, {}, {2 * 28 + 12, 8});
        QTRY_COMPARE(m.texteDe("NumBD"), "1");
    }

    void laDerniereLaisseUneFicheVide()
    {
        Menus m;
        m.trier(2);
        Bac::agir("UPDATE Auteurs SET Dessin = 0 WHERE NAuteur <> 1");
        auto *liste = m.liste();
        QTRY_COMPARE(liste->model()->rowCount(), 1);
        m.cliquerLigne(liste, 0);
        const QString nom = m.courante();
        QTRY_COMPARE(m.fiche(), nom);
        m.boites.reponses << true;
        QTest::keyClick(liste, Qt::Key_Delete);
        QTRY_COMPARE(m.fiche(), QString());
        QVERIFY2(!m.liste("LFilms")->isVisible(), "what was linked to it is still shown");
        m.commander(Qt::Key_Z);
        QTRY_COMPARE(m.fiche(), nom);
    }

    void viderUneDateEtPoserDesImages()
    {
        Menus m;
        const auto valeur = [](const QString &champ) {
            return Bac::valeur(
                "SELECT " + champ + " FROM LAlbums JOIN Album ON Num = LAlbums.NAlbum WHERE Num = 101")
                .toString();
        };
        const auto prendre = [&m](const char *champ, const char *commande) {
            m.commandes(m.sur("FicheAlbum", champ));
            m.prendre(commande);
        };
        m.montrer("Gédéon");
        const QString date = valeur("DA");
        prendre("DA", "supprimer");
        QCOMPARE(valeur("DA"), QString());
        m.commander(Qt::Key_Z);
        QTRY_COMPARE(valeur("DA"), date);

        const QString image = m.bac.chemin("neuve.png");
        QVERIFY(QImage(4, 4, QImage::Format_RGB32).save(image));
        m.boites.fichiers << image;
        prendre("Photo1", "modifphoto");
        QCOMPARE(valeur("Photo1"), "neuve.png");
        prendre("Photo1", "Supphoto");
        QCOMPARE(valeur("Photo1").trimmed(), QString());
        QVERIFY(QFileInfo::exists(m.bac.chemin("images/neuve.png")) && m.boites.textes.isEmpty());

        const QString note = valeur("dedi1");
        m.boites.fichiers << image;
        prendre("Dedi(0)", "modifimageDedi");
        QVERIFY(m.boites.textes.value(0).contains(note) && m.boites.fichiers.size() == 1);
        QCOMPARE(valeur("dedi1"), note);
        m.boites.reponses << true;
        prendre("Dedi(0)", "modifimageDedi");
        QCOMPARE(valeur("dedi1"), "neuve.png");
        prendre("PhotoD(0)", "suppimagededi");
        QCOMPARE(valeur("dedi1"), " ");
    }

    void ajouterEtRenommerSurPlace()
    {
        Menus m;
        m.trier(1);
        m.montrer("Bécassine");
        const QStringList avant = Bac::toutLire();
        const int nombre = m.liste()->model()->rowCount();
        const auto donner = [&m](const char *commande, const QString &nom, const QString &fiche) {
            m.touche();
            m.prendre(commande);
            m.nommer(nom, Qt::Key_Return);
            QTRY_COMPARE(m.courante(), fiche);
            QTRY_COMPARE(m.fiche(), fiche);
        };
        donner("ajouter", "  ", "Bécassine");
        QCOMPARE(Bac::toutLire(), avant);
        donner("ajouter", "Élan d'été", "Élan d'été");
        QVERIFY(m.boites.textes.isEmpty());
        donner("ajouter", "gédéon", "Gédéon");
        QCOMPARE(m.boites.textes, QStringList{"La donnée existe déjà !"});
        donner("modifie", "  Zoé & Cie ", "Zoé & Cie");
        QCOMPARE(m.liste()->currentIndex().data(Qt::UserRole), "N 20");
        QCOMPARE(Bac::valeur("SELECT Nom FROM Serie WHERE NSerie = 20"), "Zoé & Cie");
        QCOMPARE(m.liste()->model()->rowCount(), nombre + 1);
    }

    void laRechercheMeneALaFiche()
    {
        const Menus m;
        m.cliquer("Menu(2)");
        QTRY_VERIFY(m.visible("Recherche"));
        auto *resultat = m.trouver<QTreeView>("Liste", "Recherche");
        auto *genres = m.trouver<QComboBox>("ListeTri", "Recherche");
        QCOMPARE(genres->currentIndex(), 0);
        for (const int tri : {3, 2}) {
            genres->setCurrentIndex(tri);
            auto *saisie = m.trouver<QLineEdit>("Saisie", "Recherche");
            saisie->clear();
            m.ecrire("Saisie", "DORÉ", "Recherche");
            QTest::keyClick(saisie, Qt::Key_Return);
            QCOMPARE(m.lignes(resultat), "3");
            m.cliquerLigne(resultat, 0);
            QTRY_COMPARE(m.fiche(), "Doré, Gustave");
            QCOMPARE(m.courante(), m.fiche());
            QCOMPARE(m.texteDe("TitreListe"), texte(ListeDe(TriDe(tri)).titre));
            QCOMPARE(m.bac.reglages.entier(Cle::Tris), tri);
        }
        auto *filtre = m.trouver<QLineEdit>("Filtre");
        m.taper(filtre, "zzz");
        QTest::keyClick(filtre, Qt::Key_Escape);
        QCOMPARE(m.courante(), "Doré, Gustave");
        // A line that narrows the list does not hide what was found.
        m.taper(filtre, "zzz");
        m.cliquerLigne(resultat, 0);
        QTRY_COMPARE(m.courante(), "Doré, Gustave");
    }
};

JOUER(tst_menus)
#include "tst_menus.moc"
