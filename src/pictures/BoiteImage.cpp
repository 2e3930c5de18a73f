#include "pictures/BoiteImage.h"

#include "core/ui/Theme.h"
#include "pictures/Scan.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QUrl>

BoiteImage::BoiteImage(QWidget *parent)
    : QWidget(parent)
{
    setAcceptDrops(true);
}

void BoiteImage::montrer(const QImage &image)
{
    m_image = image;
    m_reduite = {};
    update();
}

void BoiteImage::poserLegende(const QString &legende)
{
    m_legende = legende;
    update();
}

void BoiteImage::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setPen(QPen(Theme::Trait(palette()), 1, m_image.isNull() ? Qt::DashLine : Qt::SolidLine));
    p.setBrush(palette().color(QPalette::AlternateBase));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    if (m_image.isNull()) {
        p.setPen(Theme::Discret(palette()));
        p.drawText(rect().adjusted(8, 8, -8, -8), int(Qt::AlignCenter) | Qt::TextWordWrap, m_legende);
        return;
    }
    const QRect place = Scan::Ajuster(m_image.size(), size() - QSize(2, 2));
    if (m_reduite.isNull())
        m_reduite = m_image.scaled(
            place.size() * devicePixelRatioF(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    p.drawImage(place.translated(1, 1), m_reduite);
}

void BoiteImage::resizeEvent(QResizeEvent *evenement)
{
    QWidget::resizeEvent(evenement);
    m_reduite = {};
}

void BoiteImage::dragEnterEvent(QDragEnterEvent *evenement)
{
    const QList<QUrl> urls = evenement->mimeData()->urls();
    if (urls.size() == 1 && urls.first().isLocalFile())
        evenement->acceptProposedAction();
}

void BoiteImage::dropEvent(QDropEvent *evenement)
{
    evenement->acceptProposedAction();
    Q_EMIT fichierDepose(evenement->mimeData()->urls().first().toLocalFile());
}
