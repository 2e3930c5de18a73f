#include "browse/Frmmain.h"
#include "core/Reglages.h"
#include "core/ui/Legende.h"
#include "support/Autre.h"
#include "support/Seance.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMetaEnum>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolButton>
#include <QToolTip>

namespace {

/// The names of all forms.
QByteArrayList noms()
{
    QByteArrayList tous;
    const QMetaEnum formes = QMetaEnum::fromType<Forme::Nom>();
    for (int i = 0; i < formes.keyCount(); ++i)
        tous << formes.key(i);
    return tous;
}

/// Opens a form as the program does; the two that edit a field come by a field of the sheet.
QWidget *montrer(const Seance &s, const QByteArray &nom)
{
    const int forme = QMetaEnum::fromType<Forme::Nom>().keyToValue(nom);
    if (nom.startsWith("FrmModif"))
        QTest::mouseClick(Seance::trouver<QWidget>(nom == "FrmModif" ? "Scena" : "PrixA"), Qt::LeftButton);
    else if (nom != "Frmmain")
        Q_EMIT s.demandes().forme(Forme::Nom(forme));
    if (!QTest::qWaitFor([&] { return Seance::visible(nom); }))
        qFatal("%s", nom.constData());
    QCoreApplication::processEvents();
    return Seance::fenetre(nom);
}

/// What a person works with: it takes the focus by a click or by Tab, and is not a mere part of another control.
bool estUnControle(const QWidget *w)
{
    if (!w->isVisible() || !w->isEnabled() || w->visibleRegion().isEmpty())
        return false;
    const QWidget *parent = w->parentWidget();
    const bool partie = qobject_cast<const QComboBox *>(parent) || qobject_cast<const QTabBar *>(parent)
        || qobject_cast<const QAbstractItemView *>(parent) || qobject_cast<const QLineEdit *>(parent)
        || w->objectName().startsWith(QLatin1String("qt_"))
        || w->inherits("QAbstractScrollAreaScrollBarContainer");
    if (partie)
        return false;
    return qobject_cast<const QAbstractButton *>(w) || qobject_cast<const QLineEdit *>(w)
        || qobject_cast<const QComboBox *>(w) || qobject_cast<const QAbstractItemView *>(w)
        || qobject_cast<const QPlainTextEdit *>(w) || w->inherits("Legende") || w->inherits("Etoiles")
        || w->inherits("Graphique");
}

/// Of the buttons that exclude each other Tab goes to one, and the arrows to the others.
bool estAtteintParUnAutre(const QWidget *w, const QSet<QWidget *> &atteints)
{
    const auto *bouton = qobject_cast<const QAbstractButton *>(w);
    if (!bouton || !bouton->isCheckable())
        return false;
    return std::any_of(atteints.begin(), atteints.end(), [&](const QWidget *a) {
        const auto *autre = qobject_cast<const QAbstractButton *>(a);
        return autre && autre->parentWidget() == w->parentWidget() && autre->metaObject() == w->metaObject();
    });
}

QSet<QWidget *> parcourir(QWidget *forme)
{
    QSet<QWidget *> atteints;
    for (int i = 0; i < 400; ++i) {
        QWidget *la = QApplication::focusWidget();
        if (la && !la->window()->inherits("QMenu")) {
            atteints << la;
            if (la->focusProxy())
                atteints << la->focusProxy();
        }
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QApplication::sendEvent(la ? la : forme, &tab);
    }
    return atteints;
}

QString nomDe(const QWidget *w)
{
    return QStringLiteral("%1 %2 « %3 »")
        .arg(QLatin1String(w->metaObject()->className()), w->objectName(), w->accessibleName());
}

/// The room that a caption needs beyond what it has, in pixels.
int manque(const QWidget *w)
{
    if (const auto *label = qobject_cast<const QLabel *>(w)) {
        // The value of a field is clipped to its caption, which ends in dots.
        if (label->inherits("Legende") || label->text().isEmpty()
            || label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored)
            return 0;
        if (label->wordWrap())
            return label->heightForWidth(label->width()) - label->height();
        return label->sizeHint().width() - label->width();
    }
    if (qobject_cast<const QPushButton *>(w) || qobject_cast<const QCheckBox *>(w)
        || qobject_cast<const QRadioButton *>(w))
        return w->sizeHint().width() - w->width();
    const auto *outil = qobject_cast<const QToolButton *>(w);
    if (!outil || outil->text().isEmpty() || outil->toolButtonStyle() == Qt::ToolButtonIconOnly
        || outil->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored)
        return 0;
    if (outil->toolButtonStyle() == Qt::ToolButtonTextBesideIcon)
        return outil->iconSize().width() + 8 + outil->fontMetrics().horizontalAdvance(outil->text())
            - outil->width();
    const int place = outil->width() - 12;
    return outil->fontMetrics()
               .boundingRect(QRect(0, 0, place, 400), Qt::TextWordWrap | Qt::AlignHCenter, outil->text())
               .width()
        - place;
}

/// What stands beyond the edge of a sheet, and the short values that are cut.
QStringList debordants(const QWidget &fiche)
{
    QStringList noms;
    for (const QWidget *w : fiche.findChildren<QWidget *>()) {
        if (!w->isVisible() || w->inherits("QAbstractScrollAreaScrollBarContainer")
            || w->parentWidget()->inherits("QAbstractItemView"))
            continue;
        const int droite = w->mapTo(&fiche, QPoint(w->width(), 0)).x();
        const auto *valeur = qobject_cast<const Legende *>(w);
        const int besoin = valeur && !valeur->estVide() && valeur->text().size() <= 15
            ? valeur->fontMetrics().horizontalAdvance(valeur->text()) + 2 * Legende::MargeLaterale
            : 0;
        if (droite > fiche.width() || besoin > w->width())
            noms << QStringLiteral("%1 %2 %3 px").arg(fiche.objectName(), nomDe(w)).arg(w->width());
    }
    return noms;
}

/// The captions of a form that are cut, by name.
QStringList coupeesDans(const QWidget *forme)
{
    QStringList coupees;
    for (const QWidget *w : forme->findChildren<QWidget *>()) {
        if (w->isVisible() && manque(w) > 1)
            coupees << QStringLiteral("%1 %2 %3 px").arg(forme->objectName(), nomDe(w)).arg(manque(w));
    }
    return coupees;
}

}

/// All forms: the keyboard reaches every control, each has a name and shows that it has the focus, and no caption
/// is cut in any language.
class tst_tenue : public QObject, private Gestes
{
    Q_OBJECT

private Q_SLOTS:
    void leClavierVaPartout()
    {
        Ouverte s;
        QStringList hors;
        QStringList anonymes;
        QStringList muets;
        for (const QByteArray &nom : noms()) {
            QWidget *forme = montrer(s, nom);
            forme->activateWindow();
            QVERIFY2(QTest::qWaitForWindowActive(forme), nom);
            const QString debut = forme->focusWidget() ? forme->focusWidget()->objectName() : QString();
            QVERIFY2(debut != "Mini" && debut != "Quit", nom); // the keyboard begins above the foot
            const QSet<QWidget *> atteints = parcourir(forme);
            QVERIFY2(atteints.size() > 1, nom);
            for (QWidget *w : forme->findChildren<QWidget *>()) {
                if (!estUnControle(w))
                    continue;
                const QString lui = nom + u' ' + nomDe(w);
                if (w->accessibleName().isEmpty())
                    anonymes << lui;
                if (!atteints.contains(w) && !estAtteintParUnAutre(w, atteints))
                    hors << lui;
                if (!atteints.contains(w))
                    continue;
                forme->window()->setFocus();
                const QImage sans = w->grab().toImage();
                w->setFocus(Qt::TabFocusReason);
                if (w->hasFocus() && w->grab().toImage() == sans)
                    muets << lui;
            }
            if (nom != "Frmmain")
                forme->window()->close();
        }
        QVERIFY2(anonymes.isEmpty(), qPrintable(anonymes.join(u'\n')));
        QVERIFY2(hors.isEmpty(), qPrintable(hors.join(u'\n')));
        QVERIFY2(muets.isEmpty(), qPrintable(muets.join(u'\n')));
    }

    void unNomNEstJamaisDuBalisage()
    {
        Seance s;
        Autre autre(s.bac.collection());
        for (const char *place : {"LAlbums.TAlbum", "LAlbums.dedi1", "Serie.Nom", "Auteurs.Nom",
                 "Editeur.Nom", "Coll.Nom", "Genre.Nom", "Pays.Nom", "ExLibris.Nom", "PresseBD.Nom",
                 "Inter.Nom", "Metier.Nom", "Pret.Nom"}) {
            const QStringList p = QString(place).split(u'.');
            autre.executer(QStringLiteral("UPDATE %1 SET %2 = '<b>gras</b> &lt; ' || %2").arg(p[0], p[1]));
        }
        const QImage image(8, 8, QImage::Format_RGB32);
        QVERIFY(image.save(s.bac.chemin("images/<b>gras.png")));
        autre.executer("UPDATE LAlbums SET Photo1 = '<b>gras.png', Photo2 = '<b>gras.png'");
        s.demarrer();
        const QString csv = s.bac.chemin("<b>gras.csv");
        Bac::ecrire(csv, "Titre\n<b>gras</b>\n");
        Q_EMIT s.demandes().fichier(csv);
        QTRY_VERIFY(trouver<QLabel>("Fichier", "Import")->text().contains("<b>"));
        QStringList fautes;
        int vus = 0;
        for (const QByteArray &nom : noms()) {
            QWidget *forme = montrer(s, nom);
            for (QWidget *w : forme->findChildren<QWidget *>()) {
                const auto *label = qobject_cast<QLabel *>(w);
                const bool porte = label && label->text().contains("<b>");
                vus += porte || w->toolTip().contains("<b>");
                if (porte && label->textFormat() != Qt::PlainText)
                    fautes << nom + u' ' + nomDe(w) + label->text();
                for (const QString &dit : {w->toolTip(), w->accessibleName()}) {
                    if (dit.contains("&lt;b") || dit.contains("&amp;") || dit.contains("&quot;"))
                        fautes << nom + u' ' + nomDe(w) + dit;
                }
            }
        }
        QVERIFY(vus > 10);
        QVERIFY2(fautes.isEmpty(), qPrintable(fautes.join(u'\n')));
        // A tool tip shows its text as it stands, too.
        QToolTip::showText({10, 10}, "<b>gras</b>", fenetre("Frmmain"));
        const auto bulle = [] {
            for (QWidget *w : QApplication::topLevelWidgets())
                if (w->inherits("QTipLabel"))
                    return static_cast<QLabel *>(w);
            return static_cast<QLabel *>(nullptr);
        };
        QTRY_VERIFY(bulle());
        QCOMPARE(bulle()->text(), "<b>gras</b>");
        QCOMPARE(bulle()->textFormat(), Qt::PlainText);
        QToolTip::hideText();
    }

    /// However narrow the window and large the letters, a sheet is as wide as what it stands in, with nothing beside it
    /// and short values whole.
    void chaqueFicheTientEnLargeur()
    {
        Ouverte s;
        QStringList hors;
        for (const auto &[taille, lettres] : {std::pair(QSize(860, 560), 10), {QSize(1280, 800), 10},
                 {QSize(1280, 800), 18}, {QSize(1920, 1080), 10}}) {
            s.bac.reglages.ecrire(Cle::FontSize, lettres);
            Q_EMIT s.demandes().apparence();
            fenetre("Frmmain")->resize(taille);
            for (int tri = 0; tri < General::NombreDeTris; ++tri) {
                cliquer(qPrintable(QStringLiteral("Tris(%1)").arg(tri)));
                auto *pile = trouver<QStackedWidget>("");
                auto *cadre = qobject_cast<QScrollArea *>(pile->parentWidget()->parentWidget());
                QTRY_VERIFY(!cadre->horizontalScrollBar()->isVisible());
                const auto coupes = [pile] { return debordants(*pile->currentWidget()); };
                if (!QTest::qWaitFor([&] { return coupes().isEmpty(); }, 2000))
                    hors << QStringLiteral("%1 %2:").arg(taille.width()).arg(lettres) << coupes();
            }
        }
        QVERIFY2(hors.isEmpty(), qPrintable(hors.join(u'\n')));
    }

    void aucuneLegendeNEstCoupee()
    {
        Ouverte s;
        QStringList coupees;
        for (const QString &langue : Traduction::Langues()) {
            Q_EMIT s.demandes().langue(langue);
            fenetre("Frmmain")->resize(1280, 800);
            for (const QByteArray &nom : noms()) {
                QWidget *forme = montrer(s, nom);
                // A layout follows its texts from the event loop.
                if (!QTest::qWaitFor([&] { return coupeesDans(forme).isEmpty(); }, 2000))
                    coupees << langue << coupeesDans(forme);
                if (nom != "Frmmain")
                    forme->window()->close();
            }
        }
        QVERIFY2(coupees.isEmpty(), qPrintable(coupees.join(u'\n')));
    }
};

JOUER(tst_tenue)
#include "tst_tenue.moc"
