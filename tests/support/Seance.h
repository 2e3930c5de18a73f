#pragma once

#include "acts/Demandes.h"
#include "app/Application.h"
#include "app/Bureau.h"
#include "core/ui/Habillage.h"
#include "core/ui/Messages.h"
#include "support/Bac.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLibrary>
#include <QLibraryInfo>
#include <QTest>
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

/// What a hand does with the forms, worked by object names.
struct Gestes
{
    /// A form, or the page of one that bears the name.
    static QWidget *fenetre(const char *nom)
    {
        QWidget *page = nullptr;
        for (QWidget *candidate : QApplication::topLevelWidgets()) {
            if (candidate->objectName() == QLatin1String(nom))
                return candidate;
            if (!page)
                page = candidate->findChild<QWidget *>(QLatin1String(nom));
        }
        return page;
    }
    /// A control of a form; of a page also what its form has for all pages.
    template <class T>
    static T *trouver(const char *nom, const char *forme = "Frmmain")
    {
        auto *controle = fenetre(forme)->findChild<T *>(QLatin1String(nom));
        return controle ? controle : fenetre(forme)->window()->findChild<T *>(QLatin1String(nom));
    }
    static bool visible(const char *forme) { return fenetre(forme) && fenetre(forme)->isVisible(); }
    static void cliquer(const char *nom, const char *forme = "Frmmain")
    {
        QTest::mouseClick(trouver<QAbstractButton>(nom, forme), Qt::LeftButton);
    }
    /// Opens a form by its button of the launcher.
    static void ouvrir(const char *groupe, const char *bouton, const char *forme)
    {
        cliquer("Menu(0)");
        cliquer(groupe, "Splash");
        cliquer(bouton, "Splash");
        QTRY_VERIFY(visible(forme));
        QVERIFY(QTest::qWaitForWindowExposed(fenetre(forme)));
        QCoreApplication::processEvents(); // it fills after it has shown
    }
    /// Types a text, character by character, into a field or an editable list.
    static void ecrire(const char *nom, const QString &texte, const char *forme)
    {
        auto *champ = trouver<QWidget>(nom, forme);
        champ->setFocus();
        taper(champ->focusProxy() ? champ->focusProxy() : champ, texte);
    }
    static void taper(QWidget *champ, const QString &texte)
    {
        for (const QChar c : texte) {
            QKeyEvent touche(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
            QApplication::sendEvent(champ, &touche);
        }
    }
    static void cliquerLigne(QAbstractItemView *vue, const QModelIndex &ligne)
    {
        vue->scrollTo(ligne);
        QTest::mouseClick(vue->viewport(), Qt::LeftButton, {}, vue->visualRect(ligne).center());
    }
    /// Ctrl and a key on the main window, away from any text.
    static void commander(Qt::Key touche)
    {
        trouver<QWidget>("Liste")->setFocus();
        fenetre("Frmmain")->activateWindow();
        // A window counts as active while a form over it is, too.
        QTRY_COMPARE(QApplication::activeWindow(), fenetre("Frmmain"));
        QTest::keyClick(fenetre("Frmmain"), touche, Qt::ControlModifier);
    }
    /// Caption of a label; empty until there is one.
    static QString texteDe(const char *nom)
    {
        const auto *label = trouver<QLabel>(nom);
        return label ? label->text() : QString();
    }
    /// Clicks the line of the main list that has this text.
    static void choisir(const QString &texte)
    {
        auto *liste = trouver<QAbstractItemView>("Liste");
        const auto trouves
            = liste->model()->match(liste->model()->index(0, 0), Qt::DisplayRole, texte, 1, Qt::MatchExactly);
        QVERIFY2(!trouves.isEmpty(), qPrintable(texte));
        cliquerLigne(liste, trouves.first());
    }
};

/// The real program on a copy of the sample collection, not started yet.
struct Seance : Gestes
{
    explicit Seance(bool dejaVu = true)
        : bac(QStringLiteral(EXEMPLE))
    {
        static const bool habillee = (Habillage::Appliquer(*qApp), true);
        Q_UNUSED(habillee)
        if (dejaVu)
            bac.reglages.ecrire(Cle::FirstTime, 1);
    }
    void demarrer()
    {
        bureau = std::make_unique<Bureau>(Options());
        bureau->demarrer();
        QVERIFY(QTest::qWaitForWindowExposed(fenetre("Frmmain")));
        QTRY_VERIFY(!texteDe("TAlbum").isEmpty() || !boites.textes.isEmpty());
    }

    Demandes &demandes() const { return bureau->demandes(); }

    Bac bac;
    Messages::Doublure boites;
    std::unique_ptr<Bureau> bureau;
};

/// The same, started.
struct Ouverte : Seance
{
    Ouverte() { demarrer(); }
};

/// What each program of journeys does, as its main().
template <class Parcours>
int jouer(int argc, char *argv[])
{
    Application application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    // What the scanner's back end keeps to the end counts as kept only as long as it is loaded.
    QLibrary pilote(QLibraryInfo::path(QLibraryInfo::LibrariesPath) + "/sane/libsane-test.so.1");
    pilote.setLoadHints(QLibrary::PreventUnloadHint);
    pilote.load();
    Parcours parcours;
    const int echecs = QTest::qExec(&parcours, argc, argv);
#ifdef __SANITIZE_ADDRESS__
    // Here and not at the exit, where the search falls over threads that end beside it.
    if (echecs == 0)
        return __lsan_do_recoverable_leak_check();
#endif
    return echecs;
}

#define JOUER(Parcours)                                                                                      \
    int main(int argc, char *argv[])                                                                         \
    {                                                                                                        \
        return jouer<Parcours>(argc, argv);                                                                  \
    }
