#include "general_forms/form_list.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include "base/window_frame.h"

namespace zelvor {

namespace {

// Where a form of that size leaves the console free: on a screen of its own, or beside it. Without such a place it
// lies in the lower right corner, where the least of the cards is.
QPoint placeBeside(const QWidget& console, QSize content) {
    const QRect taken = console.frameGeometry();
    // With a frame like the console's, which has hardly one while it fills its screen.
    const QSize size = content + (taken.size() - console.size()).expandedTo(kWindowFrame);
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect free = screen->availableGeometry();
        if (!free.intersects(taken)) return free.center() - QRect({}, size).center();
    }
    const QRect free = console.screen()->availableGeometry();
    const QPoint corner = free.bottomRight() - QPoint(size.width() - 1, size.height() - 1);
    const int top = std::clamp(taken.top(), free.top(), std::max(free.top(), corner.y()));
    if (taken.right() < corner.x()) return {taken.right() + 1, top};
    if (taken.left() - free.left() >= size.width()) return {taken.left() - size.width(), top};
    return corner;
}

}  // namespace

void FormList::add(QWidget& form) {
    form.setAttribute(Qt::WA_ShowWithoutActivating);
    QObject::connect(&closing_, &Closing::begun, &form, &QWidget::hide);
    forms_.push_back(&form);
}

QWidget* FormList::find(const QString& name) const {
    const auto found =
        std::find_if(forms_.begin(), forms_.end(), [&](const QWidget* form) { return form->objectName() == name; });
    return found == forms_.end() ? nullptr : *found;
}

QStringList FormList::names() const {
    QStringList names;
    for (const QWidget* form : forms_) {
        if (form->isVisible()) names += form->objectName();
    }
    return names;
}

void FormList::show(const QString& name) {
    QWidget* form = find(name);
    if (form == nullptr || form->isVisible()) return;
    // Where the operator has moved it, it stays.
    if (!form->testAttribute(Qt::WA_Moved)) form->move(placeBeside(*console_, form->size()));
    form->show();
    console_->raise();
}

void FormList::bringToFront(const QString& name) {
    show(name);
    QWidget* form = find(name);
    if (form == nullptr) return;
    form->raise();
    form->activateWindow();
}

void FormList::close(const QString& name) {
    // Hidden, not closed: closing would ask about what is not saved.
    if (QWidget* form = find(name)) form->hide();
}

}  // namespace zelvor
