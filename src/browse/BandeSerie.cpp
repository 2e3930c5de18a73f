#include "browse/BandeSerie.h"

#include "core/ui/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int Largeur = 24;
constexpr int Hauteur = 17;
constexpr int Ecart = 4;
constexpr int LignesMax = 3;

}

BandeSerie::BandeSerie(QWidget *parent)
    : QWidget(parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFont(Theme::Taille(font(), 0.8));
}

void BandeSerie::montrer(const std::vector<InfosAlbum::Place> &bande, int courant)
{
    m_bande = bande;
    m_courant = courant;
    cadrer();
    updateGeometry();
    update();
}

QSize BandeSerie::sizeHint() const
{
    const int parLigne = std::max(1, (width() + Ecart) / (Largeur + Ecart));
    const int lignes = std::clamp((static_cast<int>(m_bande.size()) + parLigne - 1) / parLigne, 1, LignesMax);
    return {4 * (Largeur + Ecart), lignes * (Hauteur + Ecart)};
}

/// Chooses the stretch of a long series that is shown: the current tome stands in its middle.
void BandeSerie::cadrer()
{
    const int parLigne = std::max(1, (width() + Ecart) / (Largeur + Ecart));
    const int nombre = static_cast<int>(m_bande.size());
    m_visibles = std::min(nombre, parLigne * LignesMax);
    int rang = 0;
    while (rang < nombre && m_bande[static_cast<std::size_t>(rang)].num != m_courant)
        ++rang;
    m_premiere = std::clamp(rang - m_visibles / 2, 0, nombre - m_visibles);
}

QRect BandeSerie::caseDe(int rang) const
{
    const int parLigne = std::max(1, (width() + Ecart) / (Largeur + Ecart));
    return {(rang % parLigne) * (Largeur + Ecart), (rang / parLigne) * (Hauteur + Ecart), Largeur, Hauteur};
}

int BandeSerie::rangSous(const QPoint &point) const
{
    for (int i = 0; i < m_visibles; ++i) {
        if (caseDe(i).contains(point))
            return m_premiere + i;
    }
    return -1;
}

void BandeSerie::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < m_visibles; ++i) {
        const int rang = m_premiere + i;
        const InfosAlbum::Place &place = m_bande[static_cast<std::size_t>(rang)];
        const QRectF r = QRectF(caseDe(i)).adjusted(0.5, 0.5, -0.5, -0.5);
        const bool trou = place.num == 0;
        const QColor fond = place.num == m_courant ? Theme::FondRouge(palette()) : Theme::FondBleu(palette());
        p.setPen(trou ? QPen(palette().color(QPalette::Shadow), 1, Qt::DashLine) : QPen(Qt::NoPen));
        p.setBrush(trou ? QBrush(Qt::NoBrush) : QBrush(fond));
        p.drawRoundedRect(r, 2, 2);
        p.setPen(trou ? Theme::Discret(palette()) : palette().color(QPalette::HighlightedText));
        p.drawText(r, Qt::AlignCenter, place.tome == 0 ? QStringLiteral("·") : QString::number(place.tome));
    }
    if (hasFocus()) {
        p.setPen(QPen(Theme::Bleu(palette()), 1.5));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    }
}

void BandeSerie::resizeEvent(QResizeEvent *evenement)
{
    QWidget::resizeEvent(evenement);
    cadrer();
    if (evenement->oldSize().width() != width())
        updateGeometry();
}

void BandeSerie::mouseReleaseEvent(QMouseEvent *evenement)
{
    const int rang = rangSous(evenement->position().toPoint());
    if (evenement->button() == Qt::LeftButton && rang >= 0 && m_bande[static_cast<std::size_t>(rang)].num > 0)
        Q_EMIT albumDemande(m_bande[static_cast<std::size_t>(rang)].num);
}

void BandeSerie::mouseMoveEvent(QMouseEvent *evenement)
{
    const int rang = rangSous(evenement->position().toPoint());
    const bool possede = rang >= 0 && m_bande[static_cast<std::size_t>(rang)].num > 0;
    setCursor(possede ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

/// Left and right go to the neighbours that are owned.
void BandeSerie::keyPressEvent(QKeyEvent *evenement)
{
    const int pas = evenement->key() == Qt::Key_Right ? 1 : evenement->key() == Qt::Key_Left ? -1 : 0;
    const int nombre = static_cast<int>(m_bande.size());
    int rang = 0;
    while (rang < nombre && m_bande[static_cast<std::size_t>(rang)].num != m_courant)
        ++rang;
    if (pas == 0 || rang == nombre)
        return QWidget::keyPressEvent(evenement);
    do {
        rang += pas;
    } while (rang >= 0 && rang < nombre && m_bande[static_cast<std::size_t>(rang)].num == 0);
    if (rang >= 0 && rang < nombre)
        Q_EMIT albumDemande(m_bande[static_cast<std::size_t>(rang)].num);
}
