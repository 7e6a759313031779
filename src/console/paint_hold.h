#pragma once

#include <QObject>

class QWidget;

namespace zelvor {

// Keeps a window from painting while a press has its turn before its deed: what the deed sends leaves first, and the
// window paints afterwards, once.
class PaintHold : public QObject {
    Q_OBJECT

 public:
    // window: a top-level widget, which outlives this object.
    explicit PaintHold(QWidget& window);

    void hold(bool on);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QWidget& window_;
    bool holds_ = false;
    bool wanted_ = false;  // the window asked to paint meanwhile
};

}  // namespace zelvor
