#include "rehearsal/line_buffer.h"

#include <gtest/gtest.h>

#include <QString>
#include <vector>

namespace zelvor::rehearsal {
namespace {

std::vector<QByteArray> linesOf(LineBuffer& buffer, const std::vector<QByteArray>& pieces) {
    std::vector<QByteArray> lines;
    for (const QByteArray& piece : pieces) {
        buffer.append(piece);
        while (const auto line = buffer.next()) {
            lines.push_back(line->overlong ? "overlong:" + line->bytes : line->bytes);
        }
    }
    return lines;
}

TEST(LineBuffer, CutsAtEitherLineEndWhateverThePieces) {
    struct Row {
        std::vector<QByteArray> pieces;
        std::vector<QByteArray> lines;
    };
    const std::vector<Row> rows = {
        {{"VERSION\r\n"}, {"VERSION"}},
        {{"VER", "SION", "\r", "\nINFO\r\n"}, {"VERSION", "INFO"}},
        {{"A\nB\rC\r\n\r\n\r\nD"}, {"A", "B", "C"}},
        {{"", "half a line"}, {}},
    };
    for (const Row& row : rows) {
        LineBuffer buffer;
        EXPECT_EQ(linesOf(buffer, row.pieces), row.lines);
    }
}

TEST(LineBuffer, RefusesOverlongLinesOnceAndGoesOnBehindThem) {
    const QByteArray fits(LineBuffer::kMaxLine, 'x');
    const QByteArray half(LineBuffer::kMaxLine / 2 + 1, 'y');
    const QByteArray shown = "overlong:" + QByteArray(LineBuffer::kShownOfOverlong, 'y');
    LineBuffer buffer;
    EXPECT_EQ(linesOf(buffer, {fits, "\r\n"}), std::vector<QByteArray>{fits});
    EXPECT_EQ(linesOf(buffer, {half, half, half, half, "\r\nINFO\r\n"}), (std::vector<QByteArray>{shown, "INFO"}));
    EXPECT_EQ(linesOf(buffer, {half + half + "\nINFO\n"}), (std::vector<QByteArray>{shown, "INFO"}));
}

}  // namespace
}  // namespace zelvor::rehearsal
