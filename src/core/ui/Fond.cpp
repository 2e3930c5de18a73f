#include "core/ui/Fond.h"

#include "core/Fonds.h"
#include "core/Images.h"
#include "core/Reglages.h"
#include "core/ui/Theme.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr QSize TailleMax(2560, 1600);
constexpr int OpaciteDuVoile = 150;
/// The textures are light: in the dark they are seen as if by so much more than the desk's own light, in percent.
constexpr int LumiereDeNuit = 190;

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
    if (Theme::EstSombre(palette())) {
        voile = bureau.lighter(LumiereDeNuit);
        p.setCompositionMode(QPainter::CompositionMode_Multiply);
    } else {
        voile.setAlpha(OpaciteDuVoile);
    }
    p.fillRect(rect(), voile);
}

void Fond::Tapisser(QWidget *forme)
{
    auto *fond = new Fond(forme);
    fond->setAttribute(Qt::WA_TransparentForMouseEvents);
    fond->hide();
    forme->installEventFilter(fond);
}

bool Fond::eventFilter(QObject *objet, QEvent *evenement)
{
    if (evenement->type() == QEvent::Show)
        poserSurPanneau();
    else if (evenement->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(objet, evenement);
}

void Fond::poserSurPanneau()
{
    const QString texture = Fonds::Texture(Reglages::courant().entier(Cle::Splash));
    setGeometry(parentWidget()->rect());
    lower();
    setVisible(!texture.isEmpty());
    poser(texture, true);
}
