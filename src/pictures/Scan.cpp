#include "pictures/Scan.h"

#include "core/Dossier.h"
#include "core/Error.h"
#include "core/Images.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>
#include <cmath>

namespace {

constexpr QSize SansLimite(1 << 16, 1 << 16);
constexpr int ColonnesParPause = 32;

/// Rounded to a whole number, halves to the even one: what the processor's own addition does when the number is
/// pushed to where its last bit is worth one.
inline double arrondi(double valeur)
{
    constexpr double Aimant = 6755399441055744.0; // 1.5 * 2^52
    return (valeur + Aimant) - Aimant;
}

/// The four points of the result that lie around its middle as (x, y) does, with the points that they come from.
class Tour
{
public:
    Tour(const QImage &source, QImage &destination, double angle)
        : m_source(source)
        , m_destination(destination)
        , m_cos(std::cos(angle))
        , m_sin(std::sin(angle))
        , m_lignesS(reinterpret_cast<const QRgb *>(source.constBits()))
        , m_lignesD(reinterpret_cast<QRgb *>(destination.bits()))
        , m_pasS(source.bytesPerLine() / qsizetype(sizeof(QRgb)))
        , m_pasD(destination.bytesPerLine() / qsizetype(sizeof(QRgb)))
    {
    }

    void tourner(int x, int y)
    {
        // The distance is rounded, then laid along the turned direction.
        const double distance = std::sqrt(double(x) * x + double(y) * y);
        const double facteur = distance > 0 ? arrondi(distance) / distance : 0;
        const int c = static_cast<int>(arrondi(facteur * (x * m_cos - y * m_sin)));
        const int s = static_cast<int>(arrondi(facteur * (y * m_cos + x * m_sin)));
        copier(c, s, x, y);
        copier(-c, -s, -x, -y);
        copier(s, -c, y, -x);
        copier(-s, c, -y, x);
    }

private:
    /// One point, given from both middles; nothing when either is outside.
    void copier(int xs, int ys, int xd, int yd)
    {
        xs += m_source.width() / 2;
        ys += m_source.height() / 2;
        xd += m_destination.width() / 2;
        yd += m_destination.height() / 2;
        const bool dedans = unsigned(xs) < unsigned(m_source.width())
            && unsigned(ys) < unsigned(m_source.height()) && unsigned(xd) < unsigned(m_destination.width())
            && unsigned(yd) < unsigned(m_destination.height());
        if (dedans)
            m_lignesD[yd * m_pasD + xd] = m_lignesS[ys * m_pasS + xs];
    }

    const QImage &m_source;
    QImage &m_destination;
    double m_cos;
    double m_sin;
    const QRgb *m_lignesS;
    QRgb *m_lignesD;
    qsizetype m_pasS;
    qsizetype m_pasD;
};

}

QImage Scan::Tourner(const QImage &image, double angle, const std::function<void()> &entreColonnes)
{
    const QImage source = image.convertToFormat(QImage::Format_RGB32);
    const bool couchee = std::abs(std::sin(angle)) > std::abs(std::cos(angle));
    QImage destination(couchee ? source.size().transposed() : source.size(), QImage::Format_RGB32);
    destination.fill(Qt::white);
    Tour tour(source, destination, angle);
    // Up to the half itself: of an even number of columns the first one lies that far from the middle.
    const int n = std::max(destination.width() / 2, destination.height() / 2);
    for (int x = 0; x <= n; ++x) {
        for (int y = 0; y <= n; ++y)
            tour.tourner(x, y);
        if (entreColonnes && x % ColonnesParPause == 0)
            entreColonnes();
    }
    return destination;
}

QImage Scan::Miroir(const QImage &source, Qt::Orientation sens)
{
    return source.mirrored(sens == Qt::Horizontal, sens == Qt::Vertical);
}

QRect Scan::Ajuster(const QSize &image, const QSize &cadre)
{
    QRect place(QPoint(), image.scaled(cadre, Qt::KeepAspectRatio));
    place.moveCenter(QRect(QPoint(), cadre).center());
    return place;
}

QImage Scan::Ouvrir(const QString &chemin)
{
    return QFileInfo(chemin).isFile() ? Images::Decoder(chemin, SansLimite) : QImage();
}

bool Scan::PeutEcrire(const QString &chemin)
{
    return QImageWriter::supportedImageFormats().contains(QFileInfo(chemin).suffix().toLower().toLatin1());
}

void Scan::Enregistrer(const QImage &image, const QString &chemin)
{
    const auto echec = [&](const QString &details) {
        throw Error(
            QCoreApplication::translate("Scan", "L'image ne peut pas être enregistrée."), chemin, details);
    };
    QSaveFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly))
        echec(fichier.errorString());
    QImageWriter ecriture(&fichier, QFileInfo(chemin).suffix().toLower().toLatin1());
    constexpr int BonneQualite = 92;
    ecriture.setQuality(BonneQualite);
    if (!ecriture.write(image)) {
        fichier.cancelWriting();
        echec(ecriture.errorString());
    }
    if (!fichier.commit())
        echec(fichier.errorString());
}

QString Scan::NomPropose(const QString &chemin)
{
    if (chemin.endsWith(QLatin1String("jpg"), Qt::CaseInsensitive))
        return chemin.chopped(3) + QStringLiteral("bmp");
    if (PeutEcrire(chemin))
        return chemin;
    const QFileInfo fichier(chemin);
    return fichier.path() + u'/' + fichier.completeBaseName() + QStringLiteral(".bmp");
}

QString Scan::Brouillon()
{
    return Dossier::courant().chemin(QStringLiteral("temp.bmp"));
}

QImage Scan::ParLeBrouillon(const QImage &image)
{
    Enregistrer(image, Brouillon());
    return Ouvrir(Brouillon());
}
