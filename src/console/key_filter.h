#pragma once

#include <QObject>
#include <span>
#include <vector>

#include "console/form_keys.h"
#include "console/key_repeats.h"

class QWidget;

namespace zelvor {

// The form sees every key before its controls: F1 to F10 are told, once a press; a focused input gets the keys it
// edits with, Tab moves between controls, combinations with Ctrl or Alt do what FormKeys knows, and every other key is
// consumed. A window beside the form keeps its keys but
// F1 to F10: they fire cards wherever the operator has clicked last. In every window a held key is one press, and
// Ctrl+Shift+Delete is CLEAR.
class KeyFilter : public QObject {
    Q_OBJECT

 public:
    // form: the window whose keys are filtered, and the filter's parent.
    KeyFilter(QWidget& form, const FormModel& model);

    // A key of the window, which no control has.
    struct WindowKey {
        QStringView key;   // "Ctrl+K"
        const char* deed;  // marked for translation
        void (KeyFilter::*pressed)();
    };
    [[nodiscard]] static std::span<const WindowKey> windowKeys();

    // A window whose F1 to F10 are the form's.
    void addBeside(const QWidget& window) { beside_.push_back(&window); }

 Q_SIGNALS:
    // number: 1 to 10.
    void functionKey(int number);
    void clearKey();
    void sheetKey();
    void findKey();
    void fullScreenKey();
    // Alt is held down, or is no longer, while the form is the active window.
    void altHeld(bool held);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    bool windowSees(const QKeyEvent& key);

    bool formSees(const QKeyEvent& key, QWidget* focus);
    bool pressCombination(const QKeyEvent& key, QWidget* focus);
    void watchAlt(const QKeyEvent& key);
    void watchLayout(const QKeyEvent& key);
    void letAltGo();

    QWidget& form_;
    FormKeys formKeys_;
    bool isAltHeld_ = false;
    bool layoutChanged_ = false;  // while Alt is held: nothing fires until it is let go
    KeyRepeats repeats_;
    std::vector<const QWidget*> beside_;
};

}  // namespace zelvor
