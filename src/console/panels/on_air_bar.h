#pragma once

#include <QWidget>

#include "console/mirror.h"

class QHBoxLayout;

namespace zelvor {

// The top of the window: main menu, language, screen mode, what is on air with its lock, the preview mark, the clear
// button.
class OnAirBar : public QWidget {
    Q_OBJECT

 public:
    explicit OnAirBar(const Mirrors& mirrors);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    QHBoxLayout* makeModes(const Mirrors& mirrors);
    QWidget* makeLine(const Mirrors& mirrors);
    void showFrame();

    FormModel& form_;
    QWidget* line_;
};

}  // namespace zelvor
