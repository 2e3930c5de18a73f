#include "core/ui/Forme.h"

#include "core/ui/Aide.h"
#include "core/ui/Placement.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <QToolButton>

namespace {

/// How many of the events behind its showing a form waits for its frame.
constexpr int Patience = 20;

}

Forme::Forme(const QString &nom, QWidget *parent)
    : QWidget(parent, Qt::Window)
{
    setObjectName(nom);
    auto *aide = new QShortcut(QKeySequence::HelpContents, this);
    connect(aide, &QShortcut::activated, this, [this] { Aide::Ouvrir(objectName()); });
}

QStringList Forme::Brouillons()
{
    QStringList lignes;
    for (const QWidget *fenetre : QApplication::topLevelWidgets()) {
        const auto *forme = qobject_cast<const Forme *>(fenetre);
        const QString ligne = forme ? forme->brouillon() : QString();
        if (!ligne.isEmpty())
            lignes << ligne;
    }
    lignes.sort();
    return lignes;
}

bool Forme::event(QEvent *evenement)
{
    const auto sorte = evenement->type();
    if (sorte == QEvent::Show && !evenement->spontaneous())
        m_patience = Patience;
    const bool sePose = sorte == QEvent::Show || sorte == QEvent::Move || sorte == QEvent::Resize
        || sorte == QEvent::Paint || sorte == QEvent::WindowActivate;
    if (m_patience > 0 && sePose)
        QTimer::singleShot(0, this, &Forme::cadrer);
    return QWidget::event(evenement);
}

/// The frame is the window manager's: it is known only some time after the form has been shown.
void Forme::cadrer()
{
    if (m_patience == 0 || !isVisible())
        return;
    --m_patience;
    const bool libre = !(windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen));
    if (libre && Placement::Rentrer(*this))
        m_patience = 0;
}

void Forme::changeEvent(QEvent *evenement)
{
    if (evenement->type() == QEvent::LanguageChange)
        Traduire();
    QWidget::changeEvent(evenement);
}

void Forme::keyPressEvent(QKeyEvent *evenement)
{
    if (evenement->key() == Qt::Key_Escape)
        close();
    else if (!EstEntree(*evenement) || !presserSousLeClavier())
        QWidget::keyPressEvent(evenement);
}

bool Forme::EstEntree(const QKeyEvent &evenement)
{
    return evenement.key() == Qt::Key_Return || evenement.key() == Qt::Key_Enter;
}

bool Forme::presserSousLeClavier()
{
    auto *bouton = qobject_cast<QAbstractButton *>(focusWidget());
    const bool presse = qobject_cast<QPushButton *>(bouton) || qobject_cast<QToolButton *>(bouton);
    if (presse)
        bouton->click();
    return presse;
}
