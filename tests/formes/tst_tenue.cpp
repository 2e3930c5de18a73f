#include "browse/Frmmain.h"
#include "core/ui/Legende.h"
#include "support/Seance.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMetaEnum>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTabBar>
#include <QToolButton>

namespace {

/// Opens a form as the program does; the two that edit a field come by a field of the sheet.
QWidget *afficher(Seance &s, const QByteArray &nom)
{
    const bool champ = nom.startsWith("FrmModif");
    if (champ) {
        QTest::mouseClick(Seance::trouver<QWidget>(nom == "FrmModif" ? "Scena" : "PrixA"), Qt::LeftButton);
    } else if (nom != "Frmmain") {
        Q_EMIT s.demandes().forme(static_cast<Forme::Nom>(QMetaEnum::fromType<Forme::Nom>().keyToValue(nom)));
    }
    QTest::qWait(30);
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
    void leClavierVaPartout_data() { formes(); }

    void leClavierVaPartout()
    {
        QFETCH(QByteArray, nom);
        Ouverte s;
        QWidget *forme = afficher(s, nom);
        QVERIFY(forme && forme->isVisible());
        forme->activateWindow();
        QTRY_VERIFY(forme->isActiveWindow());
        const QSet<QWidget *> atteints = parcourir(forme);
        QVERIFY(atteints.size() > 1);
        QStringList hors;
        QStringList anonymes;
        QStringList muets;
        for (QWidget *w : forme->findChildren<QWidget *>()) {
            if (!estUnControle(w))
                continue;
            if (w->accessibleName().isEmpty())
                anonymes << nomDe(w);
            const bool atteint = atteints.contains(w) || estAtteintParUnAutre(w, atteints);
            if (!atteint)
                hors << nomDe(w);
            if (!atteints.contains(w))
                continue;
            forme->setFocus();
            const QImage sans = w->grab().toImage();
            w->setFocus(Qt::TabFocusReason);
            if (w->hasFocus() && w->grab().toImage() == sans)
                muets << nomDe(w);
        }
        QVERIFY2(anonymes.isEmpty(), qPrintable(anonymes.join(u'\n')));
        QVERIFY2(hors.isEmpty(), qPrintable(hors.join(u'\n')));
        QVERIFY2(muets.isEmpty(), qPrintable(muets.join(u'\n')));
    }

    void aucuneLegendeNEstCoupee_data()
    {
        QTest::addColumn<QString>("langue");
        for (const char *langue : {"Français", "English", "Deutsch", "Español", "Italiano", "Nederlands"})
            QTest::newRow(langue) << QString::fromUtf8(langue) + QStringLiteral(".lng");
    }

    void aucuneLegendeNEstCoupee()
    {
        QFETCH(QString, langue);
        Ouverte s;
        Q_EMIT s.demandes().langue(langue);
        fenetre("Frmmain")->resize(1280, 800);
        QStringList coupees;
        const QMetaEnum noms = QMetaEnum::fromType<Forme::Nom>();
        for (int i = 0; i < noms.keyCount(); ++i) {
            QWidget *forme = afficher(s, noms.key(i));
            // A layout follows its texts from the event loop.
            QStringList ici = coupeesDans(forme);
            for (int essai = 0; !ici.isEmpty() && essai < 40; ++essai) {
                QTest::qWait(50);
                ici = coupeesDans(forme);
            }
            coupees << ici;
            if (i > 0)
                forme->close();
        }
        QVERIFY2(coupees.isEmpty(), qPrintable(coupees.join(u'\n')));
    }

private:
    static void formes()
    {
        QTest::addColumn<QByteArray>("nom");
        const QMetaEnum noms = QMetaEnum::fromType<Forme::Nom>();
        for (int i = 0; i < noms.keyCount(); ++i)
            QTest::newRow(noms.key(i)) << QByteArray(noms.key(i));
    }
};

JOUER(tst_tenue)
#include "tst_tenue.moc"
