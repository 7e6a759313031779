#pragma once

#include <QProxyStyle>

namespace zelvor {

// The frames, buttons, boxes, menus and bars of the console's windows, in the theme's colours over Qt's own Fusion.
// Drawn here and not by a style sheet, which would keep rules for each widget: a third of the start and half of the
// heap.
class ConsoleStyle : public QProxyStyle {
    Q_OBJECT

 public:
    ConsoleStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    // What is pressed in boxes, menus and panels gets at least that many pixels of height; 0: as small as its text.
    void setFinger(int pixels) { finger_ = pixels; }
    [[nodiscard]] int finger() const { return finger_; }

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption* option,
                                       const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                       const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                         const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* returned) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap wanted, const QStyleOption* option,
                                     const QWidget* widget) const override;

 private:
    int finger_ = 0;
};

}  // namespace zelvor
