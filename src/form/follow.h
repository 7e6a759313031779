#pragma once

#include <algorithm>
#include <vector>

#include "form/control.h"

namespace zelvor {

// Calls handler() after every change of one of these properties of a control, for as long as the receiver lives.
template <class Handler>
void onChange(const Control& control, const std::vector<Control::Property>& properties, const QObject* receiver,
              Handler handler) {
    QObject::connect(&control, &Control::changed, receiver, [properties, handler](Control*, Control::Property changed) {
        if (std::ranges::find(properties, changed) != properties.end()) handler();
    });
}

// The same for what shows the control: handler() is called at once too.
template <class Handler>
void follow(const Control& control, const std::vector<Control::Property>& properties, const QObject* receiver,
            Handler handler) {
    handler();
    onChange(control, properties, receiver, handler);
}

}  // namespace zelvor
