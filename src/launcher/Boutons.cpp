#include "launcher/Boutons.h"

#include "core/ui/Theme.h"

#include <QPaintEvent>
#include <QPainter>

BoutonGroupe::BoutonGroupe(QWidget *parent)
    : QToolButton(parent)
{
    setCheckable(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMinimumHeight(44);
}

void BoutonGroupe::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor bleu = palette().color(QPalette::Highlight);
    const QColor papier = palette().color(QPalette::HighlightedText);
    p.setPen(hasFocus() ? QPen(papier, 1.5) : QPen(Qt::NoPen));
    p.setBrush(isChecked() ? papier : bleu.lighter(underMouse() ? 150 : 125));
    p.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
    p.setPen(isChecked() ? bleu : papier);
    p.setFont(Theme::Taille(font(), 1, isChecked() ? QFont::Bold : QFont::Normal));
    p.drawText(rect().adjusted(Theme::Moyen, 0, -Theme::Petit, 0), Qt::AlignVCenter, text());
}

GrosBouton::GrosBouton(QWidget *parent)
    : QToolButton(parent)
{
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setIconSize({34, 34});
    setMinimumSize(170, 96);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void GrosBouton::paintEvent(QPaintEvent *evenement)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF r = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -3.5);
    const bool enfonce = isDown();
    p.setPen(Qt::NoPen);
    p.setBrush(palette().color(QPalette::Shadow));
    if (!enfonce)
        p.drawRoundedRect(r.translated(0, 3), 8, 8);
    QLinearGradient fond(r.topLeft(), r.bottomLeft());
    fond.setColorAt(0, palette().color(QPalette::Base));
    fond.setColorAt(1, palette().color(QPalette::Midlight));
    p.setPen(isChecked() ? QPen(Theme::Bleu(palette()), 2) : QPen(Theme::Trait(palette())));
    p.setBrush(fond);
    p.drawRoundedRect(enfonce ? r.translated(0, 2) : r, 8, 8);
    p.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    const QRect icone(
        QPoint((width() - iconSize().width()) / 2, height() / 2 - iconSize().height() + 2), iconSize());
    icon().paint(&p, icone, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    p.drawText(rect().adjusted(6, height() / 2 + 8, -6, -8),
        int(Qt::AlignHCenter) | Qt::AlignTop | Qt::TextWordWrap, text());
    if (hasFocus()) {
        p.setPen(QPen(Theme::Bleu(palette()), 1.5, Qt::DotLine));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(r.adjusted(4, 4, -4, -4), 5, 5);
    }
    evenement->accept();
}
