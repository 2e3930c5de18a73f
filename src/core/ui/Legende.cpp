#include "core/ui/Legende.h"

#include "core/Texte.h"
#include "core/ui/Icones.h"
#include "core/ui/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int MinimumDeLettres = 6;
constexpr int CoteFleche = 14;
/// No caption is wide enough for more, and a text of a whole book is not to be measured at each drawing.
constexpr int LettresMontrees = 600;

}

Legende::Legende(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    montrer({});
}

void Legende::montrer(const QString &valeur)
{
    const QString montree = Texte::EstVide(valeur) ? Texte::Pointilles() : valeur;
    if (montree == text())
        return;
    setText(montree);
    updateGeometry();
}

void Legende::poserLien(const QString &explication)
{
    m_lien = true;
    m_explication = explication;
    setToolTip(explication);
}

bool Legende::estVide() const
{
    return text() == Texte::Pointilles();
}

QSize Legende::sizeHint() const
{
    const int hauteur = fontMetrics().height() + 2 * MargeVerticale;
    const int largeur = estVide() ? MinimumDeLettres * fontMetrics().averageCharWidth()
                                  : fontMetrics().horizontalAdvance(ligne());
    return {largeur + 2 * MargeLaterale, hauteur};
}

QSize Legende::minimumSizeHint() const
{
    return {std::min(MinimumDeLettres * fontMetrics().averageCharWidth(), sizeHint().width()),
        sizeHint().height()};
}

void Legende::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    if (underMouse() && focusPolicy() != Qt::NoFocus)
        p.fillRect(rect(), Theme::Survol(palette()));
    const QRect r = placeDuTexte();
    if (estVide()) {
        p.setPen(Theme::Trait(palette()));
        p.drawText(r, int(Qt::AlignVCenter) | Qt::TextSingleLine, text().left(r.width()));
    } else {
        const QString montre
            = estCoupee() ? fontMetrics().elidedText(ligne(), Qt::ElideRight, r.width()) : ligne();
        p.setPen(m_lien ? Theme::Bleu(palette()) : palette().color(foregroundRole()));
        p.drawText(
            r, int(alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter | Qt::TextSingleLine, montre);
    }
    if (mene())
        Icones::Charger(QStringLiteral("lien")).paint(&p, fleche());
    if (hasFocus())
        DessinerFocus(p, *this);
}

void Legende::DessinerFocus(QPainter &p, const QWidget &valeur)
{
    p.setPen(QPen(Theme::Bleu(valeur.palette()), 1.5));
    p.setBrush(Qt::NoBrush);
    p.setRenderHint(QPainter::Antialiasing);
    p.drawRoundedRect(QRectF(valeur.rect()).adjusted(1, 1, -1, -1), 3, 3);
}

QRect Legende::fleche() const
{
    const int cote = std::min(height(), CoteFleche);
    return {width() - cote - MargeLaterale, (height() - cote) / 2, cote, cote};
}

void Legende::agir(bool ouvrir)
{
    if (ouvrir && mene())
        Q_EMIT ouvertureDemandee(text());
    else
        Q_EMIT actionnee();
}

void Legende::mouseReleaseEvent(QMouseEvent *evenement)
{
    const QPoint point = evenement->position().toPoint();
    if (evenement->button() == Qt::LeftButton && rect().contains(point))
        agir(evenement->modifiers().testFlag(Qt::ControlModifier) || (mene() && fleche().contains(point)));
}

void Legende::keyPressEvent(QKeyEvent *evenement)
{
    const int touche = evenement->key();
    if (touche == Qt::Key_Return || touche == Qt::Key_Enter || touche == Qt::Key_Space)
        agir(evenement->modifiers().testFlag(Qt::ControlModifier));
    else
        QLabel::keyPressEvent(evenement);
}

QString Legende::ligne() const
{
    return text().left(LettresMontrees).simplified();
}

QRect Legende::placeDuTexte() const
{
    return rect().adjusted(MargeLaterale, 0, -MargeLaterale - (mene() ? fleche().width() : 0), 0);
}

bool Legende::estCoupee() const
{
    return !estVide() && fontMetrics().horizontalAdvance(ligne()) > placeDuTexte().width();
}

void Legende::enterEvent(QEnterEvent *evenement)
{
    QStringList lignes{estCoupee() ? ligne() : QString(), m_explication};
    lignes.removeAll(QString());
    setToolTip(lignes.join(u'\n'));
    update();
    QLabel::enterEvent(evenement);
}

void Legende::leaveEvent(QEvent *evenement)
{
    update();
    QLabel::leaveEvent(evenement);
}
