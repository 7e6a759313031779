#include "console/theme.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QToolTip>

#include "console/console_style.h"

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
    return {picture};
}

void drawFocusRing(QPainter& painter, const QRectF& area) {
    drawSurface(painter, area, {std::nullopt, QColor(Qt::black), 4, 4});
    drawSurface(painter, area.adjusted(1, 1, -1, -1), {std::nullopt, QColor(Qt::white), 4, 2});
}

QPalette ownColours(std::optional<Colour> back, std::optional<Colour> fore, bool readOnly) {
    QPalette look;
    const auto set = [&look](const QColor& colour, std::initializer_list<QPalette::ColorRole> roles) {
        for (const QPalette::ColorRole role : roles) look.setColor(role, colour);
    };
    if (back) {
        set(colour(*back), {QPalette::Base, QPalette::Window});
        set(fore ? colour(*fore) : readableOn(colour(*back)), {QPalette::Text, QPalette::WindowText});
        return look;
    }
    if (readOnly) {
        set(colour(Role::Panel), {QPalette::Base});
        set(colour(Role::Muted), {QPalette::Text});
    }
    if (fore) set(inkOf(colour(*fore)), {QPalette::Text, QPalette::WindowText});
    return look;
}

namespace {

ConsoleStyle& styleOf(QApplication& application) {
    return *qobject_cast<ConsoleStyle*>(application.style());
}

}  // namespace

void prepare(QApplication& application) {
    application.setStyle(new ConsoleStyle);  // NOLINT: the application takes it over
    application.setFont(font(14));
}

void apply(QApplication& application, Theme theme) {
    application.setProperty(kThemeProperty, wordOf(theme));
    application.setPalette(palette());
    QToolTip::setPalette(palette());
}

void setFingerSize(QApplication& application, int pixels) {
    ConsoleStyle& style = styleOf(application);
    if (style.finger() == pixels) return;
    style.setFinger(pixels);
    for (QWidget* each : QApplication::allWidgets()) {
        QEvent change(QEvent::StyleChange);
        QApplication::sendEvent(each, &change);
    }
}

}  // namespace zelvor::theme
