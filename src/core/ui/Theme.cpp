#include "core/ui/Theme.h"

#include "core/Reglages.h"

#include <QPushButton>
#include <algorithm>

namespace {

/// Beyond these, in points, nothing can be read, or no control is left to change it back.
constexpr double TailleMoindre = 6;
constexpr double TailleExtreme = 28;

}

bool Theme::EstSombre(const QPalette &p)
{
    return p.color(QPalette::Window).lightness() < p.color(QPalette::WindowText).lightness();
}

QColor Theme::FondRouge(const QPalette &p)
{
    return EstSombre(p) ? Rouge(p).darker(130) : Rouge(p);
}

QColor Theme::Or()
{
    return 0xD9A520;
}

QFont Theme::PoliceChoisie()
{
    const Reglages &reglages = Reglages::courant();
    QFont police(reglages.texte(Cle::FontName));
    police.setPointSizeF(std::clamp(reglages.nombre(Cle::FontSize), TailleMoindre, TailleExtreme));
    police.setBold(reglages.booleen(Cle::FontBold));
    police.setItalic(reglages.booleen(Cle::FontItalic));
    return police;
}

QColor Theme::CouleurChoisie()
{
    // Red stands in the lowest byte.
    const auto valeur = static_cast<unsigned>(Reglages::courant().entier(Cle::Forecolor));
    return valeur == 0 ? QColor() : QColor(valeur & 0xFF, valeur >> 8 & 0xFF, valeur >> 16 & 0xFF);
}

void Theme::Accentuer(QPushButton *bouton)
{
    bouton->setProperty(Accent, true);
}

QFont Theme::Taille(const QFont &base, qreal facteur, QFont::Weight graisse)
{
    QFont police = base;
    police.setPointSizeF(base.pointSizeF() * facteur);
    police.setWeight(graisse);
    return police;
}
