#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QWidget>

#include "console/mirror.h"

namespace zelvor {

// The ground that every panel on the right stands on; its visibility follows its control.
class PanelFrame : public QWidget {
    Q_OBJECT

 public:
    PanelFrame(const Mirrors& mirrors, const ControlRow& row) { mirrors.panel(this, row); }

    // A fixed word of the panel, muted.
    static QLabel* word(const QString& text) {
        auto* label = new QLabel(text);
        label->setFont(theme::font(12));
        label->setForegroundRole(QPalette::PlaceholderText);
        return label;
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        theme::drawSurface(painter, rect(), {theme::colour(theme::Role::Panel), theme::colour(theme::Role::Line), 5});
    }
};

}  // namespace zelvor
