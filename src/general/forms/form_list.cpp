#include "general_forms/form_list.h"

namespace zelvor {

QStringList FormList::names() const {
    QStringList names;
    for (const QWidget* form : forms_) {
        if (form->isVisible()) names += form->objectName();
    }
    return names;
}

void FormList::show(const QString& name) {
    for (QWidget* form : forms_) {
        if (form->objectName() != name) continue;
        form->show();
        form->raise();
        form->activateWindow();
    }
}

void FormList::close(const QString& name) {
    // Hidden, not closed: closing would ask about what is not saved.
    for (QWidget* form : forms_) {
        if (form->objectName() == name) form->hide();
    }
}

void FormList::closeAll() {
    for (QWidget* form : forms_) form->hide();
}

}  // namespace zelvor
