#include "browse/Fond.h"

#include "core/Dossier.h"
#include "core/Images.h"
#include "core/Reglages.h"
#include "core/ui/Theme.h"

#include <QFileInfo>
#include <QPainter>

namespace {

constexpr QSize TailleMax(2560, 1600);
constexpr int OpaciteDuVoile = 150;

}

Fond::Fond(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("Fond"));
}

QString Fond::CheminChoisi()
{
    const QString nom = Reglages::courant().texte(Cle::FondScreen).trimmed().replace(u'\\', u'/');
    if (nom.isEmpty())
        return {};
    if (nom.startsWith(u'/'))
        return QFileInfo(nom).isFile() ? nom : QString();
    QString dossier = Reglages::courant().texte(Cle::RepFondScreen).trimmed().replace(u'\\', u'/');
    if (dossier.isEmpty())
        dossier = Dossier::courant().chemin(QStringLiteral("Fond Ecran"));
    if (!dossier.endsWith(u'/'))
        dossier += u'/';
    const QString chemin = dossier + nom.section(u'/', -1);
    return QFileInfo(chemin).isFile() ? chemin : QString();
}

void Fond::charger()
{
    const QString chemin = CheminChoisi();
    m_texture = chemin.isEmpty() ? QImage() : Images::Decoder(chemin, TailleMax);
    m_carreaux = Reglages::courant().booleen(Cle::Defilement);
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
    voile.setAlpha(OpaciteDuVoile);
    p.fillRect(rect(), voile);
}
