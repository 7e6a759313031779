#include "console/paint_hold.h"

#include <gtest/gtest.h>

#include <QWidget>

#include "support/wait.h"

namespace zelvor::test {

// A card that waits in the turn before a press keeps the event loop going inside it.
TEST(PaintHold, EndsByItselfWhileATurnWaits) {
    struct Counting : QWidget {
        int painted = 0;
        void paintEvent(QPaintEvent*) override { ++painted; }
    } window;
    PaintHold paint(window);
    window.show();
    ASSERT_TRUE(waitUntil([&] { return window.painted > 0; }));
    const int before = window.painted;
    paint.hold(true);
    window.update();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.painted, before);
    EXPECT_TRUE(waitUntil([&] { return window.painted > before; }));
}

}  // namespace zelvor::test
