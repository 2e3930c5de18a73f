#pragma once

#include <QProxyStyle>

/// How controls are drawn: flat, with thin lines and a clear focus frame, in the palette's colours.
class Style : public QProxyStyle
{
    Q_OBJECT

public:
    Style();

    using QProxyStyle::polish;
    /// Labels and tool tips show texts as they were typed: none is markup unless the label says so.
    void polish(QWidget *controle) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
        const QWidget *widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contenu,
        const QWidget *widget) const override;
    QIcon standardIcon(
        StandardPixmap sorte, const QStyleOption *option, const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
        QStyleHintReturn *retour) const override;
};
