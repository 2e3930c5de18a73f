#include "core/Dates.h"
#include "model/General.h"
#include "support/Autre.h"
#include "support/Colonnes.h"
#include "support/Seance.h"

#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMouseEvent>
#include <QStackedWidget>
#include <QTimer>
#include <QTreeView>

using namespace General;

/// The program with its context menu at hand.
struct Menus : Seance
{
    Menus() { demarrer(); }

    static QMenu *pop() { return qobject_cast<QMenu *>(fenetre("Pop")); }
    static QListView *liste(const char *nom = "Liste") { return trouver<QListView>(nom); }
    static QString courante(const char *nom = "Liste")
    {
        return liste(nom)->currentIndex().data().toString();
    }
    static QWidget *sur(const char *fiche, const char *champ)
    {
        return trouver<QWidget>(fiche)->findChild<QWidget *>(QLatin1String(champ));
    }
    static void trier(int tri)
    {
        cliquer(qPrintable(QStringLiteral("Tris(%1)").arg(tri)));
        QCoreApplication::processEvents(); // the list takes the height that the pane below it leaves
    }
    /// The commands of the menu that opens there, in their order.
    static QString commandes(
        QWidget *cible, QPoint la, QContextMenuEvent::Reason raison = QContextMenuEvent::Mouse)
    {
        QContextMenuEvent demande(raison, la, cible->mapToGlobal(la));
        QApplication::sendEvent(cible, &demande);
        QStringList noms;
        for (const QAction *action : pop() && pop()->isVisible() ? pop()->actions() : QList<QAction *>()) {
            if (!action->isSeparator())
                noms << action->objectName();
        }
        return noms.join(u' ');
    }
    static QString commandes(QWidget *champ) { return commandes(champ, champ->rect().center()); }
    /// The menu key in a list.
    static QString touche(const char *nom = "Liste")
    {
        return commandes(liste(nom), {}, QContextMenuEvent::Keyboard);
    }
    /// Takes a command of the open menu, from the event loop as the program does.
    static void prendre(const char *nom)
    {
        auto *action = pop()->findChild<QAction *>(QLatin1String(nom), Qt::FindDirectChildrenOnly);
        QVERIFY2(action, nom);
        bool prise = false;
        QTimer::singleShot(0, action, [&] {
            prise = true;
            action->trigger();
        });
        pop()->hide();
        QTRY_VERIFY(prise);
        QCoreApplication::processEvents();
    }
    /// The entry whose sheet is shown, by the first line of its menu; empty when there is none.
    static QString fiche()
    {
        auto *forme = trouver<QStackedWidget>("")->currentWidget();
        if (!forme->objectName().startsWith("Fiche"))
            return {};
        commandes(forme, {1, 1});
        pop()->hide();
        return pop()->actions().first()->text().replace("&&", "&");
    }
    /// Chooses a line of the main list, and waits for its sheet.
    static void montrer(const QString &nom)
    {
        choisir(nom);
        QTRY_COMPARE(fiche(), nom);
    }
    /// Types into the line that edits a label, and ends with a key.
    static void nommer(const QString &texte, int fin)
    {
        auto *saisie = liste()->findChild<QLineEdit *>();
        QVERIFY(saisie);
        saisie->selectAll();
        taper(saisie, texte);
        QTest::keyClick(saisie, Qt::Key(fin));
        QTRY_VERIFY(!liste()->findChild<QLineEdit *>());
    }
    static void cliquerLigne(QAbstractItemView *vue, int rang)
    {
        Gestes::cliquerLigne(vue, vue->model()->index(rang, 0));
    }
    static QString lignes(const QTreeView *arbre)
    {
        QStringList cles;
        for (int i = 0; i < arbre->model()->rowCount(); ++i)
            cles << arbre->model()->index(i, 0).data(Qt::UserRole).toString().mid(2);
        return cles.join(u' ');
    }
};

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

    void lesPretsSeRendentEtSeFont()
    {
        Menus m;
        m.montrer("Gédéon");
        m.ouvrir("Menu(3)", "Outils(3)", "Pret");
        auto *gens = m.trouver<QTreeView>("LPers", "Pret");
        auto *prets = m.trouver<QTreeView>("LPret", "Pret");
        auto *del = m.trouver<QAbstractButton>("Del", "Pret");
        // Asks for it, first in vain.
        const auto supprimer = [&](Txt question, QTreeView *liste, const QString &apres) {
            const QString avant = m.lignes(liste);
            m.boites.reponses << false << true;
            del->click();
            QCOMPARE(m.lignes(liste), avant);
            del->click();
            QTRY_COMPARE(m.lignes(liste), apres);
            const QString posee = m.boites.textes.takeLast();
            QVERIFY2(posee.startsWith(texte(question)), qPrintable(posee));
            // Who still has something is not deleted unawares.
            QCOMPARE(posee != texte(question), question == Txt::RetirerCettePersonne);
        };
        QTRY_COMPARE(m.lignes(gens), "3 2 1 5 4");
        QCOMPARE(prets->model()->rowCount(), 7);
        QVERIFY(!del->isEnabled());
        m.cliquerLigne(gens, 2);
        QCOMPARE(m.lignes(prets), "85 110");
        m.cliquerLigne(prets, 0);
        supprimer(Txt::RetirerCePret, prets, "110");
        QCOMPARE(gens->currentIndex().row(), 2);
        m.cliquerLigne(gens, 1);
        supprimer(Txt::RetirerCettePersonne, gens, "3 1 5 4");
        m.cliquer("Tous", "Pret");
        QVERIFY(m.lignes(prets).split(u' ').contains("66"));

        m.cliquer("Preter", "Pret");
        QTRY_VERIFY(m.visible("FrmModif"));
        m.ecrire("Saisie", "Petitjean", "FrmModif");
        QTest::keyClick(m.trouver<QLineEdit>("Saisie", "FrmModif"), Qt::Key_Return);
        QTRY_VERIFY(!m.visible("FrmModif"));
        QCOMPARE(Bac::valeur("SELECT NPret || ' ' || DPret FROM Album WHERE Num = 101").toString(),
            "5 " + Dates::Ecrire(QDate::currentDate()));
        QTRY_VERIFY(m.lignes(prets).split(u' ').contains("101"));
        // To the person chosen; from one to another only when that is agreed to.
        const auto qui = [] { return Bac::valeur("SELECT NPret FROM Album WHERE Num = 101").toInt(); };
        m.boites.textes.clear();
        for (const int emprunteur : {5, 3}) {
            m.cliquerLigne(gens, emprunteur == 5 ? 2 : 0);
            m.boites.reponses << false << true;
            m.cliquer("Preter", "Pret");
            QCOMPARE(qui(), 5);
            m.cliquer("Preter", "Pret");
            QCOMPARE(qui(), emprunteur);
            QVERIFY(!m.visible("FrmModif"));
        }
        QCOMPARE(m.boites.textes.size(), 2);
        QVERIFY2(m.boites.textes[0].contains("Petitjean"), qPrintable(m.boites.textes[0]));
        m.trier(1);
        QVERIFY(!m.trouver<QAbstractButton>("Preter", "Pret")->isEnabled());

        // The menu of an album does the same.
        m.trier(0);
        m.montrer("Gédéon");
        const QString autres = " copier supprime crea Payss quitter";
        QCOMPARE(m.touche(), "LL modifie rendre" + autres);
        m.prendre("copier");
        QCOMPARE(QApplication::clipboard()->text(), "Gédéon");
        m.touche();
        m.prendre("rendre");
        QCOMPARE(Bac::valeur("SELECT NPret FROM Album WHERE Num = 101"), 0);
        QTRY_COMPARE(m.touche(), "LL modifie preter" + autres);
        m.prendre("preter");
        QTRY_VERIFY(m.visible("FrmModif"));
    }

    void lesEmprunteursSeTiennentAJour()
    {
        Menus m;
        m.ouvrir("Menu(3)", "Outils(3)", "Pret");
        auto *gens = m.trouver<QTreeView>("LPers", "Pret");
        QTRY_COMPARE(m.lignes(gens), "3 2 1 5 4");
        const auto saisir = [](const QString &texte, Qt::Key fin) {
            auto *editeur = qobject_cast<QLineEdit *>(QApplication::focusWidget());
            QVERIFY(editeur);
            editeur->clear();
            Gestes::taper(editeur, texte);
            QTest::keyClick(editeur, fin);
        };
        const auto lire = [](int id) {
            return Bac::valeur(QStringLiteral("SELECT Nom || '/' || Prenom || '/' || Tel FROM Pret"
                                              " WHERE NPret = %1")
                                   .arg(id))
                .toString();
        };
        // A second one of that name; what is typed goes from cell to cell.
        m.cliquer("AjouterPersonne", "Pret");
        saisir("Petitjean", Qt::Key_Tab);
        QTRY_VERIFY(lire(6).startsWith("Petitjean/"));
        saisir("Jeanne", Qt::Key_Tab);
        saisir("06  12", Qt::Key_Return);
        QTRY_COMPARE(lire(6), "Petitjean/Jeanne/06 12");
        QTRY_COMPARE(m.lignes(gens), "3 2 1 5 6 4");
        // Renamed, he stays the one chosen; a name that is emptied comes back.
        const QString avant = lire(6);
        QCOMPARE(gens->currentIndex().row(), 4);
        gens->setCurrentIndex(gens->currentIndex().siblingAtColumn(0));
        for (const auto &[nom, apres] : {std::pair(" ", avant), {"Zut", QString("Zut/Jeanne/06 12")}}) {
            QTest::keyClick(gens, Qt::Key_F2);
            saisir(nom, Qt::Key_Return);
            QTRY_VERIFY(gens->hasFocus());
            QTRY_COMPARE(gens->currentIndex().data().toString(), apres.section('/', 0, 0));
            QTRY_COMPARE(lire(6), apres);
        }
        QTRY_COMPARE(m.lignes(gens), "3 2 1 5 4 6");
        QCOMPARE(gens->currentIndex().row(), 5);
        // One that was given no name was never there.
        m.cliquer("AjouterPersonne", "Pret");
        saisir("Nul", Qt::Key_Escape);
        QTRY_COMPARE(gens->model()->rowCount(), 6);
        // Days are numbers: 9 before 10, none before all.
        auto *prets = m.trouver<QTreeView>("LPret", "Pret");
        m.cliquer("Tous", "Pret");
        prets->sortByColumn(1, Qt::AscendingOrder);
        int jours = -1;
        for (int ligne = 0; ligne < prets->model()->rowCount(); ++ligne) {
            const int ceux = prets->model()->index(ligne, 1).data().toString().section(' ', 0, 0).toInt();
            QVERIFY(ceux >= jours);
            jours = ceux;
        }
        QVERIFY(jours > 9);
    }
};

JOUER(tst_menus)
#include "tst_menus.moc"
