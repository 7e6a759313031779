#include "console/theme.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>
#include <array>

using namespace Qt::StringLiterals;

namespace zelvor::theme {

namespace {

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
    look.setColor(QPalette::HighlightedText, readableOn(colour(Role::Accent)));
    look.setColor(QPalette::Mid, colour(Role::Line));
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
  background: @Field; border: 1px solid @Line; border-radius: 4px;
  selection-background-color: @Accent; selection-color: @OnAccent;
}
QLineEdit { padding: 2px 6px; }
QLineEdit[narrow="true"] { padding: 2px 0; }
QLineEdit:focus, QComboBox:focus, QPlainTextEdit:focus, QListView:focus { border: 2px solid @Accent; }
QLineEdit:focus { padding: 1px 5px; }
QLineEdit[narrow="true"]:focus { padding: 1px 0; }
QComboBox:focus { padding: 1px 3px 1px 7px; }
QLineEdit[wrong="true"] { border-color: @Bad; }
QLineEdit:read-only { color: @Muted; background: @Panel; }
QLineEdit:disabled, QComboBox:disabled { color: @Disabled; background: @Panel; }
QComboBox { padding: 2px 4px 2px 8px; }
QComboBox[drawsArrow="true"]::drop-down { border: none; width: 20px; }
QComboBox QAbstractItemView { background: @Panel; border: 1px solid @Line; }
QCheckBox, QRadioButton { color: @Text; spacing: 6px; border: 2px solid transparent; border-radius: 4px; }
QCheckBox:focus, QRadioButton:focus { border-color: @Accent; }
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

// What a finger must meet; "@Finger" stands for its size in pixels.
constexpr QLatin1StringView kFingerStyle(R"(
QPushButton, QLineEdit, QComboBox, QCheckBox, QRadioButton, QMenu::item, QListView::item { min-height: @Finger; }
QPushButton, QMenu::item { padding-top: 0; padding-bottom: 0; }
QComboBox QAbstractItemView::item { min-height: @Finger; }
QScrollBar:vertical { width: @Finger; }
QScrollBar:horizontal { height: @Finger; }
)");

constexpr const char* kFingerProperty = "zelvorFinger";

QString styleSheet(int finger) {
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
    if (finger > 0) style += QString(kFingerStyle).replace("@Finger"_L1, QString::number(finger) + u"px"_s);
    style.replace("@OnAccent"_L1, readableOn(colour(Role::Accent)).name());
    for (const Named& named : kNames) style.replace(named.name, colour(named.role).name());
    return style;
}

}  // namespace

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

namespace {

QIcon cross() {
    constexpr int kSize = 32;  // pixels, enough for a screen of twice the usual density
    QPixmap picture(kSize, kSize);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour(Role::Muted), 4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(9, 9, kSize - 9, kSize - 9);
    painter.drawLine(9, kSize - 9, kSize - 9, 9);
    return QIcon(picture);
}

}  // namespace

void drawFocusRing(QPainter& painter, const QRectF& area) {
    drawSurface(painter, area, {std::nullopt, QColor(Qt::black), 4, 4});
    drawSurface(painter, area.adjusted(1, 1, -1, -1), {std::nullopt, QColor(Qt::white), 4, 2});
}

QString ownColours(std::optional<Colour> back, std::optional<Colour> fore) {
    QString rule;
    if (back) rule += u"background: %1;"_s.arg(colour(*back).name());
    if (back && fore) rule += u"color: %1;"_s.arg(colour(*fore).name());
    if (back && !fore) rule += u"color: %1;"_s.arg(readableOn(colour(*back)).name());
    if (!back && fore) rule += u"color: %1;"_s.arg(inkOf(colour(*fore)).name());
    return rule;
}

namespace {

// Check boxes and option buttons that can be told from their ground, and buttons without icons.
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

    // The cross of a search field is drawn: looking for one among the desktop's icons takes a tenth of the start.
    QIcon standardIcon(StandardPixmap wanted, const QStyleOption* option, const QWidget* widget) const override {
        return wanted == SP_LineEditClearButton ? cross() : QProxyStyle::standardIcon(wanted, option, widget);
    }
};

}  // namespace

void prepare(QApplication& application) {
    application.setStyle(new ConsoleStyle);  // NOLINT: the application takes it over
    application.setFont(font(14));
}

void apply(QApplication& application, Theme theme) {
    application.setProperty(kThemeProperty, wordOf(theme));
    application.setPalette(palette());
    application.setStyleSheet(styleSheet(application.property(kFingerProperty).toInt()));
}

void setFingerSize(QApplication& application, int pixels) {
    if (application.property(kFingerProperty).toInt() == pixels) return;
    application.setProperty(kFingerProperty, pixels);
    application.setStyleSheet(styleSheet(pixels));
}

}  // namespace zelvor::theme
