#include "console/theme.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zelvor::theme {

QColor colour(Role role) {
    switch (role) {
        case Role::Window:
            return {0x0f, 0x13, 0x17};
        case Role::Bar:
            return {0x18, 0x1c, 0x22};
        case Role::Panel:
            return {0x16, 0x1a, 0x20};
        case Role::Field:
            return {0x0b, 0x0e, 0x12};
        case Role::Cell:
            return {0x12, 0x15, 0x1a};
        case Role::Button:
            return {0x23, 0x29, 0x32};
        case Role::ButtonHover:
            return {0x2d, 0x34, 0x3f};
        case Role::ButtonPressed:
            return {0x1b, 0x20, 0x28};
        case Role::Card:
            return {0x24, 0x2a, 0x33};
        case Role::CardHover:
            return {0x2e, 0x35, 0x40};
        case Role::CardPressed:
            return {0x1a, 0x1f, 0x26};
        case Role::CardOn:
            return {0x0f, 0x26, 0x17};
        case Role::Line:
            return {0x3a, 0x42, 0x4e};
        case Role::Accent:
            return {0x5a, 0xa9, 0xff};
        case Role::OnLine:
            return {0x00, 0xff, 0x00};
        case Role::AirFill:
            return {0x26, 0x0a, 0x0d};
        case Role::AirLine:
            return {0xff, 0x5a, 0x5a};
        case Role::Text:
            return {0xf2, 0xf4, 0xf7};
        case Role::Muted:
            return {0xa3, 0xac, 0xb8};
        case Role::Disabled:
            return {0x8c, 0x95, 0xa1};
        case Role::OnText:
            return {0x7c, 0xff, 0x9b};
        case Role::AirText:
            return {0xff, 0x7a, 0x7a};
        case Role::Good:
            return {0x4a, 0xd9, 0x6b};
        case Role::Bad:
            return {0xff, 0x6e, 0x6e};
        case Role::Wait:
            return {0xf5, 0xb9, 0x4c};
    }
    return Qt::magenta;
}

QColor colour(Colour systemColour) {
    return QColor::fromRgb(static_cast<int>(systemColour & 0xff), static_cast<int>(systemColour >> 8 & 0xff),
                           static_cast<int>(systemColour >> 16 & 0xff));
}

std::span<const TextPair> textPairs() {
    static constexpr std::array kPairs{
        TextPair{Role::Text, Role::Window},      TextPair{Role::Text, Role::Bar},
        TextPair{Role::Text, Role::Panel},       TextPair{Role::Text, Role::Field},
        TextPair{Role::Text, Role::Cell},        TextPair{Role::Text, Role::Button},
        TextPair{Role::Text, Role::ButtonHover}, TextPair{Role::Text, Role::Card},
        TextPair{Role::Text, Role::CardHover},   TextPair{Role::Text, Role::CardOn},
        TextPair{Role::Text, Role::AirFill},     TextPair{Role::Muted, Role::Window},
        TextPair{Role::Muted, Role::Bar},        TextPair{Role::Muted, Role::Panel},
        TextPair{Role::Muted, Role::Field},      TextPair{Role::Muted, Role::Cell},
        TextPair{Role::Muted, Role::Card},       TextPair{Role::Muted, Role::CardHover},
        TextPair{Role::Muted, Role::Button},     TextPair{Role::Muted, Role::CardOn},
        TextPair{Role::Disabled, Role::Panel},   TextPair{Role::Disabled, Role::Button},
        TextPair{Role::OnText, Role::CardOn},    TextPair{Role::OnText, Role::Panel},
        TextPair{Role::AirText, Role::AirFill},  TextPair{Role::Good, Role::Bar},
        TextPair{Role::Bad, Role::Bar},          TextPair{Role::Bad, Role::Field},
        TextPair{Role::Bad, Role::Panel},        TextPair{Role::Wait, Role::Bar},
        TextPair{Role::Wait, Role::Panel},       TextPair{Role::Accent, Role::Card},
    };
    return kPairs;
}

namespace {

double luminance(const QColor& of) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(of.redF()) + 0.7152 * linear(of.greenF()) + 0.0722 * linear(of.blueF());
}

QPalette palette() {
    QPalette look;
    look.setColor(QPalette::Window, colour(Role::Window));
    look.setColor(QPalette::WindowText, colour(Role::Text));
    look.setColor(QPalette::Base, colour(Role::Field));
    look.setColor(QPalette::AlternateBase, colour(Role::Cell));
    look.setColor(QPalette::Text, colour(Role::Text));
    look.setColor(QPalette::PlaceholderText, colour(Role::Muted));
    look.setColor(QPalette::Button, colour(Role::Button));
    look.setColor(QPalette::ButtonText, colour(Role::Text));
    look.setColor(QPalette::Highlight, colour(Role::Accent));
    look.setColor(QPalette::HighlightedText, Qt::black);
    look.setColor(QPalette::ToolTipBase, colour(Role::Button));
    look.setColor(QPalette::ToolTipText, colour(Role::Text));
    look.setColor(QPalette::Link, colour(Role::Accent));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        look.setColor(QPalette::Disabled, role, colour(Role::Disabled));
    return look;
}

// The style sheet; "@Role" stands for a role's colour.
constexpr QLatin1StringView kStyle(R"(
QToolTip { color: @Text; background: @Button; border: 1px solid @Line; padding: 4px; }
QDialog { background: @Panel; border: 1px solid @Line; }
QMenu { background: @Panel; }
QLineEdit, QComboBox, QPlainTextEdit, QListView, QTableView {
  color: @Text; background: @Field; border: 1px solid @Line; border-radius: 4px;
  selection-background-color: @Accent; selection-color: black;
}
QLineEdit { padding: 2px 6px; }
QLineEdit:focus, QComboBox:focus, QPlainTextEdit:focus, QListView:focus { border-color: @Accent; }
QLineEdit[wrong="true"] { border-color: @Bad; }
QLineEdit:read-only { color: @Muted; background: @Panel; }
QLineEdit:disabled, QComboBox:disabled { color: @Disabled; background: @Panel; }
QComboBox { padding: 2px 4px 2px 8px; }
QComboBox QAbstractItemView { background: @Panel; border: 1px solid @Line; }
QCheckBox, QRadioButton { color: @Text; spacing: 6px; padding: 2px; border-radius: 4px; }
QCheckBox:focus, QRadioButton:focus { color: @Accent; }
QListView::item { padding: 1px 4px; }
QPushButton {
  color: @Text; background: @Button; border: 1px solid @Line; border-radius: 4px; padding: 6px 18px;
}
QPushButton:hover { background: @ButtonHover; }
QPushButton:pressed { background: @ButtonPressed; }
QPushButton:default, QPushButton:focus { border-color: @Accent; }
QMenu { color: @Text; border: 1px solid @Line; padding: 4px; }
QMenu::item { padding: 6px 24px; }
QMenu::item:selected { background: @ButtonHover; }
QMenu::item:disabled { color: @Disabled; }
QMenu::separator { height: 1px; background: @Line; margin: 4px 8px; }
QScrollBar:vertical { background: @Field; width: 10px; }
QScrollBar:horizontal { background: @Field; height: 10px; }
QScrollBar::handle { background: @Line; border-radius: 4px; min-height: 24px; min-width: 24px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
)");

QString styleSheet() {
    struct Named {
        QLatin1StringView name;
        Role role;
    };
    // Longer names before those they begin with.
    static constexpr std::array kNames{
        Named{"@ButtonHover"_L1, Role::ButtonHover},
        Named{"@ButtonPressed"_L1, Role::ButtonPressed},
        Named{"@Button"_L1, Role::Button},
        Named{"@Disabled"_L1, Role::Disabled},
        Named{"@Accent"_L1, Role::Accent},
        Named{"@Field"_L1, Role::Field},
        Named{"@Panel"_L1, Role::Panel},
        Named{"@Muted"_L1, Role::Muted},
        Named{"@Line"_L1, Role::Line},
        Named{"@Text"_L1, Role::Text},
        Named{"@Bad"_L1, Role::Bad},
    };
    QString style = kStyle;
    for (const Named& named : kNames) style.replace(named.name, colour(named.role).name());
    return style;
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return first > second ? first / second : second / first;
}

QColor readableOn(const QColor& ground) {
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return contrast(white, ground) >= kLeastContrast || contrast(white, ground) > contrast(black, ground) ? white
                                                                                                          : black;
}

QFont font(int pixels, bool bold) {
    QFont made(u"Noto Sans"_s);
    made.setPixelSize(pixels);
    made.setWeight(bold ? QFont::Bold : QFont::Normal);
    return made;
}

void drawSurface(QPainter& painter, const QRectF& area, const Surface& surface) {
    painter.setRenderHint(QPainter::Antialiasing);
    const double inset = surface.line ? surface.lineWidth / 2.0 : 0.0;
    painter.setPen(Qt::NoPen);
    if (surface.line) {
        painter.setPen(QPen(*surface.line, surface.lineWidth, surface.dashed ? Qt::DashLine : Qt::SolidLine));
    }
    painter.setBrush(surface.fill ? QBrush(*surface.fill) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(area.adjusted(inset, inset, -inset, -inset), surface.radius, surface.radius);
}

QIcon warningSign() {
    constexpr int kSize = 32;  // pixels, enough for a screen of twice the usual density
    QPixmap picture(kSize, kSize);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawSurface(painter, picture.rect(), {colour(Role::Bad), {}, kSize / 2});
    painter.setPen(readableOn(colour(Role::Bad)));
    painter.setFont(font(kSize * 3 / 4, true));
    painter.drawText(picture.rect(), Qt::AlignCenter, u"!"_s);
    return QIcon(picture);
}

void drawFocusRing(QPainter& painter, const QRectF& area) {
    drawSurface(painter, area, {std::nullopt, QColor(Qt::black), 4, 4});
    drawSurface(painter, area.adjusted(1, 1, -1, -1), {std::nullopt, QColor(Qt::white), 4, 2});
}

QString ownColours(std::optional<Colour> back, std::optional<Colour> fore) {
    QString rule;
    if (back) rule += u"background: %1;"_s.arg(colour(*back).name());
    if (fore || back) rule += u"color: %1;"_s.arg(fore ? colour(*fore).name() : readableOn(colour(*back)).name());
    return rule;
}

namespace {

// Check boxes and option buttons that can be told from their ground in the dark, and buttons without icons.
class ConsoleStyle : public QProxyStyle {
 public:
    ConsoleStyle() : QProxyStyle(u"Fusion"_s) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            return;
        }
        const bool round = element == PE_IndicatorRadioButton;
        const bool on = (option->state & State_On) != 0;
        const QRectF box = QRectF(option->rect).adjusted(1, 1, -1, -1);
        drawSurface(*painter, box,
                    {colour(Role::Field), colour(on ? Role::Accent : Role::Muted),
                     round ? static_cast<int>(box.width() / 2) : 3});
        if (!on) return;
        painter->setPen(QPen(colour(Role::Accent), 2, Qt::SolidLine, Qt::RoundCap));
        if (round) {
            painter->setBrush(colour(Role::Accent));
            painter->drawEllipse(box.center(), 2, 2);
        } else {
            painter->drawPolyline(QPolygonF{box.topLeft() + QPointF(3, box.height() / 2),
                                            box.topLeft() + QPointF(box.width() / 2 - 1, box.height() - 4),
                                            box.topRight() + QPointF(-3, 4)});
        }
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

}  // namespace

void apply(QApplication& application) {
    application.setStyle(new ConsoleStyle);  // NOLINT: the application takes it over
    application.setFont(font(14));
    application.setPalette(palette());
    application.setStyleSheet(styleSheet());
}

}  // namespace zelvor::theme
