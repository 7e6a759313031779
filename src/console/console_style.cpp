#include "console/console_style.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStyleOption>
#include <algorithm>

#include "console/theme.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

using theme::Role;

// Pixels within a frame, beside and above what it holds.
constexpr int kFieldSide = 7;
constexpr int kFieldTop = 3;
constexpr QSize kButtonSides{19, 7};
constexpr QSize kMenuSides{24, 6};
constexpr QSize kRowSides{4, 1};
constexpr int kCheckSides = 10;   // of a check box: its ring, and between its mark and its text
constexpr int kRing = 2;          // around check boxes, shown when they have the keyboard
constexpr int kArrowWidth = 20;   // of a list that opens
constexpr int kListSides = 55;    // of the same: its frame, its arrow, and air
constexpr int kBarWidth = 10;     // of a scroll bar
constexpr int kLeastHandle = 24;  // of a scroll bar
constexpr int kSeparator = 9;     // the height of a menu's
constexpr int kSeparatorSides = 8;

QIcon cross() {
    constexpr int kSize = 32;  // pixels, enough for a screen of twice the usual density
    QPixmap picture(kSize, kSize);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour(Role::Muted), 4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(9, 9, kSize - 9, kSize - 9);
    painter.drawLine(9, kSize - 9, kSize - 9, 9);
    return picture;
}

bool has(const QStyleOption& option, QStyle::StateFlag state) {
    return (option.state & state) != 0;
}

bool isCheckable(const QWidget* widget) {
    return qobject_cast<const QCheckBox*>(widget) != nullptr || qobject_cast<const QRadioButton*>(widget) != nullptr;
}

// Lists, tables and long texts.
bool isFramed(const QWidget* widget) {
    return qobject_cast<const QAbstractItemView*>(widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(widget) != nullptr;
}

// A text's or a list's frame, with a stronger line where the keyboard is.
void drawField(QPainter& painter, const QStyleOption& option, const QColor& ground, bool wrong) {
    const bool focused = has(option, QStyle::State_HasFocus);
    const Role line = wrong ? Role::Bad : focused ? Role::Accent : Role::Line;
    theme::drawSurface(painter, option.rect, {ground, colour(line), 4, focused ? 2 : 1});
}

void drawIndicator(QPainter& painter, const QStyleOption& option, bool round) {
    const bool on = has(option, QStyle::State_On);
    const QRectF box = QRectF(option.rect).adjusted(1, 1, -1, -1);
    theme::drawSurface(
        painter, box,
        {colour(Role::Field), colour(on ? Role::Accent : Role::Muted), round ? static_cast<int>(box.width() / 2) : 3});
    if (!on) return;
    painter.setPen(QPen(colour(Role::Accent), 2, Qt::SolidLine, Qt::RoundCap));
    if (round) {
        painter.setBrush(colour(Role::Accent));
        painter.drawEllipse(box.center(), 2, 2);
    } else {
        painter.drawPolyline(QPolygonF{box.topLeft() + QPointF(3, box.height() / 2),
                                       box.topLeft() + QPointF(box.width() / 2 - 1, box.height() - 4),
                                       box.topRight() + QPointF(-3, 4)});
    }
}

// A small triangle about its middle.
void drawArrow(QPainter& painter, QPointF middle, bool down, const QColor& ink) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    const QPointF tip = middle + (down ? QPointF(0, 3) : QPointF(3, 0));
    painter.drawPolygon(down ? QPolygonF{tip, tip + QPointF(-4, -5), tip + QPointF(4, -5)}
                             : QPolygonF{tip, tip + QPointF(-5, -4), tip + QPointF(-5, 4)});
}

void drawButton(QPainter& painter, const QStyleOptionButton& option) {
    const bool marked =
        (option.features & QStyleOptionButton::DefaultButton) != 0 || has(option, QStyle::State_HasFocus);
    const bool hovered = has(option, QStyle::State_MouseOver) && has(option, QStyle::State_Enabled);
    const Role ground = has(option, QStyle::State_Sunken) ? Role::ButtonPressed
                        : hovered                         ? Role::ButtonHover
                                                          : Role::Button;
    theme::drawSurface(painter, option.rect, {colour(ground), colour(marked ? Role::Accent : Role::Line)});
}

void drawMenuItem(QPainter& painter, const QStyleOptionMenuItem& item) {
    const QRect area = item.rect;
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        painter.fillRect(QRect(area.left() + kSeparatorSides, area.center().y(), area.width() - 2 * kSeparatorSides, 1),
                         colour(Role::Line));
        return;
    }
    const bool enabled = has(item, QStyle::State_Enabled);
    if (has(item, QStyle::State_Selected) && enabled) painter.fillRect(area, colour(Role::ButtonHover));
    const QColor ink = colour(enabled ? Role::Text : Role::Disabled);
    painter.setPen(ink);
    const QRect text = area.adjusted(kMenuSides.width(), 0, -kMenuSides.width(), 0);
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, item.text.section(u'\t', 0, 0));
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignRight, item.text.section(u'\t', 1));
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu)
        drawArrow(painter, QPointF(area.right() - 7, area.center().y() + 1), false, colour(Role::Muted));
    if (item.checkType != QStyleOptionMenuItem::NotCheckable && item.checked) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(ink, 2, Qt::SolidLine, Qt::RoundCap));
        const QPointF left(area.left() + 7, area.center().y() + 1);
        painter.drawPolyline(QPolygonF{left, left + QPointF(3, 3), left + QPointF(9, -4)});
    }
}

}  // namespace

void ConsoleStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (qobject_cast<QDialog*>(widget) != nullptr) widget->setAttribute(Qt::WA_StyledBackground);
    // The ground with its round corners is the frame's.
    if (auto* area = qobject_cast<QAbstractScrollArea*>(widget); area != nullptr && isFramed(widget))
        area->viewport()->setAutoFillBackground(false);
}

void ConsoleStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    switch (element) {
        case PE_IndicatorCheckBox:
        case PE_IndicatorRadioButton:
            return drawIndicator(*painter, *option, element == PE_IndicatorRadioButton);
        case PE_Widget:
            if (qobject_cast<const QDialog*>(widget) == nullptr) break;
            return theme::drawSurface(*painter, option->rect, {colour(Role::Panel), colour(Role::Line), 0});
        case PE_PanelTipLabel:
            return theme::drawSurface(*painter, option->rect, {colour(Role::Button), colour(Role::Line), 0});
        case PE_PanelMenu:
            return theme::drawSurface(*painter, option->rect, {colour(Role::Panel), colour(Role::Line), 0});
        case PE_FrameMenu:
            return;
        case PE_PanelLineEdit: {
            const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            if (frame == nullptr || frame->lineWidth == 0) break;
            const bool wrong = widget != nullptr && widget->property("wrong").toBool();
            return drawField(*painter, *option, option->palette.color(QPalette::Base), wrong);
        }
        case PE_Frame:
            if (!isFramed(widget)) break;
            return drawField(*painter, *option, colour(Role::Field), false);
        case PE_FrameFocusRect:
            if (!isCheckable(widget)) break;
            return theme::drawSurface(*painter, widget->rect(), {{}, colour(Role::Accent), 4, kRing});
        default:
            break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ConsoleStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    // What a list opens is drawn as a menu, too.
    if (element == CE_MenuItem && item != nullptr && qobject_cast<const QMenu*>(widget) != nullptr)
        return drawMenuItem(*painter, *item);
    if (element == CE_PushButton && button != nullptr) {
        drawButton(*painter, *button);
        return drawControl(CE_PushButtonLabel, option, painter, widget);
    }
    if ((element == CE_CheckBox || element == CE_RadioButton) && button != nullptr) {
        QStyleOptionButton within = *button;
        within.rect.adjust(kRing, 0, -kRing, 0);
        return QProxyStyle::drawControl(element, &within, painter, widget);
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void ConsoleStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                      const QWidget* widget) const {
    if (control == CC_ComboBox) {
        const bool enabled = has(*option, State_Enabled);
        drawField(*painter, *option, colour(enabled ? Role::Field : Role::Panel), false);
        const QRect area = option->rect;
        return drawArrow(*painter, QPointF(area.right() - 10, area.top() + area.height() / 2.0), true,
                         colour(enabled ? Role::Text : Role::Disabled));
    }
    if (control == CC_ScrollBar) {
        painter->fillRect(option->rect, colour(Role::Field));
        return theme::drawSurface(*painter, subControlRect(control, option, SC_ScrollBarSlider, widget),
                                  {colour(Role::Line)});
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect ConsoleStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    switch (element) {
        case SE_LineEditContents: {
            const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            if (frame == nullptr || frame->lineWidth == 0) break;
            const int side = widget != nullptr && widget->property("narrow").toBool() ? 1 : kFieldSide;
            return option->rect.adjusted(side, kFieldTop, -side, -kFieldTop);
        }
        case SE_ItemViewItemText:
            if (qobject_cast<const QListView*>(widget) != nullptr) {
                const int side = kRowSides.width();
                return QProxyStyle::subElementRect(element, option, widget).adjusted(side, 0, -side, 0);
            }
            break;
        default:
            break;
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect ConsoleStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                   const QWidget* widget) const {
    const QRect area = option->rect;
    if (control == CC_ComboBox && part == SC_ComboBoxEditField)
        return area.adjusted(kFieldSide + 2, kFieldTop, -kArrowWidth - 1, -kFieldTop);
    if (control == CC_ComboBox && part == SC_ComboBoxArrow)
        return area.adjusted(area.width() - kArrowWidth - 1, 1, -1, -1);
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || bar == nullptr) return QProxyStyle::subControlRect(control, option, part, widget);

    const bool flat = bar->orientation == Qt::Horizontal;
    const int length = flat ? area.width() : area.height();
    const qint64 range = qint64{bar->maximum} - bar->minimum;
    const int share = range > 0 ? static_cast<int>(qint64{length} * bar->pageStep / (range + bar->pageStep)) : length;
    const int handle = std::min(length, std::max(kLeastHandle, share));
    const int start =
        sliderPositionFromValue(bar->minimum, bar->maximum, bar->sliderPosition, length - handle, bar->upsideDown);
    const auto piece = [&](int from, int to) {
        const QRect found = flat ? QRect(area.left() + from, area.top(), to - from, area.height())
                                 : QRect(area.left(), area.top() + from, area.width(), to - from);
        return visualRect(bar->direction, area, found);
    };
    switch (part) {
        case SC_ScrollBarSlider:
            return piece(start, start + handle);
        case SC_ScrollBarSubPage:
            return piece(0, start);
        case SC_ScrollBarAddPage:
            return piece(start + handle, length);
        case SC_ScrollBarGroove:
            return area;
        default:
            return {};
    }
}

QSize ConsoleStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                     const QWidget* widget) const {
    const QSize met = contents.expandedTo({0, finger_});
    // A finger's height is enough without more above and below.
    const auto with = [&](QSize sides) {
        return finger_ > 0 ? met + QSize(2 * sides.width(), 2) : contents + 2 * sides;
    };
    switch (type) {
        case CT_PushButton:
            return with(kButtonSides);
        case CT_LineEdit: {
            const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            if (frame == nullptr || frame->lineWidth == 0) break;
            const int side = widget != nullptr && widget->property("narrow").toBool() ? 1 : kFieldSide;
            return met + 2 * QSize(side, kFieldTop);
        }
        case CT_ComboBox:
            return met + QSize(kListSides, 2 * kFieldTop);
        case CT_CheckBox:
        case CT_RadioButton:
            return met.expandedTo({0, pixelMetric(PM_IndicatorHeight, option, widget)}) +
                   QSize(pixelMetric(PM_IndicatorWidth, option, widget) + kCheckSides, 2 * kRing);
        case CT_MenuItem: {
            const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
            if (item == nullptr || qobject_cast<const QMenu*>(widget) == nullptr) break;
            if (item->menuItemType == QStyleOptionMenuItem::Separator) return {contents.width(), kSeparator};
            return with(kMenuSides) + QSize(item->text.contains(u'\t') ? 12 : 0, 0);
        }
        case CT_ItemViewItem: {
            const QSize plain = QProxyStyle::sizeFromContents(type, option, contents, widget);
            if (qobject_cast<const QListView*>(widget) == nullptr) return plain;
            return plain.expandedTo({0, finger_}) + 2 * kRowSides;
        }
        default:
            break;
    }
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

int ConsoleStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
        case PM_DefaultFrameWidth:
        case PM_MenuPanelWidth:
            return 1;
        case PM_ToolTipLabelFrameWidth:
        case PM_MenuHMargin:
        case PM_MenuVMargin:
            return 4;
        case PM_CheckBoxLabelSpacing:
        case PM_RadioButtonLabelSpacing:
            return 7;
        case PM_ScrollBarExtent:
            return finger_ > 0 ? finger_ : kBarWidth;
        case PM_ScrollBarSliderMin:
            return kLeastHandle;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int ConsoleStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

// The cross of a search field is drawn: looking for one among the desktop's icons takes a tenth of the start.
QIcon ConsoleStyle::standardIcon(StandardPixmap wanted, const QStyleOption* option, const QWidget* widget) const {
    return wanted == SP_LineEditClearButton ? cross() : QProxyStyle::standardIcon(wanted, option, widget);
}

}  // namespace zelvor
