#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

namespace zelvor {

// Keeps a window from painting while a press has its turn before its deed: what the deed sends leaves first, and the
// window paints afterwards, once. Not for long: a card that waits in that turn must not freeze what is seen.
class PaintHold : public QObject {
    Q_OBJECT

 public:
    static constexpr int kLongest = 20;  // milliseconds

    // window: a top-level widget, which outlives this object.
    explicit PaintHold(QWidget& window);

    void hold(bool on);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QWidget& window_;
    QTimer longest_;
    bool holds_ = false;
    bool wanted_ = false;  // the window asked to paint meanwhile
};

}  // namespace zelvor
