#include "core/ui/Placement.h"

#include <QApplication>
#include <QLayout>
#include <QScreen>
#include <QWidget>

namespace {

constexpr int Decalage = 28;
constexpr int Essais = 8;

QSize bordsDe(const QWidget &fenetre)
{
    return fenetre.frameGeometry().size() - fenetre.size();
}

/// True when another window begins just there.
bool estPrise(const QPoint &coin, const QWidget &fenetre)
{
    const QWidgetList fenetres = QApplication::topLevelWidgets();
    return std::any_of(fenetres.begin(), fenetres.end(), [&](const QWidget *autre) {
        const QPoint ecart = autre->frameGeometry().topLeft() - coin;
        return autre != &fenetre && autre->isVisible() && ecart.manhattanLength() < Decalage / 2;
    });
}

}

QRect Placement::Dans(QRect cadre, const QRect &libre)
{
    cadre.setSize(cadre.size().boundedTo(libre.size()));
    cadre.moveLeft(std::clamp(cadre.left(), libre.left(), libre.right() + 1 - cadre.width()));
    cadre.moveTop(std::clamp(cadre.top(), libre.top(), libre.bottom() + 1 - cadre.height()));
    return cadre;
}

void Placement::Centrer(QWidget &fenetre, const QWidget &sur)
{
    if (!fenetre.testAttribute(Qt::WA_Resized))
        fenetre.adjustSize();
    // It will have such a frame as the other has.
    const QSize bords = bordsDe(sur);
    QRect cadre(QPoint(), fenetre.size() + bords);
    cadre.moveCenter(sur.frameGeometry().center());
    const QRect libre = sur.screen()->availableGeometry();
    QRect place;
    for (int i = 0; i < Essais; ++i) {
        place = Dans(cadre.translated(i * Decalage, i * Decalage), libre);
        if (!estPrise(place.topLeft(), fenetre))
            break;
    }
    fenetre.resize(place.size() - bords);
    fenetre.move(place.topLeft());
}

bool Placement::Rentrer(QWidget &fenetre)
{
    const QSize bords = bordsDe(fenetre);
    if (bords.isNull())
        return false;
    const QRect libre = fenetre.screen()->availableGeometry();
    const QRect cadre = fenetre.frameGeometry();
    const QRect place = Dans(cadre, libre);
    // What it needs it keeps, on the smallest screen, too: there is no use in a window whose words are cut.
    const QSize besoin = fenetre.layout() ? fenetre.layout()->totalMinimumSize() : QSize(0, 0);
    fenetre.setMinimumSize(fenetre.minimumSize().boundedTo((libre.size() - bords).expandedTo(besoin)));
    if (place.size() != cadre.size())
        fenetre.resize(place.size() - bords);
    if (place.topLeft() != cadre.topLeft())
        fenetre.move(place.topLeft());
    return true;
}
