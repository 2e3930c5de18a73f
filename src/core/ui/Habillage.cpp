#include "core/ui/Habillage.h"

#include "core/Reglages.h"
#include "core/ui/Clarte.h"
#include "core/ui/Style.h"

#include <QApplication>

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

QPalette sombre()
{
    QPalette p;
    p.setColor(QPalette::Window, 0x25272C);
    p.setColor(QPalette::WindowText, 0xE9E4D8);
    p.setColor(QPalette::Base, 0x2D3036);
    p.setColor(QPalette::AlternateBase, 0x33363D);
    p.setColor(QPalette::Text, 0xE9E4D8);
    p.setColor(QPalette::PlaceholderText, 0xA8A294);
    p.setColor(QPalette::Button, 0x353941);
    p.setColor(QPalette::ButtonText, 0xE9E4D8);
    p.setColor(QPalette::BrightText, 0xE0645A);
    p.setColor(QPalette::Light, 0x4A4E57);
    p.setColor(QPalette::Midlight, 0x3E424B);
    p.setColor(QPalette::Mid, 0x4D515A);
    p.setColor(QPalette::Dark, 0x1C1E22);
    p.setColor(QPalette::Shadow, 0x6A6E77);
    p.setColor(QPalette::Highlight, 0x3A6294);
    p.setColor(QPalette::HighlightedText, 0xFFFFFF);
    p.setColor(QPalette::Link, 0x8DB4E2);
    p.setColor(QPalette::LinkVisited, 0xD3B06A);
    p.setColor(QPalette::ToolTipBase, 0x3E424B);
    p.setColor(QPalette::ToolTipText, 0xE9E4D8);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, 0x7A776F);
    return p;
}

/// What the desktop wants; it lives as long as the application.
Clarte *clarte()
{
    return qApp->findChild<Clarte *>();
}

}

void Habillage::Appliquer(QApplication &application)
{
    auto *desktop = new Clarte(&application);
    QObject::connect(desktop, &Clarte::change, &application, Relire);
    // The font that old settings name is not everywhere; this one has its measures.
    QFont::insertSubstitution(QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans"));
    application.setStyle(new Style);
    Relire();
}

QPalette Habillage::PaletteDe(Theme::Choix choix)
{
    const bool nuit
        = choix == Theme::Choix::Sombre || (choix != Theme::Choix::Clair && clarte() && clarte()->sombre());
    return nuit ? sombre() : clair();
}

void Habillage::Relire()
{
    QApplication::setPalette(PaletteDe(static_cast<Theme::Choix>(Reglages::courant().entier(Cle::Theme))));
}
