#include "core/ui/Suivi.h"

#include <QApplication>
#include <QEvent>
#include <QProgressBar>
#include <QPushButton>

namespace {

bool estUneEntree(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

}

Suivi::Suivi(QProgressBar *barre, QPushButton *annuler)
    : m_barre(barre)
    , m_annuler(annuler)
{
    m_barre->setValue(0);
    m_barre->show();
    m_annuler->show();
    connect(m_annuler, &QPushButton::clicked, this, [this] { m_annule = true; });
    qApp->installEventFilter(this);
}

Suivi::~Suivi()
{
    qApp->removeEventFilter(this);
    m_barre->hide();
    m_annuler->hide();
}

bool Suivi::avancer(int pourcent)
{
    m_barre->setValue(pourcent);
    QCoreApplication::processEvents();
    return !m_annule;
}

bool Suivi::eventFilter(QObject *objet, QEvent *evenement)
{
    // A shortcut goes to an action, which is no widget.
    if (evenement->type() == QEvent::Shortcut)
        return true;
    if (!objet->isWidgetType() || objet == m_annuler || !estUneEntree(evenement->type()))
        return QObject::eventFilter(objet, evenement);
    if (evenement->type() == QEvent::Close)
        evenement->ignore();
    return true;
}
