#include "core/ui/TitreGroupe.h"

#include "core/ui/Theme.h"

#include <QPainter>

TitreGroupe::TitreGroupe(QWidget *parent)
    : QLabel(parent)
{
    QFont police = Theme::Taille(font(), 0.85, QFont::Bold);
    police.setCapitalization(QFont::AllUppercase);
    police.setLetterSpacing(QFont::AbsoluteSpacing, 0.8);
    setFont(police);
    setForegroundRole(QPalette::LinkVisited);
    setContentsMargins(0, Theme::Petit, 0, 3);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void TitreGroupe::paintEvent(QPaintEvent *evenement)
{
    QLabel::paintEvent(evenement);
    QPainter p(this);
    p.setPen(Theme::Trait(palette()));
    p.drawLine(0, height() - 1, width(), height() - 1);
}
