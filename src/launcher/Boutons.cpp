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
    // It is drawn anew when the mouse comes and goes.
    setAttribute(Qt::WA_Hover);
}

void BoutonGroupe::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor bleu = palette().color(QPalette::Highlight);
    const QColor papier = palette().color(QPalette::HighlightedText);
    const bool surPapier = isChecked() || underMouse() || hasFocus();
    p.setPen(Qt::NoPen);
    p.setBrush(surPapier ? papier : bleu.lighter(125));
    const QRectF r = QRectF(rect()).adjusted(1, 1, -1, -1);
    p.drawRoundedRect(r, 6, 6);
    if (hasFocus()) {
        p.setPen(QPen(bleu, 1.5, Qt::DotLine));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(r.adjusted(3, 3, -3, -3), 4, 4);
    }
    // On paper a colour that the launcher gave shows, else the ground's own.
    const bool donnee = testAttribute(Qt::WA_SetPalette);
    p.setPen(surPapier && !donnee ? bleu : palette().color(QPalette::ButtonText));
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
