#pragma once

#include <QObject>
#include <vector>

#include "console/key_repeats.h"

class QWidget;

namespace zelvor {

// The form sees every key before its controls: F1 to F10 are told, once a press; a focused input gets the keys it
// edits with, Tab moves between inputs, and every other key is consumed. A window beside the form keeps its keys but
// F1 to F10: they fire cards wherever the operator has clicked last. In every window a held key is one press, and
// Ctrl+Shift+Delete is CLEAR.
class KeyFilter : public QObject {
    Q_OBJECT

 public:
    // form: the window whose keys are filtered, and the filter's parent.
    explicit KeyFilter(QWidget& form);

    // A window whose F1 to F10 are the form's.
    void addBeside(const QWidget& window) { beside_.push_back(&window); }

 Q_SIGNALS:
    // number: 1 to 10.
    void functionKey(int number);
    void clearKey();

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    bool windowSees(const QKeyEvent& key);

    QWidget& form_;
    KeyRepeats repeats_;
    std::vector<const QWidget*> beside_;
};

}  // namespace zelvor
