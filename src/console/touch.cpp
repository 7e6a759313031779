#include "console/touch.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QInputDevice>
#include <QLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>
#include <QStyleHints>
#include <QTouchEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "console/card_button.h"
#include "console/form_keys.h"
#include "console/text_label.h"

namespace zelvor {

namespace {

// Fingers press these without the mouse that Qt makes of them: a label acts when the mouse goes down, which is too
// early to tell a long press.
bool isPressed(const QWidget& widget) {
    const bool isLabel = qobject_cast<const TextLabel*>(&widget) != nullptr;
    return qobject_cast<const ConsoleButton*>(&widget) != nullptr || (isLabel && widget.focusPolicy() != Qt::NoFocus);
}

bool hasRightDeed(const QWidget& widget) {
    return qobject_cast<const CardButton*>(&widget) != nullptr || widget.objectName() == controls.lblHPLAYERS.name ||
           widget.objectName() == controls.lblAPLAYERS.name;
}

bool pressesOnce(const QWidget& widget) {
    const auto* button = qobject_cast<const ConsoleButton*>(&widget);
    return button == nullptr || button->firesCard();
}

bool isMetByFingers(const QWidget& widget) {
    return isPressed(widget) || qobject_cast<const QCheckBox*>(&widget) != nullptr ||
           qobject_cast<const QRadioButton*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr || qobject_cast<const QLineEdit*>(&widget) != nullptr;
}

void grow(QWidget& widget, QSize least) {
    const QSize wanted = widget.minimumSize().expandedTo(least);
    widget.setMaximumSize(widget.maximumSize().expandedTo(wanted));
    widget.setMinimumSize(wanted);
}

// What holds it at a height of its own: a bar, the place of the panels. What is hidden counts, too.
void growAround(const QWidget& widget) {
    int needed = widget.minimumHeight();
    for (QWidget* holder = widget.parentWidget(); !holder->isWindow(); holder = holder->parentWidget()) {
        if (const QLayout* layout = holder->layout()) {
            const QMargins margins = layout->contentsMargins();
            needed = std::max(needed + margins.top() + margins.bottom(), layout->totalMinimumSize().height());
        }
        if (holder->minimumHeight() == holder->maximumHeight())
            holder->setFixedHeight(std::max(holder->minimumHeight(), needed));
    }
}

}  // namespace

Touch::Touch(QWidget& window) : window_(window) {
    longPress_.setSingleShot(true);
    longPress_.setInterval(kLongPress);
    connect(&longPress_, &QTimer::timeout, this, &Touch::pressLong);
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!isPressed(*widget)) continue;
        widget->setAttribute(Qt::WA_AcceptTouchEvents);
        widget->installEventFilter(this);
    }
}

bool Touch::isThere() {
    return std::ranges::any_of(QInputDevice::devices(), [](const QInputDevice* device) {
        return device->type() == QInputDevice::DeviceType::TouchScreen;
    });
}

int Touch::leastPixels(const QScreen& screen) {
    constexpr double kMillimetresPerInch = 25.4;
    // Some screens do not know their size.
    constexpr double kLeastDots = 72;
    constexpr double kMostDots = 300;
    const double dots = std::clamp(screen.physicalDotsPerInch(), kLeastDots, kMostDots);
    return static_cast<int>(std::ceil(kLeastSize / kMillimetresPerInch * dots));
}

void Touch::enlarge() {
    const int least = leastPixels(*window_.screen());
    theme::setFingerSize(*qApp, least);
    QList<QWidget*> all = window_.findChildren<QWidget*>();
    // The inner ones, which come later, first.
    std::reverse(all.begin(), all.end());
    for (QWidget* each : std::as_const(all)) {
        if (!isMetByFingers(*each)) continue;
        const bool isCard = qobject_cast<CardButton*>(each) != nullptr;
        grow(*each, isCard ? each->minimumSizeHint() : QSize(least, least));
        growAround(*each);
    }
}

bool Touch::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = static_cast<QWidget*>(watched);
    switch (event->type()) {
        case QEvent::TouchBegin:
            goDown(*widget, static_cast<QTouchEvent*>(event)->points().constFirst().position());
            return true;
        case QEvent::TouchUpdate: {
            const QPointF way = static_cast<QTouchEvent*>(event)->points().constFirst().position() - place_;
            if (way.manhattanLength() > kMostMovement) letGo();
            return true;
        }
        case QEvent::TouchEnd:
            goUp();
            return true;
        case QEvent::TouchCancel:
            letGo();
            return true;
        default:
            return false;
    }
}

void Touch::goDown(QWidget& widget, QPointF place) {
    letGo();
    // As with the mouse, the second press of a double one fires no card again.
    const bool isSecond = tapped_ == &widget && sinceTap_.isValid() &&
                          !sinceTap_.hasExpired(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    tapped_ = nullptr;
    if (!widget.isEnabled() || (isSecond && pressesOnce(widget))) return;
    held_ = &widget;
    place_ = place;
    if (auto* button = qobject_cast<ConsoleButton*>(&widget)) {
        button->setDown(true);
        Q_EMIT button->goesDown();
    }
    if (hasRightDeed(widget)) longPress_.start();
}

void Touch::letGo() {
    longPress_.stop();
    QWidget* widget = std::exchange(held_, nullptr);
    if (auto* button = qobject_cast<ConsoleButton*>(widget)) button->setDown(false);
}

void Touch::goUp() {
    QWidget* widget = held_;
    letGo();
    if (widget == nullptr) return;
    tapped_ = widget;
    sinceTap_.start();
    // It has gone down before: what it showed then is what is meant.
    if (auto* button = qobject_cast<ConsoleButton*>(widget)) return button->click();
    pressWidget(*widget, Qt::LeftButton);
}

void Touch::pressLong() {
    QWidget* widget = held_;
    letGo();
    if (auto* card = qobject_cast<CardButton*>(widget)) return card->small().click();
    pressWidget(*widget, Qt::RightButton);
}

}  // namespace zelvor
