#pragma once

#include <QString>

#include "form/control.h"

namespace zelvor {

// What a control is for, in the operator's words: its tool tip and, before its text, its name for screen readers.
// Every control of the form has one.
QString hintFor(const Control& control);

}  // namespace zelvor
