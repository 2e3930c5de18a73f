#include "core/ui/Theme.h"

#include "core/Reglages.h"
#include "core/ui/Style.h"

#include <QApplication>
#include <QPushButton>

namespace {

QPalette clair()
{
    QPalette p;
    p.setColor(QPalette::Window, 0xFBF8F1);
    p.setColor(QPalette::WindowText, 0x22242C);
    p.setColor(QPalette::Base, 0xFFFEFA);
    p.setColor(QPalette::AlternateBase, 0xF6F1E6);
    p.setColor(QPalette::Text, 0x22242C);
    p.setColor(QPalette::PlaceholderText, 0x6F695E);
    p.setColor(QPalette::Button, 0xFFFDF7);
    p.setColor(QPalette::ButtonText, 0x22242C);
    p.setColor(QPalette::BrightText, 0xC8372D);
    p.setColor(QPalette::Light, 0xFFFFFF);
    p.setColor(QPalette::Midlight, 0xF0E9DA);
    p.setColor(QPalette::Mid, 0xD9D2C3);
    p.setColor(QPalette::Dark, 0xE8E2D4);
    p.setColor(QPalette::Shadow, 0xB9B09D);
    p.setColor(QPalette::Highlight, 0x2B4A6F);
    p.setColor(QPalette::HighlightedText, 0xFFFFFF);
    p.setColor(QPalette::Link, 0x2B4A6F);
    p.setColor(QPalette::LinkVisited, 0x80622F);
    p.setColor(QPalette::ToolTipBase, 0xFFFEFA);
    p.setColor(QPalette::ToolTipText, 0x22242C);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, 0xA39C8E);
    return p;
}

}

void Theme::Appliquer(QApplication &application)
{
    application.setStyle(new Style);
    application.setPalette(clair());
}

QColor Theme::Or()
{
    return 0xD9A520;
}

QFont Theme::PoliceChoisie()
{
    const Reglages &reglages = Reglages::courant();
    QFont police(reglages.texte(Cle::FontName));
    const double taille = reglages.nombre(Cle::FontSize);
    police.setPointSizeF(taille >= 1 ? taille : 10);
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
    QPalette palette;
    palette.setColor(QPalette::Button, Rouge(bouton->palette()));
    palette.setColor(QPalette::Midlight, Rouge(bouton->palette()).lighter(115));
    palette.setColor(QPalette::ButtonText, bouton->palette().color(QPalette::HighlightedText));
    bouton->setPalette(palette);
}

QFont Theme::Taille(const QFont &base, qreal facteur, QFont::Weight graisse)
{
    QFont police = base;
    police.setPointSizeF(base.pointSizeF() * facteur);
    police.setWeight(graisse);
    return police;
}
