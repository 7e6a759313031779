#pragma once

#include <functional>
#include <map>

#include "base/app_folder.h"
#include "engine/ports.h"

namespace zelvor {

// The operating system's way to open things, and the program's other forms by their names.
class SystemDesktop : public Desktop {
 public:
    // A relative target lies in the application folder.
    explicit SystemDesktop(const AppFolder& folder) : folder_(folder) {}

    void open(const QString& target) override;
    void loadForm(const QString& name) override;

    void addForm(const QString& name, std::function<void()> show) { forms_[name] = std::move(show); }

 private:
    const AppFolder& folder_;
    std::map<QString, std::function<void()>> forms_;
};

}  // namespace zelvor
