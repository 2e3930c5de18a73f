#include "core/ui/ChoixPlat.h"

#include "core/Texte.h"
#include "core/ui/Legende.h"
#include "core/ui/Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

namespace {

constexpr int Fleche = 7;
constexpr int Ecart = 6;

}

ChoixPlat::ChoixPlat(QWidget *parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setSizeAdjustPolicy(AdjustToContents);
}

QSize ChoixPlat::sizeHint() const
{
    const int largeur = fontMetrics().horizontalAdvance(currentText()) + Fleche + Ecart;
    return {largeur + 2 * Legende::MargeLaterale, fontMetrics().height() + 2 * Legende::MargeVerticale};
}

QSize ChoixPlat::minimumSizeHint() const
{
    return {Fleche + Ecart, sizeHint().height()};
}

void ChoixPlat::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    if (underMouse())
        p.fillRect(rect(), Theme::Survol(palette()));
    QRect r = rect().adjusted(Legende::MargeLaterale, 0, -Legende::MargeLaterale, 0);
    const int place = r.width() - Fleche - Ecart;
    const bool vide = currentText().isEmpty();
    const QString montre = vide ? QString() : fontMetrics().elidedText(currentText(), Qt::ElideRight, place);
    p.setPen(vide ? Theme::Trait(palette()) : palette().color(foregroundRole()));
    p.drawText(r.adjusted(0, 0, -Fleche - Ecart, 0), int(Qt::AlignVCenter) | Qt::TextSingleLine,
        vide && m_pointilles ? Texte::Pointilles().left(place) : montre);
    const int x = vide ? r.right() - Fleche : r.left() + fontMetrics().horizontalAdvance(montre) + Ecart;
    const QPointF milieu(x + Fleche / 2.0, height() / 2.0 + 1);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(Theme::Discret(palette()));
    p.drawPolygon(QPolygonF{{milieu.x() - Fleche / 2.0, milieu.y() - 2},
        {milieu.x() + Fleche / 2.0, milieu.y() - 2}, {milieu.x(), milieu.y() + 2.5}});
    if (hasFocus())
        Legende::DessinerFocus(p, *this);
}

void ChoixPlat::keyPressEvent(QKeyEvent *evenement)
{
    const int touche = evenement->key();
    // The arrow keys would store every value that they pass; Enter opens the list.
    if (touche == Qt::Key_Return || touche == Qt::Key_Enter || touche == Qt::Key_Space)
        showPopup();
    else if (touche == Qt::Key_Escape || touche == Qt::Key_Tab || touche == Qt::Key_Backtab)
        QComboBox::keyPressEvent(evenement);
    else
        evenement->ignore();
}

void ChoixPlat::wheelEvent(QWheelEvent *evenement)
{
    evenement->ignore();
}

void ChoixPlat::enterEvent(QEnterEvent *evenement)
{
    update();
    QComboBox::enterEvent(evenement);
}

void ChoixPlat::leaveEvent(QEvent *evenement)
{
    update();
    QComboBox::leaveEvent(evenement);
}
