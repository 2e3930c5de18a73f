#include "core/ui/Depot.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace {

/// The one local file that is dragged; empty for anything else.
QString fichierDe(const QDropEvent &evenement)
{
    const QList<QUrl> urls = evenement.mimeData()->urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

}

Depot::Depot(QWidget *sur, std::function<void(const QString &)> recevoir)
    : QObject(sur)
    , m_recevoir(std::move(recevoir))
{
    sur->setAcceptDrops(true);
    sur->installEventFilter(this);
}

bool Depot::eventFilter(QObject *objet, QEvent *evenement)
{
    const bool entre = evenement->type() == QEvent::DragEnter;
    if (!entre && evenement->type() != QEvent::Drop)
        return QObject::eventFilter(objet, evenement);
    auto *depot = static_cast<QDropEvent *>(evenement);
    const QString chemin = fichierDe(*depot);
    if (chemin.isEmpty())
        return false;
    depot->acceptProposedAction();
    if (!entre)
        QMetaObject::invokeMethod(
            this, [this, chemin] { m_recevoir(chemin); }, Qt::QueuedConnection);
    return true;
}
