#include "core/ui/Carte.h"

#include "core/ui/Theme.h"

#include <QPainter>

Carte::Carte(QWidget *parent)
    : QWidget(parent)
{
    setContentsMargins(Theme::Grand, Theme::Moyen, Theme::Grand, Theme::Moyen);
}

void Carte::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Theme::Trait(palette()));
    p.setBrush(Theme::Carte(palette()));
    p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
}
