#include "core/ui/Vignettes.h"

#include "core/Images.h"

#include <QCache>
#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <QPointer>
#include <QThreadPool>
#include <vector>

namespace {

constexpr int CacheKio = 64 * 1024;

/// Decoded pictures, by file, date and size asked for.
QCache<QString, QImage> &cache()
{
    static QCache<QString, QImage> images(CacheKio);
    return images;
}

/// Who waits for a picture that is being decoded.
struct Demande
{
    QPointer<QObject> receveur;
    std::function<void(const QImage &)> recevoir;
};
QHash<QString, std::vector<Demande>> &enAttente()
{
    static QHash<QString, std::vector<Demande>> demandes;
    return demandes;
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
    enAttente()[cle].push_back({QPointer<QObject>(receveur), recevoir});
    if (enAttente()[cle].size() > 1)
        return; // already on its way, for another receiver
    QThreadPool::globalInstance()->start([cle, chemin, taille] {
        const QImage image = Images::Decoder(chemin, taille);
        // Delivered through the application: the receiver may be gone by then.
        QMetaObject::invokeMethod(qApp, [cle, image] {
            cache().insert(cle, new QImage(image), static_cast<int>(image.sizeInBytes() / 1024) + 1);
            for (const Demande &demande : enAttente().take(cle)) {
                if (demande.receveur)
                    demande.recevoir(image);
            }
        });
    });
}
