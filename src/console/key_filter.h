#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace zelvor {

// The form sees every key before its controls: F1 to F10 are told, once a press; a focused input gets the keys it
// edits with, Tab moves between inputs, and every other key is consumed.
class KeyFilter : public QObject {
    Q_OBJECT

 public:
    // form: the window whose keys are filtered, and the filter's parent.
    explicit KeyFilter(QWidget& form);

 Q_SIGNALS:
    // number: 1 to 10.
    void functionKey(int number);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QWidget& form_;
};

}  // namespace zelvor
