#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointF>
#include <QTimer>

class QScreen;
class QTouchEvent;
class QWidget;

namespace zelvor {

// Fingers on the console's window: a tap presses as the mouse does, a long press is the right button where that has a
// deed of its own (cards, players). For fingers everything that is pressed is made at least 9 mm high and wide.
class Touch : public QObject {
    Q_OBJECT

 public:
    static constexpr double kLeastSize = 9;   // millimetres
    static constexpr int kLongPress = 600;    // milliseconds
    static constexpr int kMostMovement = 24;  // pixels; a finger that goes further presses nothing

    // window: with all its panels; outlives this object.
    explicit Touch(QWidget& window);

    // Whether the machine has a touch screen.
    [[nodiscard]] static bool isThere();
    // kLeastSize in pixels, by the resolution that the screen reports.
    [[nodiscard]] static int leastPixels(const QScreen& screen);
    // Enlarges what is too small for a finger on the window's screen.
    void enlarge();

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void goDown(QWidget& widget, QPointF place);
    void goUp();
    void letGo();
    void pressLong();

    QWidget& window_;
    QWidget* held_ = nullptr;
    QPointF place_;
    QTimer longPress_;
    QWidget* tapped_ = nullptr;
    QElapsedTimer sinceTap_;
};

}  // namespace zelvor
