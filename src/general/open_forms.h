#pragma once

#include <QStringList>

namespace zelvor {

// The program's small forms by their names ("frmGENERAL").
class OpenForms {
 public:
    virtual ~OpenForms() = default;
    // The names of all forms that are open.
    [[nodiscard]] virtual QStringList names() const = 0;
    // Opens the form, not modally, behind the console where the two overlap; the keyboard stays where it is.
    virtual void show(const QString& name) = 0;
    // Opens the form, not modally, in front of all others and gives it the keyboard.
    virtual void bringToFront(const QString& name) = 0;
    // Closes the form without asking anything; nothing when it is not open.
    virtual void close(const QString& name) = 0;
};

// True when a form of exactly that name is open.
inline bool IsFormOpen(const OpenForms& forms, const QString& name) {
    return forms.names().contains(name);
}

}  // namespace zelvor
