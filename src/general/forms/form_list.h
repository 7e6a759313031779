#pragma once

#include <QWidget>
#include <vector>

#include "general_rules/open_forms.h"

namespace zelvor {

// The program's small forms, found by their objectName. A form counts as open while it is on the screen.
class FormList : public OpenForms {
 public:
    // console: the window that the forms stand beside; outlives this list.
    explicit FormList(QWidget& console) : console_(console) {}

    // The form must outlive this list.
    void add(QWidget& form);

    [[nodiscard]] QStringList names() const override;
    void show(const QString& name) override;
    void bringToFront(const QString& name) override;
    void close(const QString& name) override;
    void closeAll();

 private:
    [[nodiscard]] QWidget* find(const QString& name) const;

    QWidget& console_;
    std::vector<QWidget*> forms_;
};

}  // namespace zelvor
