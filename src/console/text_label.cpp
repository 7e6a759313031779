#include "console/text_label.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "console/fitted_text.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kMark = 7;           // pixels
constexpr int kLargeMark = 12;     // pixels
constexpr int kNumberColumn = 26;  // pixels, room for two digits and a blank

// The digits before the first blank, empty when the text does not begin with a number.
QStringView leadingNumberOf(const QString& line) {
    const qsizetype blank = line.indexOf(u' ');
    if (blank <= 0) return {};
    const QStringView number = QStringView(line).left(blank);
    const bool digits = std::all_of(number.begin(), number.end(), [](QChar each) { return each.isDigit(); });
    return digits ? number : QStringView();
}

}  // namespace

TextLabel::TextLabel(const Look& look, QWidget* parent) : QWidget(parent), look_(look) {
    setFont(theme::font(look.pixels, look.bold));
}

void TextLabel::setText(const QString& text) {
    if (text == text_) return;
    text_ = text;
    updateToolTip();
    updateGeometry();
    update();
}

void TextLabel::setPlaceholder(const QString& text) {
    placeholder_ = text;
    update();
}

void TextLabel::setTextRole(theme::Role role) {
    look_.text = role;
    update();
}

void TextLabel::setMark(Mark mark) {
    mark_ = mark;
    update();
}

void TextLabel::setColours(std::optional<QColor> ground, std::optional<QColor> text) {
    ownGround_ = ground;
    ownText_ = text;
    update();
}

bool TextLabel::isMarked() const {
    return ownText_ && *ownText_ != QColor(Qt::white);
}

QColor TextLabel::textColour() const {
    if (ownText_) return ownGround_ ? *ownText_ : theme::inkOf(*ownText_);
    if (ownGround_) return theme::readableOn(*ownGround_);
    return theme::colour(isEnabled() ? look_.text : theme::Role::Disabled);
}

void TextLabel::press(Qt::MouseButton button) {
    if (isEnabled()) Q_EMIT mousePressed(button);
}

void TextLabel::setHint(const QString& hint) {
    hint_ = hint;
    updateToolTip();
}

QStringList TextLabel::lines() const {
    QStringList lines = text_.split(u'\n');
    for (QString& line : lines) {
        if (line.endsWith(u'\r')) line.chop(1);
    }
    return lines;
}

void TextLabel::updateToolTip() {
    const int room = width() - 2 * look_.padding;
    const QStringList all = lines();
    const QFontMetrics metrics = fontMetrics();
    const bool tooWide = std::any_of(all.begin(), all.end(),
                                     [&](const QString& line) { return metrics.horizontalAdvance(line) > room; });
    const bool tooHigh = all.size() > 1 && metrics.height() * all.size() > height();
    setToolTip(!text_.isEmpty() && (tooWide || tooHigh) ? text_ + u'\n' + hint_ : hint_);
}

QSize TextLabel::sizeHint() const {
    int widest = 0;
    const QStringList all = lines();
    for (const QString& line : all) widest = std::max(widest, fontMetrics().horizontalAdvance(line));
    return {widest + 2 * look_.padding + 1, fontMetrics().height() * static_cast<int>(all.size()) + 4};
}

QSize TextLabel::minimumSizeHint() const {
    return {2 * look_.padding + fontMetrics().horizontalAdvance(u"0…"_s), fontMetrics().height()};
}

void TextLabel::drawNumbered(QPainter& painter, const QRect& area, const QString& line) const {
    const QStringView number = leadingNumberOf(line);
    QRect rest = area;
    if (!number.isEmpty()) {
        const QColor numberColour = isMarked() || ownGround_ ? textColour() : theme::colour(theme::Role::Muted);
        painter.setFont(theme::font(look_.pixels, true));
        painter.setPen(numberColour);
        painter.drawText(QRect(area.left(), area.top(), kNumberColumn - 6, area.height()),
                         Qt::AlignRight | Qt::AlignVCenter, number.toString());
        rest.setLeft(area.left() + kNumberColumn);
        painter.setFont(theme::font(look_.pixels, isMarked()));
    }
    if (isMarked()) {
        // Which of the two chosen players it is does not depend on the colour alone: a disc for the first, a ring
        // for the other.
        const QRectF mark(area.right() - kMark, area.center().y() - kMark / 2.0, kMark, kMark);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(textColour(), 2));
        painter.setBrush(*ownText_ == theme::colour(colours::kRed) ? QBrush(Qt::NoBrush) : QBrush(textColour()));
        painter.drawEllipse(mark);
        rest.setRight(static_cast<int>(mark.left()) - 4);
    }
    painter.setPen(textColour());
    const QString name = number.isEmpty() ? line : line.mid(number.size() + 1);
    const QFontMetrics metrics(painter.font());
    painter.drawText(rest, Qt::AlignLeft | Qt::AlignVCenter, metrics.elidedText(name, Qt::ElideRight, rest.width()));
}

void TextLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawWords(painter);
    if (hasFocus()) theme::drawFocusRing(painter, rect());
}

void TextLabel::drawWords(QPainter& painter) const {
    const bool outlineOnly = look_.dashedWhenEmpty && text_.isEmpty();
    if (outlineOnly) {
        theme::drawSurface(painter, rect(), {std::nullopt, theme::colour(theme::Role::Line), 4, 1, true});
    } else if (ownGround_) {
        theme::drawSurface(painter, rect(), {ownGround_, std::nullopt});
    } else if (look_.ground) {
        theme::drawSurface(painter, rect(), {theme::colour(*look_.ground), std::nullopt});
    }

    QRect area = rect().adjusted(look_.padding, 0, -look_.padding, 0);
    if (text_.isEmpty()) {
        painter.setPen(theme::colour(theme::Role::Muted));
        painter.drawText(area, static_cast<int>(look_.alignment),
                         fontMetrics().elidedText(placeholder_, Qt::ElideRight, area.width()));
        return;
    }
    if (look_.leadingNumber) {
        drawNumbered(painter, area, text_);
        return;
    }
    if (mark_ != Mark::None) {
        drawMark(painter, QRectF(area.right() - kLargeMark, (height() - kLargeMark) / 2.0, kLargeMark, kLargeMark));
        area.setRight(area.right() - kLargeMark - 6);
    }
    painter.setPen(textColour());
    QStringList shown = lines();
    // Lines that do not fit under one another are not cut in half: the last that fits says there is more.
    const int fit = look_.keepsEnd ? std::max(1, height() / fontMetrics().height()) : mostLines(font(), height());
    if (shown.size() > fit) {
        shown = shown.first(fit);
        shown.last() += u'…';
    }
    if (look_.keepsEnd) {
        for (QString& line : shown) line = elided(line, area.width());
        painter.drawText(area, static_cast<int>(look_.alignment), shown.join(u'\n'));
    } else {
        fitted(shown, font(), area.size()).draw(painter, area, look_.alignment);
    }
}

void TextLabel::drawMark(QPainter& painter, const QRectF& area) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(textColour(), 2, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    if (mark_ != Mark::Tick) painter.drawEllipse(area);
    if (mark_ != Mark::Ring) {
        const QRectF tick = mark_ == Mark::Tick ? area : area.adjusted(3, 2.5, -3, -2.5);
        painter.drawPolyline(QPolygonF{{tick.left(), tick.center().y()},
                                       {tick.left() + tick.width() / 3, tick.bottom() - 1},
                                       {tick.right(), tick.top() + 1}});
    }
    painter.restore();
}

QString TextLabel::elided(const QString& line, int room) const {
    const QFontMetrics metrics = fontMetrics();
    QStringList words = line.split(u' ');
    const int excess = metrics.horizontalAdvance(line) - room;
    if (look_.keepsEnd && words.size() > 2 && excess > 0) {
        constexpr int kLeast = 5;  // characters of a host's name
        const int least = metrics.averageCharWidth() * kLeast;
        const int width = std::max(metrics.horizontalAdvance(words[1]) - excess, least);
        words[1] = metrics.elidedText(words[1], Qt::ElideRight, width);
    }
    return metrics.elidedText(words.join(u' '), Qt::ElideRight, room);
}

void TextLabel::resizeEvent(QResizeEvent*) {
    updateToolTip();
}

void TextLabel::mousePressEvent(QMouseEvent* event) {
    Q_EMIT mousePressed(event->button());
}

}  // namespace zelvor
