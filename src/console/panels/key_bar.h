#pragma once

#include <QWidget>

#include "console/mirror.h"

namespace zelvor {

// The bottom of the window: F1 to F5 with their titles; feed, links and database in words.
class KeyBar : public QWidget {
    Q_OBJECT

 public:
    explicit KeyBar(const Mirrors& mirrors);

 protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace zelvor
