#include "console/fitted_text.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

namespace zelvor {

namespace {

constexpr int kSmallestFont = 11;        // pixels
constexpr double kSmallestPart = 0.7;    // of the font's own size
constexpr double kClose = 1.2;           // of a font's size, from one line to the next where room is scarce
constexpr qsizetype kMostToBreak = 120;  // characters; measuring more at each blank would hold the painting

int widestOf(const QStringList& lines, const QFontMetrics& metrics) {
    int widest = 0;
    for (const QString& line : lines) widest = std::max(widest, metrics.horizontalAdvance(line));
    return widest;
}

// At the blank where the wider part is narrowest; whole without one.
QStringList brokenInTwo(const QString& line, const QFontMetrics& metrics) {
    QStringList best{line};
    if (line.size() > kMostToBreak) return best;
    int narrowest = metrics.horizontalAdvance(line);
    for (qsizetype at = line.indexOf(u' '); at >= 0; at = line.indexOf(u' ', at + 1)) {
        const QStringList parts{line.left(at), line.mid(at + 1)};
        const int widest = widestOf(parts, metrics);
        if (widest >= narrowest) continue;
        narrowest = widest;
        best = parts;
    }
    return best;
}

// Each that is wider than the room.
QStringList brokenWhereTooWide(const QStringList& lines, const QFontMetrics& metrics, int room) {
    QStringList broken;
    for (const QString& line : lines)
        broken += metrics.horizontalAdvance(line) > room ? brokenInTwo(line, metrics) : QStringList{line};
    return broken;
}

// With its lines closer together where the room is low.
FittedText setAt(const QStringList& lines, QFont font, int pixels, QSize room) {
    font.setPixelSize(pixels);
    const int spaced = QFontMetrics(font).height();
    const int close = std::max(qRound(pixels * kClose), room.height() / static_cast<int>(lines.size()));
    return {lines, font, std::min(spaced, close)};
}

int smallestOf(int pixels) {
    return std::min(pixels, std::max(kSmallestFont, qRound(pixels * kSmallestPart)));
}

}  // namespace

int mostLines(const QFont& font, int height) {
    return std::max(1, height / qRound(smallestOf(font.pixelSize()) * kClose));
}

FittedText fitted(const QStringList& lines, const QFont& font, QSize room) {
    const int own = font.pixelSize();
    const int smallest = smallestOf(own);
    FittedText text;
    for (int pixels = own; pixels >= smallest; --pixels) {
        text = setAt(lines, font, pixels, room);
        const QFontMetrics metrics(text.font);
        const bool isLow = lines.size() == 1 || text.height() <= room.height();
        if (isLow && widestOf(lines, metrics) <= room.width()) return text;
        const FittedText broken = setAt(brokenWhereTooWide(lines, metrics, room.width()), font, pixels, room);
        if (broken.height() > room.height()) continue;
        text = broken;
        if (widestOf(broken.lines, metrics) <= room.width()) return text;
    }
    const QFontMetrics metrics(text.font);
    for (QString& line : text.lines) line = metrics.elidedText(line, Qt::ElideRight, room.width());
    return text;
}

void FittedText::draw(QPainter& painter, const QRect& area, Qt::Alignment alignment) const {
    painter.setFont(font);
    const int flags = static_cast<int>((alignment & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter) | Qt::TextDontClip;
    QRect line(area.left(), area.top() + (area.height() - height()) / 2, area.width(), step);
    for (const QString& each : lines) {
        painter.drawText(line, flags, each);
        line.translate(0, step);
    }
}

}  // namespace zelvor
