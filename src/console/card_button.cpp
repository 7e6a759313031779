#include "console/card_button.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <utility>

#include "console/fitted_text.h"

using namespace Qt::StringLiterals;

namespace zelvor {

using theme::Role;

namespace {
constexpr int kCaptionPixels = 15;
constexpr int kStatePixels = 11;
constexpr int kSmallWidth = 26;
constexpr int kSmallMargin = 2;
constexpr int kLamp = 13;  // pixels
constexpr int kSpare = 4;  // pixels kept free above and below two lines
constexpr int kFrame = 3;  // pixels kept free around the button for the frame of the card fired last
}  // namespace

CardButton::CardButton(ConsoleButton* small, QWidget* parent)
    : ConsoleButton({.pixels = kCaptionPixels, .bold = true, .firesCard = true}, parent), small_(small) {
    small_->setParent(this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void CardButton::setFace(const Face& face) {
    if (face == face_) return;
    const bool wasOn = std::exchange(face_, face).on;
    if (wasOn != face.on) tellOn();
    small_->setVisible(!face.quiet);
    update();
}

QString CardButton::stateLine() const {
    QStringList parts;
    if (face_.on) parts += u"ON"_s;
    if (!face_.key.isEmpty()) parts += face_.key;
    if (!face_.fault.isEmpty()) parts += face_.fault;
    return parts.join(u" · "_s);
}

void CardButton::setLetter(const QString& letter) {
    if (letter == letter_) return;
    letter_ = letter;
    update();
}

void CardButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Q_EMIT painted();
    drawFace(painter);
    if (!letter_.isEmpty() && !face_.quiet) drawLetter(painter);
    drawFocus(painter);
}

void CardButton::drawLetter(QPainter& painter) const {
    constexpr int kSide = 24;  // pixels
    const int right = small_->geometry().left() - 3;
    const QRect place(right - kSide, (height() - kSide) / 2, kSide, kSide);
    theme::drawSurface(painter, place, {theme::colour(Role::Accent), theme::colour(Role::Window)});
    painter.setFont(theme::font(kCaptionPixels, true));
    painter.setPen(theme::readableOn(theme::colour(Role::Accent)));
    painter.drawText(place, Qt::AlignCenter, letter_);
}

void CardButton::drawFace(QPainter& painter) const {
    const QRectF body = QRectF(rect()).adjusted(kFrame, kFrame, -kFrame, -kFrame);
    if (face_.lastFired) theme::drawSurface(painter, rect(), {std::nullopt, theme::colour(Role::Accent), 7, 2});

    QColor ground = theme::colour(face_.on ? Role::CardOn : face_.quiet ? Role::Cell : Role::Card);
    if (groundColour()) ground = *groundColour();
    if (isDown()) {
        ground = theme::pressed(ground);
    } else if (underMouse() && !face_.quiet) {
        ground = theme::hovered(ground);
    }
    const Role line = face_.on ? Role::OnLine : Role::Line;
    theme::drawSurface(painter, body, {ground, theme::colour(line), 5, face_.on ? 2 : 1, face_.quiet && !face_.on});

    if (face_.flagged) {
        QPainterPath corner(body.topLeft() + QPointF(2, 2));
        corner.lineTo(body.topLeft() + QPointF(14, 2));
        corner.lineTo(body.topLeft() + QPointF(2, 14));
        corner.closeSubpath();
        painter.fillPath(corner, theme::colour(Role::Wait));
    }

    if (!face_.trouble.isEmpty()) {
        drawStruckLamp(painter, {small_->geometry().left() - kLamp - 5.0, body.bottom() - kLamp - 6.0, kLamp, kLamp});
    }
    drawWords(painter);
}

// The caption, and the state below it where there is room, else beside it.
void CardButton::drawWords(QPainter& painter) const {
    const QColor ink = ownInk().value_or(groundColour() ? theme::readableOn(*groundColour())
                                                        : theme::colour(face_.quiet ? Role::Muted : Role::Text));
    const QFont stateFont = theme::font(kStatePixels, face_.on);
    const QFontMetrics stateMetrics(stateFont);
    const QString state = stateMetrics.elidedText(stateLine(), Qt::ElideRight, textRoom());
    QRect inner(padding(), kFrame, textRoom(), height() - 2 * kFrame);
    const bool isBelow =
        !state.isEmpty() && inner.height() >= QFontMetrics(font()).height() + stateMetrics.height() + kSpare;
    QSize room(inner.width(), inner.height() - (isBelow ? stateMetrics.height() + kSpare : 0));
    if (!state.isEmpty() && !isBelow) {
        inner.setRight(inner.right() - (face_.trouble.isEmpty() ? 0 : kLamp + 6));
        room.setWidth(inner.width() - stateMetrics.horizontalAdvance(state) - 6);
    }
    const FittedText caption = fitted({text()}, font(), room);
    const int block = caption.height() + (isBelow ? stateMetrics.height() : 0);
    const QRect captionArea(QPoint(inner.left(), inner.top() + (inner.height() - block) / 2),
                            QSize(room.width(), caption.height()));
    painter.setPen(ink);
    caption.draw(painter, captionArea, Qt::AlignLeft);
    if (state.isEmpty()) return;

    painter.setFont(stateFont);
    if (!groundColour()) painter.setPen(theme::colour(face_.on ? Role::OnText : Role::Muted));
    if (isBelow) {
        painter.drawText(QRect(inner.left(), captionArea.bottom() + 1, inner.width(), stateMetrics.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, state);
    } else {
        painter.drawText(inner, Qt::AlignRight | Qt::AlignVCenter, state);
    }
}

void CardButton::drawStruckLamp(QPainter& painter, const QRectF& area) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme::colour(Role::Bad), 2));
    painter.setBrush(theme::colour(Role::Field));
    painter.drawEllipse(area);
    painter.drawLine(area.topRight() + QPointF(1, -1), area.bottomLeft() + QPointF(-1, 1));
    painter.restore();
}

int CardButton::textRoom() const {
    return width() - padding() - kFrame - smallWidth() - 2 * kSmallMargin;
}

int CardButton::smallWidth() const {
    return std::max(kSmallWidth, small_->minimumWidth());
}

QSize CardButton::minimumSizeHint() const {
    return {64 + smallWidth(), std::max(34, small_->minimumHeight() + 2 * (kFrame + kSmallMargin))};
}

void CardButton::resizeEvent(QResizeEvent* event) {
    ConsoleButton::resizeEvent(event);
    const int edge = kFrame + kSmallMargin;
    small_->setGeometry(width() - edge - smallWidth(), edge, smallWidth(), height() - 2 * edge);
}

}  // namespace zelvor
