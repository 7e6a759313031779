#include "console/console_button.h"

#include <QAccessible>
#include <QPainter>
#include <QPointer>
#include <algorithm>

#include "console/fitted_text.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {
constexpr int kPadding = 8;  // pixels
constexpr int kLeastPadding = 2;
constexpr int kEdge = 2;       // pixels above and below the text
constexpr int kUnderline = 3;  // pixels
constexpr int kRounding = 2;   // pixels by which a text may be wider on a screen of 150 %
}  // namespace

ConsoleButton::ConsoleButton(const Look& look, QWidget* parent) : QAbstractButton(parent), look_(look) {
    setFont(theme::font(look.pixels, look.bold));
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    // Told just before the click.
    connect(this, &QAbstractButton::released, this, [this] { setUpdatesEnabled(true); });
}

void ConsoleButton::setColours(std::optional<QColor> ground, std::optional<QColor> text) {
    ownGround_ = ground;
    ownText_ = text;
    update();
}

void ConsoleButton::setSelected(bool selected) {
    if (selected == selected_) return;
    selected_ = selected;
    tellOn();
    update();
}

void ConsoleButton::tellOn() {
    QAccessible::State what;
    what.selected = isTab();
    what.checked = !isTab();
    QAccessibleStateChangeEvent event(this, what);
    QAccessible::updateAccessibility(&event);
}

void ConsoleButton::setHint(const QString& hint) {
    if (hint == hint_) return;
    hint_ = hint;
    updateToolTip();
}

void ConsoleButton::setCaption(const QString& caption) {
    if (caption == text()) return;
    setText(caption);
    updateToolTip();
    updateGeometry();
}

void ConsoleButton::updateToolTip() {
    const bool cut = fontMetrics().horizontalAdvance(text()) > textRoom();
    setToolTip(cut ? text() + u'\n' + hint_ : hint_);
}

std::optional<QColor> ConsoleButton::ownInk() const {
    if (!ownText_ || ownGround_) return ownText_;
    return theme::inkOf(*ownText_);
}

void ConsoleButton::press() {
    Q_EMIT goesDown();
    click();
}

void ConsoleButton::drawFocus(QPainter& painter) const {
    if (hasFocus()) theme::drawFocusRing(painter, rect());
}

// It gives way before the text is elided.
int ConsoleButton::padding() const {
    return std::clamp((width() - fontMetrics().horizontalAdvance(text())) / 2 - kRounding, kLeastPadding, kPadding);
}

QSize ConsoleButton::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 2 * kPadding + 8, fontMetrics().height() + 10};
}

QSize ConsoleButton::minimumSizeHint() const {
    return {2 * kPadding + fontMetrics().horizontalAdvance(u"0…"_s), fontMetrics().height() + 4};
}

void ConsoleButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QColor ground = ownGround_.value_or(theme::colour(look_.ground));
    if (isDown()) {
        ground = theme::pressed(ground);
    } else if (underMouse() && isEnabled()) {
        ground = theme::hovered(ground);
    }
    if (look_.flat) {
        if (isDown() || underMouse()) painter.fillRect(rect(), ground);
        painter.fillRect(0, 0, 1, height(), theme::colour(look_.line));
        painter.setPen(theme::colour(look_.text));
        painter.drawText(rect(), Qt::AlignCenter, text());
        drawFocus(painter);
        return;
    }
    const bool framed = selected_ && !look_.underlined;
    theme::drawSurface(
        painter, rect(),
        {ground, theme::colour(framed ? (ownGround_ ? theme::Role::Text : theme::Role::Accent) : look_.line), 4,
         framed ? 2 : 1});
    if (look_.underlined) {
        painter.fillRect(QRect(1, height() - kUnderline, width() - 2, kUnderline),
                         theme::colour(selected_ ? theme::Role::Accent : theme::Role::Line));
    }

    QColor ink = theme::colour(isEnabled() ? look_.text : theme::Role::Disabled);
    if (look_.underlined && !selected_) ink = theme::colour(theme::Role::Muted);
    if (ownGround_) ink = theme::readableOn(*ownGround_);
    painter.setPen(ownInk().value_or(ink));
    if (selected_ && look_.underlined) painter.setFont(theme::font(look_.pixels, true));
    const QRect area = rect().adjusted(padding(), kEdge, -padding(), look_.underlined ? -kUnderline - 1 : -kEdge);
    fitted({text()}, painter.font(), area.size()).draw(painter, area, Qt::AlignCenter);
    drawFocus(painter);
}

// The base paints the button at once, before it tells of the click: what a click sends is not to wait for that.
template <class Handler>
void ConsoleButton::paintedLater(Handler&& handler) {
    const QPointer<ConsoleButton> button(this);
    setUpdatesEnabled(false);
    handler();
    if (button) setUpdatesEnabled(true);
}

void ConsoleButton::mouseReleaseEvent(QMouseEvent* event) {
    paintedLater([&] { QAbstractButton::mouseReleaseEvent(event); });
}

void ConsoleButton::mousePressEvent(QMouseEvent* event) {
    Q_EMIT goesDown();
    paintedLater([&] { QAbstractButton::mousePressEvent(event); });
}

void ConsoleButton::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!look_.firesCard) QAbstractButton::mouseDoubleClickEvent(event);
}

void ConsoleButton::resizeEvent(QResizeEvent*) {
    updateToolTip();
}

void ConsoleButton::enterEvent(QEnterEvent*) {
    update();
}

void ConsoleButton::leaveEvent(QEvent*) {
    update();
}

}  // namespace zelvor
