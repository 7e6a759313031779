#pragma once

#include <QString>
#include <functional>
#include <map>

#include "base/error_trap.h"
#include "form/control.h"

namespace zelvor {

// What the operator does to the form, handed to the rule that answers it. Each handler runs in the error trap.
class FormEvents {
 public:
    using Tell = ErrorTrap::Tell;
    // index: the element's number in its control array, -1 for a control of its own.
    using Click = std::function<void(int index)>;
    using MouseDown = std::function<void(int index, Qt::MouseButton button)>;

    explicit FormEvents(ErrorTrap& trap) : trap_(trap) {}

    // One handler a control, or array of them; a second one replaces the first.
    void onClick(const ControlRow& row, Click handler, Tell tell = Tell::Operator);
    void onMouseDown(const ControlRow& row, MouseDown handler, Tell tell = Tell::LogOnly);
    void onEnter(const ControlRow& row, Click handler, Tell tell = Tell::Operator);

    // A control without a handler is left alone.
    void click(const Control& control) const;
    void mouseDown(const Control& control, Qt::MouseButton button) const;
    void enter(const Control& control) const;

 private:
    template <class Handler>
    struct Entry {
        Handler handler;
        Tell tell;
    };

    template <class Body>
    void run(const Control& control, const QString& event, Tell tell, Body&& body) const;

    ErrorTrap& trap_;
    std::map<QString, Entry<Click>> clicks_;
    std::map<QString, Entry<MouseDown>> mouseDowns_;
    std::map<QString, Entry<Click>> enters_;
};

}  // namespace zelvor
