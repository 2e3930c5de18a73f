#include "core/ui/CadreImage.h"

#include "core/Images.h"
#include "core/ui/Theme.h"
#include "core/ui/Vignettes.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QUrl>

namespace {

constexpr int AttenteMs = 120;

}

CadreImage::CadreImage(QWidget *parent)
    : QWidget(parent)
{
    m_attente.setSingleShot(true);
    connect(&m_attente, &QTimer::timeout, this, &CadreImage::demander);
}

void CadreImage::montrer(const QString &nom)
{
    m_chemin = Images::Trouver(nom);
    setToolTip(m_chemin.isEmpty() ? QString() : QFileInfo(m_chemin).fileName().toHtmlEscaped());
    demander();
}

void CadreImage::poserLegende(const QString &legende)
{
    m_legende = legende;
    update();
}

void CadreImage::demander()
{
    const int generation = ++m_generation;
    if (m_chemin.isEmpty() || size().isEmpty())
        return recevoir(generation, {});
    Vignettes::Demander(this, m_chemin, size() * devicePixelRatioF(),
        [this, generation](const QImage &image) { recevoir(generation, image); });
}

void CadreImage::recevoir(int generation, const QImage &image)
{
    if (generation != m_generation)
        return;
    m_image = image;
    m_image.setDevicePixelRatio(devicePixelRatioF());
    update();
}

void CadreImage::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF cadre = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    if (m_image.isNull()) {
        p.setPen(QPen(Theme::Trait(palette()), 1, Qt::DashLine));
        p.setBrush(palette().color(QPalette::AlternateBase));
        p.drawRoundedRect(cadre, 3, 3);
        p.setPen(Theme::Discret(palette()));
        p.drawText(rect().adjusted(8, 8, -8, -8), int(Qt::AlignCenter) | Qt::TextWordWrap, m_legende);
        return;
    }
    QRectF place(QPointF(), m_image.deviceIndependentSize().scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    place.moveTop(0);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawImage(place, m_image);
    p.setPen(Theme::Trait(palette()));
    p.drawRect(place.adjusted(0.5, 0.5, -0.5, -0.5));
}

void CadreImage::resizeEvent(QResizeEvent *evenement)
{
    QWidget::resizeEvent(evenement);
    // While a splitter is dragged the picture is only stretched.
    m_attente.start(m_image.isNull() ? 0 : AttenteMs);
}

void CadreImage::mouseReleaseEvent(QMouseEvent *evenement)
{
    if (evenement->button() == Qt::LeftButton && rect().contains(evenement->position().toPoint()))
        Q_EMIT actionnee();
}

void CadreImage::dragEnterEvent(QDragEnterEvent *evenement)
{
    const QList<QUrl> urls = evenement->mimeData()->urls();
    if (urls.size() == 1 && urls.first().isLocalFile())
        evenement->acceptProposedAction();
}

void CadreImage::dropEvent(QDropEvent *evenement)
{
    evenement->acceptProposedAction();
    Q_EMIT fichierDepose(evenement->mimeData()->urls().first().toLocalFile());
}
