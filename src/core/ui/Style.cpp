#include "core/ui/Style.h"

#include "core/ui/Icones.h"
#include "core/ui/Theme.h"

#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

namespace {

constexpr qreal Rayon = 5;
constexpr qreal RayonDuFocus = 3;
constexpr int TraitDOnglet = 3;
/// Above and below the text of a row, together.
constexpr int AirDUneLigne = 6;

void poserCrayon(QPainter &p, const QColor &trait, const QColor &fond)
{
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(trait.isValid() ? QPen(trait, 1) : QPen(Qt::NoPen));
    p.setBrush(fond.isValid() ? QBrush(fond) : QBrush(Qt::NoBrush));
}

QRectF interieur(const QRect &rect)
{
    return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
}

void dessinerBouton(const QStyleOption &o, QPainter &p, bool plat)
{
    const bool survol = o.state.testFlag(QStyle::State_MouseOver) && o.state.testFlag(QStyle::State_Enabled);
    const bool enfonce = o.state.testFlag(QStyle::State_Sunken);
    const bool choisi = o.state.testFlag(QStyle::State_On);
    QColor fond = plat ? QColor() : o.palette.color(QPalette::Button);
    if (choisi)
        fond = o.palette.color(QPalette::Highlight);
    else if (enfonce)
        fond = Theme::Trait(o.palette);
    else if (survol)
        fond = Theme::Survol(o.palette);
    const QColor trait = plat || choisi ? QColor() : Theme::Trait(o.palette);
    p.save();
    poserCrayon(p, trait, fond);
    p.drawRoundedRect(interieur(o.rect), Rayon, Rayon);
    if (o.state.testFlag(QStyle::State_HasFocus)) {
        // On a coloured ground the blue frame would be lost.
        const bool surCouleur = choisi || fond.lightness() < 150;
        const QColor cadre = surCouleur && !plat ? o.palette.color(QPalette::ButtonText)
            : choisi                             ? o.palette.color(QPalette::HighlightedText)
                                                 : Theme::Bleu(o.palette);
        p.setPen(QPen(cadre, 1.5));
        p.setBrush(Qt::NoBrush);
        const qreal retrait = surCouleur ? 2.5 : 0.5;
        p.drawRoundedRect(
            interieur(o.rect).adjusted(retrait, retrait, -retrait, -retrait), Rayon - 1, Rayon - 1);
    }
    p.restore();
}

void dessinerCase(const QStyleOption &o, QPainter &p)
{
    const bool cochee = o.state.testFlag(QStyle::State_On);
    const QColor bleu = o.state.testFlag(QStyle::State_Enabled) ? o.palette.color(QPalette::Highlight)
                                                                : Theme::Trait(o.palette);
    p.save();
    poserCrayon(p, cochee ? bleu : Theme::Discret(o.palette), cochee ? bleu : Theme::Carte(o.palette));
    const QRectF r = interieur(o.rect);
    p.drawRoundedRect(r, 3, 3);
    if (cochee) {
        p.setPen(QPen(
            o.palette.color(QPalette::HighlightedText), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        QPainterPath coche(r.topLeft() + QPointF(r.width() * 0.24, r.height() * 0.52));
        coche.lineTo(r.topLeft() + QPointF(r.width() * 0.43, r.height() * 0.72));
        coche.lineTo(r.topLeft() + QPointF(r.width() * 0.78, r.height() * 0.28));
        p.setBrush(Qt::NoBrush);
        p.drawPath(coche);
    }
    p.restore();
}

void dessinerRond(const QStyleOption &o, QPainter &p)
{
    const bool actif = o.state.testFlag(QStyle::State_Enabled);
    p.save();
    poserCrayon(p, actif ? Theme::Discret(o.palette) : Theme::Trait(o.palette), Theme::Carte(o.palette));
    const QRectF r = interieur(o.rect);
    p.drawEllipse(r);
    if (o.state.testFlag(QStyle::State_On)) {
        const qreal retrait = r.width() * 0.27;
        poserCrayon(p, {}, actif ? Theme::Bleu(o.palette) : Theme::Discret(o.palette));
        p.drawEllipse(r.adjusted(retrait, retrait, -retrait, -retrait));
    }
    p.restore();
}

void dessinerCadre(const QStyleOption &o, QPainter &p)
{
    const bool focus = o.state.testFlag(QStyle::State_HasFocus);
    p.save();
    poserCrayon(p, focus ? Theme::Bleu(o.palette) : Theme::Trait(o.palette), {});
    p.drawRoundedRect(interieur(o.rect), Rayon, Rayon);
    p.restore();
}

void dessinerFocus(const QStyleOption &o, QPainter &p)
{
    const auto *focus = qstyleoption_cast<const QStyleOptionFocusRect *>(&o);
    const bool surBleu = focus && focus->backgroundColor == o.palette.color(QPalette::Highlight);
    const QColor cadre = surBleu ? o.palette.color(QPalette::HighlightedText) : Theme::Bleu(o.palette);
    p.save();
    poserCrayon(p, cadre, {});
    p.setPen(QPen(cadre, 1.5));
    // All of its line lies inside: rows are drawn over each other's edges.
    p.drawRoundedRect(QRectF(o.rect).adjusted(1, 1, -1, -1), RayonDuFocus, RayonDuFocus);
    p.restore();
}

/// The tab in front lies on paper, under a line in colour; the others on nothing.
void dessinerOnglet(const QStyleOptionTab &o, QPainter &p)
{
    const bool devant = o.state.testFlag(QStyle::State_Selected);
    const bool survol = o.state.testFlag(QStyle::State_MouseOver);
    const QRect r = o.rect;
    p.save();
    poserCrayon(p, {}, devant ? Theme::Carte(o.palette) : survol ? Theme::Survol(o.palette) : QColor());
    p.drawRect(r);
    if (devant)
        p.fillRect(r.left(), r.bottom() - TraitDOnglet + 1, r.width(), TraitDOnglet, Theme::Bleu(o.palette));
    p.restore();
}

bool estAccentue(const QWidget *widget)
{
    return widget && widget->property(Theme::Accent).toBool();
}

/// The option with red in the place of the button's own colours, and paper in that of its text.
template <class Option>
Option accentuer(const Option &option)
{
    Option o = option;
    if (!o.state.testFlag(QStyle::State_Enabled))
        return o;
    const QColor rouge = Theme::FondRouge(option.palette);
    o.palette.setColor(QPalette::Button, rouge);
    o.palette.setColor(QPalette::Midlight, rouge.lighter(115));
    o.palette.setColor(QPalette::Mid, rouge.darker(115));
    o.palette.setColor(QPalette::ButtonText, option.palette.color(QPalette::HighlightedText));
    return o;
}

/// A thumb in a groove without arrows.
void dessinerAscenseur(const QStyleOptionSlider &o, QPainter &p, const QRect &pouce)
{
    const bool actif = o.state.testFlag(QStyle::State_MouseOver) || o.state.testFlag(QStyle::State_Sunken);
    p.save();
    poserCrayon(p, {}, actif ? Theme::Discret(o.palette) : o.palette.color(QPalette::Shadow));
    const int marge = 3;
    const QRectF r = o.orientation == Qt::Vertical ? QRectF(pouce).adjusted(marge, 1, -marge, -1)
                                                   : QRectF(pouce).adjusted(1, marge, -1, -marge);
    const qreal rayon = std::min(r.width(), r.height()) / 2;
    p.drawRoundedRect(r, rayon, rayon);
    p.restore();
}

/// A thin bar without a frame, for the line under a title as well as for long work.
void dessinerProgression(const QStyleOptionProgressBar &o, QPainter &p)
{
    p.fillRect(o.rect, Theme::Trait(o.palette));
    const int etendue = std::max(1, o.maximum - o.minimum);
    QRect faite = o.rect;
    faite.setWidth(static_cast<int>(qint64(o.rect.width()) * (o.progress - o.minimum) / etendue));
    if (faite.width() > 0)
        p.fillRect(faite, o.palette.color(QPalette::Highlight));
}

}

Style::Style()
    : QProxyStyle(QStringLiteral("Fusion"))
{
}

void Style::polish(QWidget *controle)
{
    QProxyStyle::polish(controle);
    if (auto *label = qobject_cast<QLabel *>(controle); label && label->textFormat() == Qt::AutoText)
        label->setTextFormat(Qt::PlainText);
}

void Style::drawPrimitive(
    PrimitiveElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    switch (element) {
    case PE_PanelButtonTool:
        return dessinerBouton(*option, *painter, true);
    case PE_PanelButtonCommand:
        return dessinerBouton(estAccentue(widget) ? accentuer(*option) : *option, *painter, false);
    case PE_IndicatorCheckBox:
        return dessinerCase(*option, *painter);
    case PE_IndicatorRadioButton:
        return dessinerRond(*option, *painter);
    case PE_Frame:
    case PE_FrameLineEdit:
        return dessinerCadre(*option, *painter);
    case PE_FrameFocusRect:
        return dessinerFocus(*option, *painter);
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void Style::drawControl(
    ControlElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (element == CE_ProgressBar)
        return dessinerProgression(*qstyleoption_cast<const QStyleOptionProgressBar *>(option), *painter);
    if (element == CE_TabBarTabShape)
        return dessinerOnglet(*qstyleoption_cast<const QStyleOptionTab *>(option), *painter);
    if (element == CE_PushButtonLabel && estAccentue(widget)) {
        const auto accentue = accentuer(*qstyleoption_cast<const QStyleOptionButton *>(option));
        return QProxyStyle::drawControl(element, &accentue, painter, widget);
    }
    if (element == CE_ToolButtonLabel && option->state.testFlag(State_On)) {
        // The label of a chosen button stands on the accent colour.
        QStyleOptionToolButton choisi = *qstyleoption_cast<const QStyleOptionToolButton *>(option);
        choisi.palette.setColor(QPalette::ButtonText, option->palette.color(QPalette::HighlightedText));
        return QProxyStyle::drawControl(element, &choisi, painter, widget);
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    if (control == CC_ScrollBar) {
        const auto &ascenseur = *qstyleoption_cast<const QStyleOptionSlider *>(option);
        return dessinerAscenseur(
            ascenseur, *painter, subControlRect(CC_ScrollBar, option, SC_ScrollBarSlider, widget));
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_SplitterWidth:
        return 6;
    case PM_ScrollBarExtent:
        return 12;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return 15;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize Style::sizeFromContents(
    ContentsType type, const QStyleOption *option, const QSize &contenu, const QWidget *widget) const
{
    QSize taille = QProxyStyle::sizeFromContents(type, option, contenu, widget);
    // A caption never touches the edge of its button.
    if (type == CT_PushButton)
        taille.rwidth() += 2 * Theme::Petit;
    // Rows are of one height everywhere, with a picture beside the text or without.
    if (type == CT_ItemViewItem)
        taille.setHeight(std::max(taille.height(), option->fontMetrics.height() + AirDUneLigne));
    return taille;
}

QIcon Style::standardIcon(StandardPixmap sorte, const QStyleOption *option, const QWidget *widget) const
{
    switch (sorte) {
    case SP_MessageBoxQuestion:
        return Icones::Charger(QStringLiteral("aide"));
    case SP_MessageBoxInformation:
        return Icones::Charger(QStringLiteral("apropos"));
    case SP_MessageBoxWarning:
        return Icones::Charger(QStringLiteral("avertissement"));
    case SP_MessageBoxCritical:
        return Icones::Charger(QStringLiteral("avertissement"), QPalette::BrightText);
    default:
        return QProxyStyle::standardIcon(sorte, option, widget);
    }
}

int Style::styleHint(
    StyleHint hint, const QStyleOption *option, const QWidget *widget, QStyleHintReturn *retour) const
{
    if (hint == SH_EtchDisabledText || hint == SH_DitherDisabledText
        || hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, retour);
}
