#pragma once

#include "browse/Frmmain.h"
#include "support/Autre.h"
#include "support/Seance.h"

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

inline const QHash<QString, QString> Requetes{
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

inline QString lire(const QString &ou)
{
    const QStringList place = ou.split(u'.');
    const QString colonne = "SELECT CAST(%1 AS TEXT) FROM %2 WHERE rowid = 1";
    const bool nommee = Requetes.contains(ou) || ou.startsWith("SELECT");
    return Bac::valeur(nommee ? Requetes.value(ou, ou) : colonne.arg(place.value(1), place[0])).toString();
}

inline std::vector<Cas> lireCas(const char *texte)
{
    std::vector<Cas> tous;
    for (const QString &ligne : QString::fromUtf8(texte).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList p = ligne.split(u';');
        const QString stockee = p.value(5, p[3]);
        tous.push_back({p[0].toInt(), p[1], p[2], p[3], p[4], stockee, p.value(6, stockee), p.value(7)});
    }
    return tous;
}

/// What an editing hand does with the sheets and the forms of editing.
struct Travaux : Gestes
{
    static void montrer(int tri, int id)
    {
        cliquer(qPrintable(QStringLiteral("Tris(%1)").arg(tri)));
        QCoreApplication::processEvents(); // the list takes the height that the pane below it leaves
        cliquerLigne("Frmmain", Qt::UserRole, QStringLiteral("N %1").arg(id));
        const General::Entree voulue{General::TriDe(tri), id};
        QTRY_VERIFY(courante() == voulue);
    }
    static General::Entree courante() { return static_cast<Frmmain *>(fenetre("Frmmain"))->courante(); }
    static void cliquerLigne(const char *forme, int role, const QString &valeur, int rang = 0)
    {
        auto *liste = trouver<QAbstractItemView>("Liste", forme);
        const auto lignes
            = liste->model()->match(liste->model()->index(0, 0), role, valeur, -1, Qt::MatchExactly);
        QVERIFY2(lignes.size() > rang, qPrintable(valeur));
        Gestes::cliquerLigne(liste, lignes[rang]);
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
    static bool peutAnnuler() { return trouver<QWidget>("Defaire")->isEnabled(); }
};

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
        Travaux::montrer(tri, 1);
    }
};
