#include "browse/Frmmain.h"
#include "support/Autre.h"
#include "support/Seance.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>

/// A control of a sheet, what is done to it, and what must come of it in the entry number 1.
struct Cas
{
    int tri = 0;
    QString controle, geste, saisie;
    QString lu; ///< "Table.Column" of row 1, the name of a query, or a query
    QString stockee; ///< the entered text when left out
    QString montree; ///< the stored text when left out
    QString table; ///< of the entries offered
    /// The form in which the geste is made, if it is made in one, and the line in it.
    const char *forme() const { return geste == "Saisir" ? "FrmModif2" : "FrmModif"; }
    const char *ligne() const { return geste == "Saisir" ? "TSaisie" : "Saisie"; }
};

namespace {

/// Gestures: "Saisir" types in FrmModif2; "Taper", "Choisir" and "Jour" type, pick a line or a day of the month
/// in FrmModif; "Etoile" and "Chiffre" give a grade; "Cocher" clicks; "Mot" picks a word; "Ecrire" types on the
/// sheet. A table names the entries of a choice.
constexpr const char *TousLesCas = R"(
0;TAlbum;Saisir;L'été;LAlbums.TAlbum
0;TAlbum;Saisir;Titre de cinquante lettres, coupé après la dernière !!;LAlbums.TAlbum;Titre de cinquante lettres, coupé après la dernièr
0;ISBN;Saisir;2-205-"00001";Album.ISBN
0;ISBN;Saisir;;Album.ISBN
0;ISSN;Saisir;1234-567X;Album.ISSN
0;NumBD;Saisir;1234;Album.NAlbum;123
0;NumBD;Saisir;;Album.NAlbum;0;
0;NbPage;Saisir;48;Album.NbPage
0;NbPage;Saisir;;Album.NbPage
0;PrixA;Saisir;12,5;Album.PrixA;12.5;12,50 €
0;PrixA;Saisir;1 012.25 €;Album.PrixA;1012.25;1 012,25 €
0;PrixA;Saisir;;Album.PrixA
0;DepotLegale;Saisir;  mai 1901 ;Album.DepotL;mai 1901
0;Dedi(0);Saisir;À l'ami;LAlbums.dedi1
0;Dedi(1);Saisir;dessin.PNG;LAlbums.dedi2
0;LieuD;Saisir;Angoulême;LAlbums.LieuD
0;Cotes(0);Saisir;1550;Cotes;01 juillet 2024:1550;1550
0;Mois(0);Jour;20;Cotes;20 juillet 2024:1500;20 juillet 2024
0;Mois(0);Taper;été '24;Cotes;été '24:1500;été '24
0;Etat;Etoile;2;Album.EtatBD
0;Qualite;Chiffre;5;Album.QualBD
0;EtatD;Etoile;4;LAlbums.EtatD
0;Hist;Ecrire;L'œuvre;Album.Histoire
0;Hist;Ecrire;L'œuvre;LAlbums.Histoire
0;Infos;Ecrire; deux ;Album.Commentaire
0;Couleur;Mot;Infographie;Album.Couleur;3;Infographie
0;Format;Mot;Format Italienne;Album.NCouverture;2;Format Italienne
0;LEditionOri;Cocher;;Album.EDitOrig;0
0;LSerieLim;Cocher;;Album.SerieLim;-1;1
0;LCoffret;Cocher;;Album.Coffret;-1;1
0;LIntegral;Cocher;;Album.Integrale;-1;1
0;LBrochee;Cocher;;Album.Broche;-1;1
0;LHorsSerie;Cocher;;Album.HSerie;-1;1
0;DA;Jour;20;Album.DA;20 juin 2008
0;DA;Taper;à Noël;Album.DA
0;Dateparu;Jour;20;Album.Dateparu;20 janvier 1833
0;DPret;Jour;20;Album.DPret;20 mars 2026
0;DateD;Jour;20;LAlbums.DateD;20 mars 2026
0;Serie;Choisir;Albums Jabot;Album.NumSerie;2;Albums Jabot;Serie
0;Genre;Choisir;Mœurs;Album.NGenre;3;Mœurs;Genre
0;Pays;Choisir;Belgique;Album.NPays;3;Belgique;Pays
0;Edit;Choisir;Schmidt;Album.NEdit;2;Schmidt;Editeur
0;Coll;Choisir;Albums Pellerin;Coll;3;Albums Pellerin;Coll
0;Scena;Choisir;Philipon, Charles;Album.NScen;6;Philipon, Charles;Auteurs
0;Dessin;Choisir;Doré, Gustave;Album.NDessin;3;Doré, Gustave;Auteurs
0;Color;Choisir;Hellé, André;Album.NColor;61;Hellé, André;Auteurs
0;NPret;Choisir;Kervran;Album.NPret;2;Kervran;Pret
0;NomI(0);Choisir;Adolphe , Best;Intervenants;4-1;Adolphe , Best;Inter
0;ActI(0);Choisir;Graveur;Intervenants;1-4;Graveur;Metier
1;Nom;Saisir;Écume;Serie.Nom
1;CoteSerie;Saisir;7;Serie.cote;7;07
1;CoteSerie;Saisir;;Serie.cote
1;SiteWeb(0);Saisir;a.fr/b;Serie.SiteWeb1;http://a.fr/b
1;SiteWeb(1);Saisir;HTTP://a.fr;Serie.SiteWeb2
1;SiteWeb(1);Saisir;;Serie.SiteWeb2
1;NoteG;Chiffre;1;Serie.NoteG
1;NoteD;Etoile;3;Serie.NoteD
1;NoteS;Etoile;1;Serie.NoteS
1;Commentaire;Ecrire;oui;Serie.Commentaire
1;Histoire;Ecrire;non;Serie.Histoire
1;NomGenre;Choisir;Mœurs;Serie.NGenre;3;Mœurs;Genre
1;Editeur;Choisir;Schmidt;Serie.NEditeur;2;Schmidt;Editeur
2;Nom;Saisir;Topffer;Auteurs.Nom
2;Nom;Saisir;R., Topffer;Noms;Topffer/R.;Topffer
2;Prenom;Saisir;Ad., T.;Noms;T./Ad.;Ad.
2;SurNom;Saisir;L'autre;Auteurs.SurNom
2;Naiss;Jour;20;Auteurs.DateNaiss;20 janvier 1799
2;LieuN;Saisir;Bâle;Auteurs.LieuNaiss
2;PaysN;Choisir;Belgique;Auteurs.NPays;3;Belgique;Pays
2;Liens(0);Saisir;a.fr;Auteurs.web1
2;Liens(1);Saisir;b.fr;Auteurs.web2
2;CommA;Ecrire;bon;Auteurs.Commentaire
2;M_tiers(0);Cocher;;Auteurs.Scena;0
2;M_tiers(1);Cocher;;Auteurs.Color;-1;1
7;NomE;Saisir;Chez lui;Editeur.Nom
7;AdressE(0);Saisir;1, rue;Editeur.adresse1
7;AdressE(1);Saisir;2, rue;Editeur.adresse2
7;CPE;Saisir;01000;Editeur.CP
7;VilleE;Saisir;Bâle;Editeur.ville
7;TelE;Saisir;01 02;Editeur.Tel
7;SiteE;Saisir;a.fr;Editeur.Site
7;PaysE;Choisir;Belgique;Editeur.NPays;3;Belgique;Pays
5;DescriptionX;Saisir;La noce;ExLibris.Nom
5;PrixAX;Saisir;30;ExLibris.PrixA;30.0;30,00 €
5;CommX;Ecrire;beau;ExLibris.Comm
5;DedicaceX;Cocher;;ExLibris.Dedicace;-1;1
5;SigneX;Cocher;;ExLibris.Signe;-1;1
5;TypeExlibris(7);Cocher;;ExLibris.TypeExlibris;7;1
5;DAX;Jour;20;ExLibris.DAchat;20 mai 2016
5;SerieX;Choisir;Albums Jabot;ExLibris.NSerie;2;Albums Jabot;Serie
5;DessinX;Choisir;Doré, Gustave;ExLibris.NDessin;3;Gustave, Doré;Auteurs
5;Librairie;Choisir;Au Petit Cartonnage;ExLibris.NLibrairie;4;Au Petit Cartonnage;Librairie
6;NomP;Saisir;Le Rire;PresseBD.Nom
6;NumP;Saisir;77;PresseBD.NPresseBD
6;NumP;Saisir;;PresseBD.NPresseBD
6;DepotLP;Saisir;1890;PresseBD.DepotLegale
6;PrixAP;Saisir;0,5;PresseBD.PrixA;0.5;0,50 €
6;CommP;Ecrire;rare;PresseBD.Comm
6;HSP;Cocher;;PresseBD.HS;-1;1
6;ReliureP;Cocher;;PresseBD.Reliure;-1;1
6;ParutionP;Mot;7 - Annuelle;PresseBD.Parution;7;7 - Annuelle
6;DAP;Jour;20;PresseBD.DAchat;20 mars 2012
6;EditeurP;Choisir;Schmidt;PresseBD.NEdit;2;Schmidt;Editeur
8;NomC;Saisir;Jabot;Coll.Nom
)";

const QHash<QString, QString> Requetes{
    {"Intervenants", "SELECT group_concat(NInter || '-' || NMetier) FROM InterMetier WHERE NAlbum = 1"},
    {"Cotes", "SELECT group_concat(Mois || ':' || Cotes) FROM CotesAlbum WHERE NAlbum = 1"},
    {"Coll", "SELECT group_concat(NColl) FROM CollAlbums WHERE NAlbum = 1"},
    {"Noms", "SELECT Nom || '/' || Prenom FROM Auteurs WHERE NAuteur = 1"},
    {"Pret", "SELECT NPret || ':' || DPret FROM Album WHERE Num = 1"},
    {"Ecrivain", "SELECT Nom || ', ' || Prenom FROM Auteurs JOIN Album ON NAuteur = NScen WHERE Num = 1"},
    {"Roles",
        "SELECT group_concat(NAuteur || iif(Dessin, 'd', '') || iif(Scena, 's', '') || iif(Color, 'c', ''), "
        "' ')"
        " FROM (SELECT * FROM AuteursAlbums WHERE NAlbum = 1 ORDER BY NAuteur)"},
    {"Personnes", "SELECT (SELECT count(*) FROM Auteurs) || ' ' || (SELECT count(*) FROM Inter)"},
};

/// The link table behind a choice of the album, as the query of the entries that it links to.
const QHash<QString, QString> Liens{{"Serie", "NSerie) FROM SerieAlbums WHERE"},
    {"Genre", "NGenre) FROM GenreAlbums WHERE"}, {"Pays", "NPays) FROM PaysAlbum WHERE"},
    {"Edit", "NEdit) FROM EditeurAlbums WHERE"}, {"Coll", "NColl) FROM CollAlbums WHERE"},
    {"Scena", "NAuteur) FROM AuteursAlbums WHERE Scena AND"},
    {"Dessin", "NAuteur) FROM AuteursAlbums WHERE Dessin AND"},
    {"Color", "NAuteur) FROM AuteursAlbums WHERE Color AND"}};

QString lire(const QString &ou)
{
    const QStringList place = ou.split(u'.');
    const QString colonne = "SELECT CAST(%1 AS TEXT) FROM %2 WHERE rowid = 1";
    const bool nommee = Requetes.contains(ou) || ou.startsWith("SELECT");
    return Bac::valeur(nommee ? Requetes.value(ou, ou) : colonne.arg(place.value(1), place[0])).toString();
}

std::vector<Cas> lireCas(const char *texte)
{
    std::vector<Cas> tous;
    for (const QString &ligne : QString::fromUtf8(texte).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList p = ligne.split(u';');
        const QString stockee = p.value(5, p[3]);
        tous.push_back({p[0].toInt(), p[1], p[2], p[3], p[4], stockee, p.value(6, stockee), p.value(7)});
    }
    return tous;
}

void ajouter(const Cas &cas)
{
    QTest::addRow("%d %s « %s »", cas.tri, qPrintable(cas.controle), qPrintable(cas.saisie)) << cas;
}

void ajouterTous(const char *texte)
{
    QTest::addColumn<Cas>("cas");
    for (const Cas &cas : lireCas(texte))
        ajouter(cas);
}

/// The program on the sample collection whose entries number 1 hold something everywhere.
struct Atelier : Seance
{
    explicit Atelier(int tri = 0, const QString &sql = {})
    {
        const QString garniture
            = "UPDATE Album SET ISBN = '978', NPret = 1, DPret = '02 mars 2026', NColor = 8, NCouverture = 0 "
              "WHERE Num = 1;"
              "UPDATE LAlbums SET DateD = '05 mars 2026', EtatD = 'moyen' WHERE NAlbum = 1;"
              "DELETE FROM InterMetier WHERE NAlbum = 1 AND NMetier = 2; INSERT INTO CollAlbums VALUES (1, "
              "1);"
              "DELETE FROM CotesAlbum WHERE NAlbum = 1 AND Mois <> '01 juillet 2024';"
              "INSERT INTO AuteursAlbums VALUES (8, 1, 0, 0, -1);";
        Autre(bac.collection()).executer(garniture + sql);
        demarrer();
        montrer(tri, 1);
    }
    static void montrer(int tri, int id)
    {
        cliquer(qPrintable(QStringLiteral("Tris(%1)").arg(tri)));
        QCoreApplication::processEvents(); // the list takes the height that the pane below it leaves
        cliquerLigne("Frmmain", Qt::UserRole, QStringLiteral("N %1").arg(id));
        const General::Entree voulue{General::TriDe(tri), id};
        QTRY_VERIFY(static_cast<Frmmain *>(fenetre("Frmmain"))->courante() == voulue);
    }
    static void cliquerLigne(const char *forme, int role, const QString &valeur, int rang = 0)
    {
        auto *liste = trouver<QAbstractItemView>("Liste", forme);
        const auto lignes
            = liste->model()->match(liste->model()->index(0, 0), role, valeur, -1, Qt::MatchExactly);
        QVERIFY2(lignes.size() > rang, qPrintable(valeur));
        liste->scrollTo(lignes[rang]);
        QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, liste->visualRect(lignes[rang]).center());
    }
    /// The control of this name on the sheet shown.
    template <class T = QWidget>
    static T *controle(const QString &nom)
    {
        for (T *c : fenetre("Frmmain")->findChildren<T *>(nom)) {
            if (c->isVisible())
                return c;
        }
        return nullptr;
    }
    /// What a control says; nothing for the dots.
    static QString montre(const QString &nom)
    {
        QWidget *c = controle(nom);
        if (!c)
            return "caché";
        if (const auto *bouton = qobject_cast<QAbstractButton *>(c))
            return bouton->isChecked() ? "1" : "0";
        for (const char *propriete : {"valeur", "currentText", "plainText"}) {
            if (c->property(propriete).isValid())
                return c->property(propriete).toString();
        }
        return c->property("text").toString().remove(QString(855, u'.'));
    }
    static QString saisi(const Cas &cas) { return trouver<QLineEdit>(cas.ligne(), cas.forme())->text(); }
    static QString refus(const Cas &cas) { return trouver<QLabel>("Refus", cas.forme())->text(); }
    static bool ouverte(const Cas &cas) { return fenetre(cas.forme()) && fenetre(cas.forme())->isVisible(); }
    static void remplacer(const Cas &cas, const QString &texte)
    {
        auto *ligne = trouver<QLineEdit>(cas.ligne(), cas.forme());
        ligne->selectAll();
        texte.isEmpty() ? QTest::keyClick(ligne, Qt::Key_Delete) : ecrire(cas.ligne(), texte, cas.forme());
    }
    static void choisirJour(const QString &jour)
    {
        auto *vue = trouver<QTableView>("qt_calendar_calendarview", "FrmModif");
        // The page begins with the end of the month before, and ends with the next one.
        const bool tard = jour.toInt() > 15;
        QModelIndex index;
        for (int i = 0; i < 42 && index.data().toString() != jour; ++i)
            index = vue->model()->index(1 + (tard ? 41 - i : i) / 7, (tard ? 41 - i : i) % 7);
        QTest::mouseClick(vue->viewport(), Qt::LeftButton, {}, vue->visualRect(index).center());
    }
    static void ecrireMemo(const QString &nom, const QString &texte)
    {
        controle<QPlainTextEdit>(nom)->setFocus();
        controle<QPlainTextEdit>(nom)->selectAll();
        taper(controle(nom), texte);
    }
    static void choisirMot(QComboBox *choix, const QString &mot)
    {
        QTest::keyClick(choix, Qt::Key_Return);
        QTRY_VERIFY(choix->view()->isVisible());
        choix->view()->setCurrentIndex(choix->model()->index(choix->findText(mot), 0));
        QTest::keyClick(choix->view(), Qt::Key_Return);
    }
    /// Clicks a caption and enters a value in the form that opens, up to the button.
    static void entrer(const Cas &cas)
    {
        const QString avant = montre(cas.controle);
        QTest::mouseClick(controle(cas.controle), Qt::LeftButton, {}, {10, 8});
        QVERIFY2(ouverte(cas), qPrintable(cas.controle));
        QCOMPARE(saisi(cas), avant);
        if (cas.geste == "Choisir")
            cliquerLigne("FrmModif", Qt::DisplayRole, cas.saisie);
        else
            cas.geste == "Jour" ? choisirJour(cas.saisie) : remplacer(cas, cas.saisie);
    }
    static void valider(const Cas &cas) { cliquer("Valider", cas.forme()); }
    static bool enForme(const Cas &cas)
    {
        return QStringList{"Saisir", "Taper", "Choisir", "Jour"}.contains(cas.geste);
    }
    /// Does all of it.
    static void agir(const Cas &cas)
    {
        if (enForme(cas)) {
            entrer(cas);
            valider(cas);
            QVERIFY2(!ouverte(cas), qPrintable(refus(cas)));
            return;
        }
        QWidget *c = controle(cas.controle);
        const int rang = cas.saisie.toInt();
        const int etoile = (c->sizeHint().width() - 8) / 5;
        if (cas.geste == "Etoile")
            QTest::mouseClick(c, Qt::LeftButton, {}, {4 + etoile * (2 * rang - 1) / 2, 8});
        else if (cas.geste == "Chiffre")
            QTest::keyClick(c, Qt::Key(Qt::Key_0 + rang));
        else if (cas.geste == "Cocher")
            QTest::mouseClick(c, Qt::LeftButton, {}, {8, c->height() / 2});
        else
            cas.geste == "Mot" ? choisirMot(qobject_cast<QComboBox *>(c), cas.saisie)
                               : ecrireMemo(cas.controle, cas.saisie);
    }
    static void agir(const QString &controle, const QString &geste, const QString &saisie)
    {
        agir({0, controle, geste, saisie, {}, {}, {}, {}});
    }
    /// Ctrl and a key on the main window, away from any text.
    static void commander(Qt::Key touche)
    {
        trouver<QWidget>("Liste")->setFocus();
        fenetre("Frmmain")->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(fenetre("Frmmain")));
        QTest::keyClick(fenetre("Frmmain"), touche, Qt::ControlModifier);
    }
    static bool peutAnnuler() { return trouver<QWidget>("Defaire")->isEnabled(); }
};

QString jourDit(const QDate &jour)
{
    return QLocale(QLocale::French).toString(jour, "dd MMMM yyyy");
}

}

class tst_edition : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Atelier>
        m_partage; ///< one program for the cases of a list: each leaves the file as it was
    int m_tri = -1;

private Q_SLOTS:
    void cleanup()
    {
        if (QTest::currentTestFailed() || qstrcmp(QTest::currentDataTag(), "fin") == 0)
            m_partage.reset();
    }
    void chaqueChampSEditeOuIlEst_data();
    void chaqueChampSEditeOuIlEst();
    void unNomConnuGardeSaFicheEtSesRoles_data();
    void unNomConnuGardeSaFicheEtSesRoles();
    void unHomonymeChoisiEstPris();
    void menuNAjouteQueCeQuiManque();
    void validerSansChangerNEcritRien();
    void unRefusGardeLaSaisie_data();
    void unRefusGardeLaSaisie();
    void lePretCommenceAujourdHui();
    void uneDateIllisibleReste();
    void unMemoSEcritAvantDEtreQuitte_data();
    void unMemoSEcritAvantDEtreQuitte();
    void uneVisiteDUnMemoEstUneEtape();
};

/// The given way, and for a choice of an entry two more: a name that nobody has yet makes the next entry, no
/// name leaves no link.
void tst_edition::chaqueChampSEditeOuIlEst_data()
{
    QTest::addColumn<Cas>("cas");
    const std::vector<Cas> tous = lireCas(TousLesCas);
    const Bac bac(EXEMPLE);
    for (Cas cas : tous) {
        ajouter(cas);
        if (cas.table.isEmpty())
            continue;
        const QString neuf = Bac::valeur("SELECT max(rowid) + 1 FROM " + cas.table).toString();
        cas.geste = "Taper";
        cas.saisie = cas.montree = "L'Œuvre neuve";
        cas.stockee = cas.controle == "NomI(0)" ? neuf + "-1"
            : cas.controle == "ActI(0)"         ? "1-" + neuf
                                                : neuf;
        ajouter(cas);
        cas.saisie = cas.montree = QString();
        cas.stockee = cas.controle == "ActI(0)"                   ? "1-0"
            : cas.controle == "NomI(0)" || cas.controle == "Coll" ? ""
                                                                  : "0";
        ajouter(cas);
    }
    for (const Champs::Champ &champ : Champs::Tous) {
        const auto concerne = [&](const Cas &cas) {
            return General::GenreDe(General::TriDe(cas.tri)).feuille == champ.feuille
                && cas.controle.startsWith(QLatin1String(champ.controle));
        };
        if (champ.vue != Champs::Vue::Image && std::none_of(tous.begin(), tous.end(), concerne))
            ajouter({0, champ.controle, "?", "sans cas", {}, {}, {}, {}});
    }
    QTest::newRow("fin") << Cas();
}

void tst_edition::chaqueChampSEditeOuIlEst()
{
    QFETCH(Cas, cas);
    if (cas.controle.isEmpty())
        return;
    QVERIFY2(cas.geste != "?", "a field that no case tries");
    if (m_tri != cas.tri)
        m_partage.reset();
    m_tri = cas.tri;
    if (!m_partage)
        m_partage = std::make_unique<Atelier>(cas.tri);
    Atelier::montrer(cas.tri, 1);
    const QStringList avant = Bac::toutLire();
    const QString vueAvant = Atelier::montre(cas.controle);
    Atelier::agir(cas);
    QTRY_COMPARE(lire(cas.lu), cas.stockee);
    QTRY_COMPARE(Atelier::montre(cas.controle), cas.montree);
    if (const QString liens = Liens.value(cas.controle); cas.tri == 0 && !liens.isEmpty())
        QCOMPARE(lire("SELECT group_concat(" + liens + " NAlbum = 1"), cas.stockee == "0" ? "" : cas.stockee);
    const QStringList apres = Bac::toutLire();
    QVERIFY(apres != avant);

    Atelier::commander(Qt::Key_Z);
    QTRY_COMPARE(Bac::toutLire(), avant);
    QTRY_COMPARE(Atelier::montre(cas.controle), vueAvant);
    QVERIFY(!Atelier::peutAnnuler());
    Seance::cliquer("Refaire");
    QTRY_COMPARE(Bac::toutLire(), apres);
    QTRY_COMPARE(Atelier::montre(cas.controle), cas.montree);
    Seance::cliquer("Defaire");
    QTRY_COMPARE(Bac::toutLire(), avant);
    QCOMPARE(m_partage->boites.textes, QStringList());
}

void tst_edition::unNomConnuGardeSaFicheEtSesRoles_data()
{
    // At first Töpffer (1) draws and writes, Monnier (8) colours.
    ajouterTous(R"(
0;Scena;Taper;Philipon, Charles;Roles;1d 6s 8c
0;Scena;Choisir;Monnier, Henry;Roles;1d 8sc
0;Color;Taper;Töpffer, Rodolphe;Roles;1dsc
0;Color;Taper; töpffer ,rodolphe ;Roles;1dsc
0;Color;Taper;TÖPFFER;Roles;1dsc
0;Color;Taper;;Roles;1ds
0;Dessin;Taper;;Roles;1s 8c
0;Color;Taper;Cham;Roles;1ds 2c
0;Color;Taper;Cham,;Roles;1ds 2c
0;NomI(0);Taper;Adolphe , Best;Intervenants;4-1
0;NomI(0);Taper;adolphe,best;Intervenants;4-1
)");
}

void tst_edition::unNomConnuGardeSaFicheEtSesRoles()
{
    QFETCH(Cas, cas);
    const Atelier s;
    const QString avant = lire(cas.lu);
    const QString personnes = lire("Personnes");
    Atelier::agir(cas);
    QCOMPARE(lire("Personnes"), personnes);
    QCOMPARE(lire(cas.lu), cas.stockee);
    Atelier::commander(Qt::Key_Z);
    QTRY_COMPARE(lire(cas.lu), avant);
    Atelier::commander(Qt::Key_Y);
    QTRY_COMPARE(lire(cas.lu), cas.stockee);
}

void tst_edition::unHomonymeChoisiEstPris()
{
    const Atelier s(
        0, "INSERT INTO Auteurs (NAuteur, Nom, Prenom, Scena) VALUES (900, 'Töpffer', 'Rodolphe', -1)");
    QTest::mouseClick(Atelier::controle("Scena"), Qt::LeftButton, {}, {10, 8});
    auto *liste = Seance::trouver<QAbstractItemView>("Liste", "FrmModif");
    QCOMPARE(liste->currentIndex().data(Qt::UserRole), "N 1");
    Atelier::cliquerLigne("FrmModif", Qt::UserRole, "N 900");
    Seance::cliquer("Valider", "FrmModif");
    QCOMPARE(lire("Album.NScen"), "900");
    QCOMPARE(lire("Roles"), "1d 8c 900s");
}

void tst_edition::menuNAjouteQueCeQuiManque()
{
    Atelier s;
    const QStringList avant = Bac::toutLire();
    const Cas cas{0, "Genre", "Taper", "HUMOUR", {}, {}, {}, {}};
    Atelier::entrer(cas);
    Seance::cliquer("Menu", "FrmModif");
    QCOMPARE(s.boites.textes, QStringList("La donnée existe déjà !"));
    QCOMPARE(Bac::toutLire(), avant);
    Atelier::remplacer(cas, "L'Écume");
    Seance::cliquer("Menu", "FrmModif");
    auto *liste = Seance::trouver<QAbstractItemView>("Liste", "FrmModif");
    QCOMPARE(liste->currentIndex().data().toString(), "L'Écume");
    QCOMPARE(lire("SELECT Nom FROM Genre WHERE NGenre = 15"), "L'Écume");
    QCOMPARE(lire("Album.NGenre"), "1");
    Atelier::valider(cas);
    QCOMPARE(lire("Album.NGenre"), "15");

    Atelier::entrer({0, "Color", "Taper", "Œil, Jean d'", {}, {}, {}, {}});
    Seance::cliquer("Menu", "FrmModif");
    Seance::cliquer("Quit", "FrmModif");
    QCOMPARE(lire("SELECT Prenom || Dessin || Scena || Color FROM Auteurs WHERE Nom = 'Œil'"), "Jean d'00-1");
    QCOMPARE(lire("Album.NColor"), "8");
    for (int i = 0; i < 3; ++i)
        Atelier::commander(Qt::Key_Z);
    QTRY_COMPARE(Bac::toutLire(), avant);
}

void tst_edition::validerSansChangerNEcritRien()
{
    const Atelier s(0, "UPDATE Serie SET SiteWeb1 = 'a.fr', Nom = ' Zig ' WHERE NSerie = 1");
    const QByteArray avant = Bac::lire(s.bac.collection());
    int formes = 0;
    for (const int tri : {1, 2, 5, 6, 7, 8, 0}) {
        Atelier::montrer(tri, 1);
        for (QLabel *legende : Seance::fenetre("Frmmain")->findChildren<QLabel *>()) {
            if (!legende->inherits("Legende") || !legende->isVisible())
                continue;
            QTest::mouseClick(legende, Qt::LeftButton, {}, {10, 8});
            for (const char *forme : {"FrmModif", "FrmModif2"}) {
                if (!Seance::fenetre(forme) || !Seance::fenetre(forme)->isVisible())
                    continue;
                Seance::cliquer("Valider", forme);
                QVERIFY2(!Seance::fenetre(forme)->isVisible(), qPrintable(legende->objectName()));
                ++formes;
            }
            QVERIFY2(Bac::lire(s.bac.collection()) == avant, qPrintable(legende->objectName()));
        }
    }
    QVERIFY(formes > 50);
    Atelier::agir("Qualite", "Etoile", "4");
    Atelier::agir("Couleur", "Mot", Atelier::montre("Couleur"));
    Atelier::agir("Edit", "Choisir", "Chez l'auteur");
    Atelier::agir("Infos", "Ecrire", Atelier::montre("Infos"));
    Atelier::commander(Qt::Key_Z);
    QVERIFY(Bac::lire(s.bac.collection()) == avant);
    QVERIFY(!Atelier::peutAnnuler());
}

/// The last column is what another program does before the button is pressed: it deletes rows, or holds the
/// file. Where something is to be read afterwards, the next try succeeds: with "7", or as it was typed.
void tst_edition::unRefusGardeLaSaisie_data()
{
    ajouterTous(R"(
0;NumBD;Saisir;abc;Album.NAlbum;7
0;NumBD;Saisir;-5;Album.NAlbum;7
0;NbPage;Saisir;abc;Album.NbPage;7
0;PrixA;Saisir;abc;Album.PrixA;7.0
0;PrixA;Saisir;nan;Album.PrixA;7.0
0;PrixA;Saisir;1,2,3;Album.PrixA;7.0
1;CoteSerie;Saisir;cher;Serie.cote;7
6;NumP;Saisir;1,5;PresseBD.NPresseBD;7
6;PrixAP;Saisir;dix;PresseBD.PrixA;7.0
5;PrixAX;Saisir;inf;ExLibris.PrixA;7.0
0;ISBN;Saisir;2-205;;;;DELETE FROM Album WHERE Num = 1
0;LieuD;Saisir;Bâle;;;;DELETE FROM Album WHERE Num = 1
0;TAlbum;Saisir;Titre;;;;DELETE FROM LAlbums WHERE NAlbum = 1
0;Cotes(0);Saisir;9;;;;DELETE FROM Album WHERE Num = 1
0;Mois(0);Taper;mai;;;;DELETE FROM Album WHERE Num = 1
0;DA;Jour;20;;;;DELETE FROM Album WHERE Num = 1
0;Scena;Taper;Œil, Jean;;;;DELETE FROM Album WHERE Num = 1
0;Coll;Choisir;Albums Pellerin;;;;DELETE FROM Album WHERE Num = 1
0;NomI(0);Taper;Jean , Neuf;;;;DELETE FROM Album WHERE Num = 1
0;NPret;Choisir;Kervran;;;;DELETE FROM Album WHERE Num = 1
1;NomGenre;Taper;neuf;;;;DELETE FROM Serie WHERE NSerie = 1
2;Nom;Saisir;Jean, Neuf;;;;DELETE FROM Auteurs WHERE NAuteur = 1
6;EditeurP;Taper;neuf;;;;DELETE FROM PresseBD WHERE NPressBD = 1
0;Genre;Choisir;Mœurs;Album.NGenre;15;;DELETE FROM Genre WHERE NGenre = 3
0;Scena;Choisir;Philipon, Charles;Ecrivain;Philipon, Charles;;DELETE FROM Auteurs WHERE NAuteur = 6
0;ActI(0);Choisir;Graveur;Intervenants;1-11;;DELETE FROM Metier WHERE NMetier = 4
0;ISBN;Saisir;2-205-2;Album.ISBN;2-205-2;;BEGIN EXCLUSIVE
0;Scena;Taper;Œil, Jean d';Ecrivain;Œil, Jean d';;BEGIN EXCLUSIVE
0;DA;Taper;à Noël;Album.DA;à Noël;;BEGIN EXCLUSIVE
0;Infos;Ecrire;été;Album.Commentaire;été;été;BEGIN EXCLUSIVE
0;LSerieLim;Cocher;;Album.SerieLim;-1;0;BEGIN EXCLUSIVE
)");
}

void tst_edition::unRefusGardeLaSaisie()
{
    QFETCH(Cas, cas);
    Atelier s(cas.tri);
    const bool enForme = Atelier::enForme(cas);
    const bool tenue = cas.table.startsWith("BEGIN");
    const auto essayer = [&] { enForme ? Atelier::valider(cas) : Atelier::agir(cas); };
    const auto vue = [&] { return enForme ? Atelier::saisi(cas) : Atelier::montre(cas.controle); };
    if (enForme)
        Atelier::entrer(cas);
    const QString saisie = enForme ? vue() : cas.montree;
    QStringList avant = Bac::toutLire();
    {
        Autre autre(s.bac.collection());
        autre.executer(cas.table);
        if (!tenue)
            avant = Bac::toutLire();
        essayer();
        // Whether to try again, and that it was not done.
        QTRY_COMPARE(s.boites.textes.size(), tenue ? 2 : 0);
        QVERIFY(!tenue || s.boites.textes[1].contains(s.boites.textes[0]));
        QCOMPARE(Atelier::ouverte(cas), enForme);
        QVERIFY(tenue || !Atelier::refus(cas).isEmpty());
        QCOMPARE(vue(), saisie);
    }
    QCOMPARE(Bac::toutLire(), avant);
    QVERIFY(!Atelier::peutAnnuler());
    if (cas.lu.isEmpty())
        return;
    if (cas.table.isEmpty()) {
        Atelier::remplacer(cas, "7");
        QVERIFY(Atelier::refus(cas).isEmpty());
    }
    cas.geste == "Ecrire" ? Seance::trouver<QWidget>("Liste")->setFocus() : essayer();
    QTRY_COMPARE(lire(cas.lu), cas.stockee);
    QVERIFY(!Atelier::ouverte(cas));
    Atelier::commander(Qt::Key_Z);
    QTRY_COMPARE(Bac::toutLire(), avant);
}

void tst_edition::lePretCommenceAujourdHui()
{
    const Atelier s(0, "UPDATE Album SET NPret = 0, DPret = ' ' WHERE Num = 1");
    const QString jour = jourDit(QDate::currentDate());
    Atelier::agir("NPret", "Choisir", "Kervran");
    QCOMPARE(lire("Pret"), "2:" + jour);
    QTRY_COMPARE(Atelier::montre("DPret"), jour);
    Atelier::agir("DPret", "Taper", "hier");
    QTRY_COMPARE(Atelier::montre("DPret"), "hier");
    Atelier::agir("NPret", "Choisir", "Marchandeau");
    QCOMPARE(lire("Pret"), "1:hier");
    QTRY_COMPARE(Atelier::montre("NPret"), "Marchandeau");
    Atelier::agir("NPret", "Taper", {});
    QCOMPARE(lire("Pret"), "0:");
    for (const QString &attendu : QStringList{"1:hier", "2:hier", "2:" + jour, "0: "}) {
        Atelier::commander(Qt::Key_Z);
        QTRY_COMPARE(lire("Pret"), attendu);
    }
}

void tst_edition::uneDateIllisibleReste()
{
    const Atelier s(0, "UPDATE Album SET DA = 'vers Pâques' WHERE Num = 1");
    const QByteArray avant = Bac::lire(s.bac.collection());
    const Cas cas{0, "DA", "Jour", QString::number(QDate::currentDate().day()), {}, {}, {}, {}};
    QTest::mouseClick(Atelier::controle("DA"), Qt::LeftButton, {}, {10, 8});
    auto *calendrier = Seance::trouver<QCalendarWidget>("SaisieDate", "FrmModif");
    QVERIFY(calendrier->isVisible() && !Seance::trouver<QWidget>("Liste", "FrmModif")->isVisible());
    QCOMPARE(calendrier->selectedDate(), QDate::currentDate());
    QCOMPARE(Atelier::saisi(cas), "vers Pâques");
    Atelier::valider(cas);
    QVERIFY(Bac::lire(s.bac.collection()) == avant);
    // The day on which the calendar stands can be taken.
    Atelier::agir(cas);
    QCOMPARE(lire("Album.DA"), jourDit(QDate::currentDate()));
}

void tst_edition::unMemoSEcritAvantDEtreQuitte_data()
{
    QTest::addColumn<QString>("sortie");
    for (const char *sortie : {"Liste", "AlbumSuivant", "Tris(1)", "Menu(7)"})
        QTest::newRow(sortie) << sortie;
}

/// A long text, and no pause before the sheet is left.
void tst_edition::unMemoSEcritAvantDEtreQuitte()
{
    QFETCH(QString, sortie);
    const Atelier s;
    const QStringList avant = Bac::toutLire();
    const QString autres = lire("SELECT group_concat(Histoire) FROM Album WHERE Num > 1");
    const QString texte = QStringLiteral("L'œuvre d'été\n").repeated(40'000 / 14);
    Atelier::ecrireMemo("Hist", "x");
    Atelier::controle<QPlainTextEdit>("Hist")->insertPlainText(texte);
    sortie == "Liste" ? Atelier::cliquerLigne("Frmmain", Qt::UserRole, "N 2")
                      : Seance::cliquer(qPrintable(sortie));
    QTRY_COMPARE_WITH_TIMEOUT(lire("Album.Histoire"), "x" + texte, 200);
    QCOMPARE(lire("LAlbums.Histoire"), "x" + texte);
    QCOMPARE(lire("SELECT group_concat(Histoire) FROM Album WHERE Num > 1"), autres);
    QTRY_VERIFY(sortie == "Menu(7)" || !Atelier::montre("Hist").startsWith("xL"));
    // Taken back from afar, the step shows where it was.
    Atelier::commander(Qt::Key_Z);
    QTRY_COMPARE(Bac::toutLire(), avant);
    QTRY_COMPARE(Atelier::montre("Hist"), lire("Album.Histoire"));
}

void tst_edition::uneVisiteDUnMemoEstUneEtape()
{
    const Atelier s;
    QList<QStringList> etats{Bac::toutLire()};
    auto *memo = Atelier::controle<QPlainTextEdit>("Infos");
    for (const char *mot : {"un", "deux", "trois", "quatre"}) {
        memo->setFocus();
        Seance::ecrire("Infos", mot, "Frmmain");
        QVERIFY(memo->toPlainText().contains(mot));
        QTRY_COMPARE(lire("Album.Commentaire"), memo->toPlainText());
        if (qstrcmp(mot, "trois") == 0) {
            etats << Bac::toutLire();
            Seance::trouver<QWidget>("Liste")->setFocus();
        }
    }
    while (!etats.isEmpty()) {
        const QStringList voulu = etats.takeLast();
        Atelier::commander(Qt::Key_Z);
        QTRY_COMPARE(Bac::toutLire(), voulu);
    }
    QVERIFY(!Atelier::peutAnnuler());
}

int main(int argc, char *argv[])
{
    return jouer<tst_edition>(argc, argv);
}

#include "tst_edition.moc"
