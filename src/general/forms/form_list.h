#pragma once

#include <QWidget>
#include <vector>

#include "base/closing.h"
#include "general_rules/open_forms.h"

namespace zelvor {

// The program's small forms, found by their objectName. A form counts as open while it is on the screen;
// when the program closes, all do without asking anything.
class FormList : public OpenForms {
 public:
    // console: the window that the forms stand beside; outlives this list.
    FormList(QWidget& console, const Closing& closing) : console_(console), closing_(closing) {}

    // The form must outlive this list.
    void add(QWidget& form);

    [[nodiscard]] QStringList names() const override;
    void show(const QString& name) override;
    void bringToFront(const QString& name) override;
    void close(const QString& name) override;

 private:
    [[nodiscard]] QWidget* find(const QString& name) const;

    QWidget& console_;
    const Closing& closing_;
    std::vector<QWidget*> forms_;
};

}  // namespace zelvor
