#pragma once

#include <QObject>
#include <QString>
#include <map>
#include <memory>
#include <vector>

#include "form/control.h"
#include "form/controls.h"

namespace zelvor {

// Every control of the main form (frmMAIN) that a script or a rule may read or change: a rule finds it by its row in
// `controls`, a script by name, both in a control array by number. It knows no widget.
class FormModel : public QObject {
    Q_OBJECT

 public:
    // Makes all controls of the table.
    FormModel();

    // The control of that row and number. A number that does not exist throws 9 Subscript out of range.
    [[nodiscard]] Control& at(const ControlRow& row, int index = -1) const;
    // All elements of that row, in order of their numbers.
    [[nodiscard]] std::vector<Control*> named(const ControlRow& row) const { return named(row.name); }

    // As scripts name it: null, or an empty list, when there is no such control.
    [[nodiscard]] Control* find(QStringView name, int index = -1) const;
    [[nodiscard]] std::vector<Control*> named(QStringView name) const;

    [[nodiscard]] std::vector<Control*> all() const;

 Q_SIGNALS:
    // Any property of any control has changed.
    void changed(zelvor::Control* control, zelvor::Control::Property property);

 private:
    // Names are looked up without a copy of them.
    struct Before {
        using is_transparent = void;
        using Key = std::pair<QStringView, int>;
        bool operator()(const Key& a, const Key& b) const { return a < b; }
    };

    std::map<std::pair<QString, int>, std::unique_ptr<Control>, Before> controls_;
};

}  // namespace zelvor
