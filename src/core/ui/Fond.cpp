#include "core/ui/Fond.h"

#include "core/Fonds.h"
#include "core/Images.h"
#include "core/Reglages.h"
#include "core/ui/Theme.h"

#include <QPainter>

namespace {

constexpr QSize TailleMax(2560, 1600);
constexpr int OpaciteDuVoile = 150;
/// The textures are light: in the dark little of them may show.
constexpr int OpaciteDeNuit = 225;

}

Fond::Fond(QWidget *parent)
    : QWidget(parent)
{
}

void Fond::charger()
{
    poser(Fonds::CheminChoisi(), Reglages::courant().booleen(Cle::Defilement));
}

void Fond::poser(const QString &chemin, bool carreaux)
{
    m_texture = chemin.isEmpty() ? QImage() : Images::Decoder(chemin, TailleMax);
    m_carreaux = carreaux;
    update();
}

void Fond::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    const QColor bureau = Theme::Bureau(palette());
    if (m_texture.isNull()) {
        p.fillRect(rect(), bureau);
        return;
    }
    if (m_carreaux)
        p.fillRect(rect(), QBrush(m_texture));
    else
        p.drawImage(rect(), m_texture);
    QColor voile = bureau;
    voile.setAlpha(Theme::EstSombre(palette()) ? OpaciteDeNuit : OpaciteDuVoile);
    p.fillRect(rect(), voile);
}
