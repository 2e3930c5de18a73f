#include "core/ui/Etoiles.h"

#include "core/ui/Legende.h"
#include "core/ui/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

namespace {

constexpr int Nombre = 5;

/// How much of the strip of stars each grade shows, in twips (1/1440 inch; 1/96 inch is one pixel).
constexpr int Largeurs[Nombre + 1] = {0, 250, 500, 700, 950, 1155};
constexpr qreal TwipsParPixel = 1440.0 / 96.0;
constexpr qreal Cote = Largeurs[Nombre] / TwipsParPixel / Nombre;

/// A five-pointed star in a square of side 1 around the origin.
QPainterPath etoile()
{
    QPainterPath chemin;
    for (int i = 0; i < 2 * Nombre; ++i) {
        const double rayon = i % 2 == 0 ? 0.5 : 0.21;
        const double angle = -std::numbers::pi / 2 + i * std::numbers::pi / Nombre;
        const QPointF point(rayon * std::cos(angle), rayon * std::sin(angle));
        i == 0 ? chemin.moveTo(point) : chemin.lineTo(point);
    }
    chemin.closeSubpath();
    return chemin;
}

}

Etoiles::Etoiles(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
}

void Etoiles::poserValeur(int valeur)
{
    m_texte.clear();
    m_valeur = std::clamp(valeur, 0, Nombre);
    update();
    Q_EMIT valeurChangee(m_valeur);
}

void Etoiles::poserTexte(const QString &texte)
{
    m_texte = texte;
    m_valeur = 0;
    update();
}

QSize Etoiles::sizeHint() const
{
    return {qRound(Nombre * Cote) + 8, std::max(qRound(Cote), fontMetrics().height()) + 4};
}

void Etoiles::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    if (hasFocus())
        Legende::DessinerFocus(p, *this);
    if (!m_texte.isEmpty()) {
        p.setPen(palette().color(foregroundRole()));
        p.drawText(rect().adjusted(4, 0, 0, 0), Qt::AlignVCenter, m_texte);
        return;
    }
    p.setRenderHint(QPainter::Antialiasing);
    const QPainterPath forme = etoile();
    const QRectF bande(4, 0, Largeurs[m_valeur] / TwipsParPixel, height());
    for (int i = 0; i < Nombre; ++i) {
        p.save();
        const QTransform place
            = QTransform::fromTranslate(4 + (i + 0.5) * Cote, height() / 2.0).scale(Cote - 2, Cote - 2);
        const QPainterPath dessin = place.map(forme);
        p.setPen(QPen(Theme::Trait(palette()), 1));
        p.drawPath(dessin);
        p.setClipRect(bande);
        p.setPen(QPen(Theme::Or(), 1));
        p.setBrush(Theme::Or());
        p.drawPath(dessin);
        p.restore();
    }
}

void Etoiles::mouseReleaseEvent(QMouseEvent *evenement)
{
    const int rang = static_cast<int>(std::floor((evenement->position().x() - 4) / Cote)) + 1;
    if (evenement->button() == Qt::LeftButton && rect().contains(evenement->position().toPoint()) && rang >= 1
        && rang <= Nombre)
        Q_EMIT choisie(rang);
}

void Etoiles::keyPressEvent(QKeyEvent *evenement)
{
    const int chiffre = evenement->key() - Qt::Key_0;
    if (chiffre >= 1 && chiffre <= Nombre)
        Q_EMIT choisie(chiffre);
    else
        QWidget::keyPressEvent(evenement);
}
