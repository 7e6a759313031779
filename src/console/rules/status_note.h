#pragma once

#include <QObject>
#include <QTimer>

#include "form/form_model.h"

namespace zelvor {

// The note in the status line (lblNOTE): what became of a press, until the next one or for a while.
class StatusNote : public QObject {
    Q_OBJECT

 public:
    static constexpr int kShown = 10'000;  // milliseconds

    explicit StatusNote(FormModel& form) : label_(form.at(controls.lblNOTE)) {
        timer_.setSingleShot(true);
        connect(&timer_, &QTimer::timeout, this, &StatusNote::clear);
    }

    void say(const QString& words, Control::Role role = Control::Role::Waiting) {
        label_.setRole(role);
        label_.setText(words);
        timer_.start(kShown);
    }
    void clear() { label_.setText({}); }

 private:
    Control& label_;
    QTimer timer_{this};
};

}  // namespace zelvor
