#include "core/ui/Fond.h"

#include "core/Dossier.h"
#include "core/Images.h"
#include "core/Reglages.h"
#include "core/ui/Theme.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>

namespace {

constexpr QSize TailleMax(2560, 1600);
constexpr int OpaciteDuVoile = 150;

}

Fond::Fond(QWidget *parent)
    : QWidget(parent)
{
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
    poser(CheminChoisi(), Reglages::courant().booleen(Cle::Defilement));
}

QString Fond::Texture(int rang)
{
    const QDir dossier(Dossier::courant().chemin(QStringLiteral("Fond Ecran")));
    const QStringList noms
        = dossier.entryList({QStringLiteral("*.jpg"), QStringLiteral("*.jpeg")}, QDir::Files, QDir::Name);
    return rang > 0 && rang <= noms.size() ? dossier.filePath(noms[rang - 1]) : QString();
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
    voile.setAlpha(OpaciteDuVoile);
    p.fillRect(rect(), voile);
}
