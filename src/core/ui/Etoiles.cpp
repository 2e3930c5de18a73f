#include "core/ui/Etoiles.h"

#include "core/ui/Theme.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

namespace {

constexpr int Nombre = 5;
constexpr int Cote = 15;

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
    return {Nombre * Cote + 8, std::max(Cote, fontMetrics().height()) + 4};
}

void Etoiles::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    if (!m_texte.isEmpty()) {
        p.drawText(rect().adjusted(4, 0, 0, 0), Qt::AlignVCenter, m_texte);
        return;
    }
    p.setRenderHint(QPainter::Antialiasing);
    const QPainterPath forme = etoile();
    for (int i = 0; i < Nombre; ++i) {
        p.save();
        p.translate(4 + (i + 0.5) * Cote, height() / 2.0);
        p.scale(Cote - 2, Cote - 2);
        const bool pleine = i < m_valeur;
        p.setPen(QPen(pleine ? Theme::Or() : Theme::Trait(palette()), 0.08));
        p.setBrush(pleine ? QBrush(Theme::Or()) : Qt::NoBrush);
        p.drawPath(forme);
        p.restore();
    }
}
