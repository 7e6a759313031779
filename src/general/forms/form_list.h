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
    explicit FormList(const Closing& closing) : closing_(closing) {}

    // The window that the forms stand beside. It and the forms must be there while forms are asked for.
    void setConsole(QWidget& console) { console_ = &console; }
    void add(QWidget& form);

    [[nodiscard]] QStringList names() const override;
    void show(const QString& name) override;
    void bringToFront(const QString& name) override;
    void close(const QString& name) override;

 private:
    [[nodiscard]] QWidget* find(const QString& name) const;

    const Closing& closing_;
    QWidget* console_ = nullptr;
    std::vector<QWidget*> forms_;
};

}  // namespace zelvor
