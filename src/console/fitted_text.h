#pragma once

#include <QFont>
#include <QSize>
#include <QStringList>

class QPainter;
class QRect;

namespace zelvor {

// A caption as it fits into its place: in its own size where it can, else in more lines or smaller, and only then
// elided.
struct FittedText {
    QStringList lines;
    QFont font;
    int step = 0;  // pixels from one line to the next

    [[nodiscard]] int height() const { return step * static_cast<int>(lines.size()); }
    void draw(QPainter& painter, const QRect& area, Qt::Alignment alignment) const;
};

// How many lines fit into that height (pixels) at the smallest.
int mostLines(const QFont& font, int height);

// lines: each may be broken in two at a blank. room: in pixels.
FittedText fitted(const QStringList& lines, const QFont& font, QSize room);

}  // namespace zelvor
