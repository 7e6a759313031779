#pragma once

#include <QString>
#include <QStringView>
#include <optional>

#include "form/colour.h"

namespace zelvor {

enum class ControlKind { Label, TextBox, Button, CheckBox, OptionButton, List, Panel };

// What a control tells besides its text: all is well, something is waited for, something is wrong, or it is switched
// off. The rule that writes the words sets it; the console draws it. Plain: the text is all there is to tell.
enum class ControlRole { Plain, Good, Waiting, Bad, Off };
// "plain", "good", "waiting", "bad", "off".
QString roleText(ControlRole role);

// A control's properties before anything has happened.
struct FirstState {
    const char* text = "";
    QStringView tag = {};
    std::optional<Colour> foreColour = {};
    bool visible = true;
    bool enabled = true;
    bool checked = false;  // of an array: its first element
    ControlRole role = ControlRole::Plain;
};

// The numbers of a control array's elements, -1 for a control of its own.
struct ElementNumbers {
    int first = -1;
    int last = -1;
};

// What is known of a control, or of an array of them, beforehand; and the handle by which rules and panels name it.
// Hint and text of an array: one for all elements, or one each, set apart by '|'. Both are UTF-8; what is marked for
// translation is shown in the operator's language, while scripts see the text as it stands.
struct ControlRow {
    ControlKind kind;
    QStringView name;  // as scripts write it
    const char* hint;  // what it is for: tool tip and accessible name; "%1" is the element's number, counted from 1
    FirstState state = {};
    ElementNumbers elements = {};
    // What the keyboard has for it, "Ctrl+H". Of an array one each, set apart by '|'; one alone leads to its elements.
    QStringView key = {};

    // The hint in the operator's language, of an array for all elements.
    [[nodiscard]] QString shownHint() const;
};

}  // namespace zelvor
