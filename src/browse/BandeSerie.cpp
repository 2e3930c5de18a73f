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
    cadrer(rangDuCourant());
    updateGeometry();
    update();
}

QSize BandeSerie::sizeHint() const
{
    const int lignes
        = std::clamp((static_cast<int>(m_bande.size()) + parLigne() - 1) / parLigne(), 1, LignesMax);
    return {4 * (Largeur + Ecart), lignes * (Hauteur + Ecart)};
}

int BandeSerie::parLigne() const
{
    return std::max(1, (width() + Ecart) / (Largeur + Ecart));
}

int BandeSerie::rangDuCourant() const
{
    const auto courant = std::find_if(
        m_bande.begin(), m_bande.end(), [this](const auto &place) { return place.num == m_courant; });
    return static_cast<int>(courant - m_bande.begin());
}

/// Chooses the stretch of a long series that is shown: the current tome stands in its middle.
void BandeSerie::cadrer(int milieu)
{
    const int nombre = static_cast<int>(m_bande.size());
    m_visibles = std::min(nombre, parLigne() * LignesMax);
    m_premiere = std::clamp(milieu - m_visibles / 2, 0, nombre - m_visibles);
}

/// At an end that is cut the place stands for those that are not shown, itself among them; 0 at any other place.
int BandeSerie::cachees(int i) const
{
    const int apres = static_cast<int>(m_bande.size()) - m_premiere - m_visibles;
    if (i == 0 && m_premiere > 0)
        return m_premiere + 1;
    return i == m_visibles - 1 && apres > 0 ? apres + 1 : 0;
}

QRect BandeSerie::caseDe(int rang) const
{
    return {
        (rang % parLigne()) * (Largeur + Ecart), (rang / parLigne()) * (Hauteur + Ecart), Largeur, Hauteur};
}

int BandeSerie::caseSous(const QPoint &point) const
{
    for (int i = 0; i < m_visibles; ++i) {
        if (caseDe(i).contains(point))
            return i;
    }
    return -1;
}

int BandeSerie::albumDe(int i) const
{
    return i < 0 || cachees(i) > 0 ? 0 : m_bande[static_cast<std::size_t>(m_premiere + i)].num;
}

void BandeSerie::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < m_visibles; ++i) {
        if (cachees(i) > 0)
            peindreCoupe(p, i);
        else
            peindrePlace(p, QRectF(caseDe(i)), m_bande[static_cast<std::size_t>(m_premiere + i)]);
    }
    if (hasFocus()) {
        p.setPen(QPen(Theme::Bleu(palette()), 1.5));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    }
}

void BandeSerie::peindrePlace(QPainter &p, const QRectF &cadre, const InfosAlbum::Place &place) const
{
    const QRectF r = cadre.adjusted(0.5, 0.5, -0.5, -0.5);
    const bool trou = place.num == 0;
    const QColor fond = place.num == m_courant ? Theme::FondRouge(palette()) : Theme::FondBleu(palette());
    p.setPen(trou ? QPen(palette().color(QPalette::Shadow), 1, Qt::DashLine) : QPen(Qt::NoPen));
    p.setBrush(trou ? QBrush(Qt::NoBrush) : QBrush(fond));
    p.drawRoundedRect(r, 2, 2);
    p.setPen(trou ? Theme::Discret(palette()) : palette().color(QPalette::HighlightedText));
    p.drawText(r, Qt::AlignCenter, place.tome == 0 ? QStringLiteral("·") : QString::number(place.tome));
}

/// The sign that the series goes on there, and by how many places.
void BandeSerie::peindreCoupe(QPainter &p, int i) const
{
    const QString nombre = QString::number(cachees(i));
    p.setPen(Theme::Bleu(palette()));
    p.drawText(caseDe(i).adjusted(-Ecart / 2, 0, Ecart / 2, 0), Qt::AlignCenter,
        i == 0 ? QChar(0x2039) + u' ' + nombre : nombre + u' ' + QChar(0x203A));
}

void BandeSerie::resizeEvent(QResizeEvent *evenement)
{
    QWidget::resizeEvent(evenement);
    cadrer(rangDuCourant());
    if (evenement->oldSize().width() != width())
        updateGeometry();
}

void BandeSerie::mouseReleaseEvent(QMouseEvent *evenement)
{
    const int i = caseSous(evenement->position().toPoint());
    if (evenement->button() != Qt::LeftButton || i < 0)
        return;
    if (const int num = albumDe(i))
        Q_EMIT albumDemande(num);
    else if (cachees(i) > 0)
        derouler(i == 0 ? -1 : 1);
}

/// Shows the next stretch of a series that is cut.
void BandeSerie::derouler(int sens)
{
    cadrer(m_premiere + m_visibles / 2 + sens * std::max(1, m_visibles - 2));
    update();
}

void BandeSerie::mouseMoveEvent(QMouseEvent *evenement)
{
    const int i = caseSous(evenement->position().toPoint());
    const int cachees = i < 0 ? 0 : this->cachees(i);
    setCursor(cachees > 0 || albumDe(i) > 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setToolTip(cachees > 0 ? tr("%n tome(s) de plus", nullptr, cachees) : QString());
}

/// Left and right go to the neighbours that are owned.
void BandeSerie::keyPressEvent(QKeyEvent *evenement)
{
    const int pas = evenement->key() == Qt::Key_Right ? 1 : evenement->key() == Qt::Key_Left ? -1 : 0;
    const int nombre = static_cast<int>(m_bande.size());
    int rang = rangDuCourant();
    if (pas == 0 || rang == nombre)
        return QWidget::keyPressEvent(evenement);
    do {
        rang += pas;
    } while (rang >= 0 && rang < nombre && m_bande[static_cast<std::size_t>(rang)].num == 0);
    if (rang >= 0 && rang < nombre)
        Q_EMIT albumDemande(m_bande[static_cast<std::size_t>(rang)].num);
}
