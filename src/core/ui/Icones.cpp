#include "core/ui/Icones.h"

#include "core/ui/Theme.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>

namespace {

QString fichier(const QString &nom)
{
    return QStringLiteral(":/icones/%1.svg").arg(nom);
}

QImage dessiner(const QString &nom, const QSize &taille, const QColor &couleur)
{
    QFile source(fichier(nom));
    if (!source.open(QIODevice::ReadOnly))
        return {};
    QByteArray svg = source.readAll().replace("#000000", couleur.name().toLatin1());
    QBuffer tampon(&svg);
    QImageReader lecteur(&tampon, "svg");
    lecteur.setScaledSize(taille);
    return lecteur.read();
}

class Moteur : public QIconEngine
{
public:
    Moteur(const QString &nom, const QString &marque, QPalette::ColorRole couleur)
        : m_nom(nom)
        , m_marque(marque)
        , m_couleur(couleur)
    {
    }

    QIconEngine *clone() const override { return new Moteur(*this); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State etat) override
    {
        const qreal rapport = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * rapport, mode, etat));
    }

    QPixmap pixmap(const QSize &taille, QIcon::Mode mode, QIcon::State etat) override
    {
        const QColor couleur = teinte(mode, etat);
        const QString cle
            = QStringLiteral("icone-%1-%2-%3-%4").arg(m_nom, m_marque, couleur.name()).arg(taille.width());
        QPixmap image;
        if (!QPixmapCache::find(cle, &image)) {
            image = composer(taille, couleur);
            QPixmapCache::insert(cle, image);
        }
        return image;
    }

    QPixmap scaledPixmap(const QSize &taille, QIcon::Mode mode, QIcon::State etat, qreal) override
    {
        return pixmap(taille, mode, etat);
    }

private:
    QColor teinte(QIcon::Mode mode, QIcon::State etat) const
    {
        const QPalette palette = QGuiApplication::palette();
        if (mode == QIcon::Disabled)
            return palette.color(QPalette::Disabled, QPalette::ButtonText);
        if (mode == QIcon::Selected || etat == QIcon::On)
            return palette.color(QPalette::HighlightedText);
        return palette.color(m_couleur);
    }

    QPixmap composer(const QSize &taille, const QColor &couleur) const
    {
        QImage image = dessiner(m_nom, taille, couleur);
        if (!m_marque.isEmpty() && !image.isNull()) {
            const QSize petite = taille * 0.6;
            const QPoint coin(taille.width() - petite.width(), taille.height() - petite.height());
            QPainter(&image).drawImage(
                coin, dessiner(m_marque, petite, Theme::Rouge(QGuiApplication::palette())));
        }
        return QPixmap::fromImage(image);
    }

    QString m_nom;
    QString m_marque;
    QPalette::ColorRole m_couleur;
};

}

QIcon Icones::Charger(const QString &nom)
{
    return Charger(nom, QPalette::Link);
}

QIcon Icones::Charger(const QString &nom, QPalette::ColorRole couleur)
{
    return QIcon(new Moteur(nom, {}, couleur));
}

QIcon Icones::AvecMarque(const QString &nom, const QString &marque)
{
    return QIcon(new Moteur(nom, marque, QPalette::Link));
}

QIcon Icones::Programme()
{
    return QIcon(fichier(QStringLiteral("bulleo")));
}
