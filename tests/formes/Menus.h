#pragma once

#include "support/Seance.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QStackedWidget>
#include <QTimer>
#include <QTreeView>

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
