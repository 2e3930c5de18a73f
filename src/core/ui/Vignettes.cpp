#include "core/ui/Vignettes.h"

#include "core/Images.h"

#include <QCache>
#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QPointer>
#include <QThreadPool>

namespace {

constexpr int CacheKio = 64 * 1024;

/// Decoded pictures, by file, date and size asked for.
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

const QImage *Vignettes::Connue(const QString &chemin, const QSize &taille)
{
    return cache().object(cleDe(chemin, taille));
}

void Vignettes::Demander(QObject *receveur, const QString &chemin, const QSize &taille,
    const std::function<void(const QImage &)> &recevoir)
{
    const QString cle = cleDe(chemin, taille);
    if (const QImage *connue = cache().object(cle))
        return recevoir(*connue);
    QThreadPool::globalInstance()->start(
        [receveur = QPointer<QObject>(receveur), cle, chemin, taille, recevoir] {
            const QImage image = Images::Decoder(chemin, taille);
            // Delivered through the application: the receiver may be gone by then.
            QMetaObject::invokeMethod(qApp, [receveur, cle, image, recevoir] {
                cache().insert(cle, new QImage(image), static_cast<int>(image.sizeInBytes() / 1024) + 1);
                if (receveur)
                    recevoir(image);
            });
        });
}
