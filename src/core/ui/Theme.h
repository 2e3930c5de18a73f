#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

class QPushButton;

/// Paper and ink: the colours, sizes and fonts that make all windows look like one program. Colours travel
/// through the palette; the roles that Qt has no name for stand here.
namespace Theme {

/// One spacing scale, in device-independent pixels.
constexpr int Fin = 4;
constexpr int Petit = 8;
constexpr int Moyen = 14;
constexpr int Grand = 22;

/// Light or dark: as the desktop wants it, or as the user does.
enum class Choix { Bureau, Clair, Sombre };

bool EstSombre(const QPalette &p);

/// The desk on which the sheet lies.
inline QColor Bureau(const QPalette &p)
{
    return p.color(QPalette::Dark);
}
inline QColor Carte(const QPalette &p)
{
    return p.color(QPalette::Base);
}
inline QColor Encre(const QPalette &p)
{
    return p.color(QPalette::Text);
}
inline QColor Discret(const QPalette &p)
{
    return p.color(QPalette::PlaceholderText);
}
inline QColor Trait(const QPalette &p)
{
    return p.color(QPalette::Mid);
}
inline QColor Survol(const QPalette &p)
{
    return p.color(QPalette::Midlight);
}
inline QColor Bleu(const QPalette &p)
{
    return p.color(QPalette::Link);
}
inline QColor Rouge(const QPalette &p)
{
    return p.color(QPalette::BrightText);
}
/// Blue and red as grounds under white letters.
inline QColor FondBleu(const QPalette &p)
{
    return p.color(QPalette::Highlight);
}
QColor FondRouge(const QPalette &p);
inline QColor Titre(const QPalette &p)
{
    return p.color(QPalette::LinkVisited);
}
/// The gold of rating stars.
QColor Or();

/// The font and the text colour that the user chose for lists and sheets. An invalid colour is the theme's.
QFont PoliceChoisie();
QColor CouleurChoisie();

/// The property of a button that the style draws in red.
constexpr char Accent[] = "accent";
/// Makes a button the one that a form is about.
void Accentuer(QPushButton *bouton);

/// The font of `base` at a multiple of its size.
QFont Taille(const QFont &base, qreal facteur, QFont::Weight graisse = QFont::Normal);

}
