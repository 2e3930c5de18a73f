#include "core/ui/CadreImage.h"

#include "core/Images.h"
#include "core/ui/Theme.h"

#include <QCache>
#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QThreadPool>

namespace {

constexpr int CacheKio = 48 * 1024;

/// Decoded pictures, by file, date, size asked for.
QCache<QString, QImage> &cache()
{
    static QCache<QString, QImage> images(CacheKio);
    return images;
}

QString cleDe(const QString &chemin, const QSize &taille)
{
    const QFileInfo fichier(chemin);
    return QStringLiteral("%1|%2|%3|%4x%5")
        .arg(chemin)
        .arg(fichier.lastModified().toMSecsSinceEpoch())
        .arg(fichier.size())
        .arg(taille.width())
        .arg(taille.height());
}

}

CadreImage::CadreImage(QWidget *parent)
    : QWidget(parent)
{
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
    const QSize taille = size() * devicePixelRatioF();
    const QString cle = cleDe(m_chemin, taille);
    if (const QImage *connue = cache().object(cle))
        return recevoir(generation, *connue);
    const QPointer<CadreImage> soi(this);
    QThreadPool::globalInstance()->start([soi, generation, cle, chemin = m_chemin, taille] {
        const QImage image = Images::Decoder(chemin, taille);
        // Delivered through the application: the frame may be gone by then.
        QMetaObject::invokeMethod(qApp, [soi, generation, cle, image] {
            if (!image.isNull())
                cache().insert(cle, new QImage(image), static_cast<int>(image.sizeInBytes() / 1024));
            if (soi)
                soi->recevoir(generation, image);
        });
    });
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
    demander();
}

void CadreImage::mouseReleaseEvent(QMouseEvent *evenement)
{
    if (evenement->button() == Qt::LeftButton && rect().contains(evenement->position().toPoint()))
        Q_EMIT actionnee();
}
