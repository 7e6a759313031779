#pragma once

#include <functional>
#include <map>

#include "engine/ports.h"

namespace zelvor {

// The operating system's way to open things, and the program's other forms by their names.
class SystemDesktop : public Desktop {
 public:
    void open(const QString& target) override;
    void loadForm(const QString& name) override;

    void addForm(const QString& name, std::function<void()> show) { forms_[name] = std::move(show); }

 private:
    std::map<QString, std::function<void()>> forms_;
};

}  // namespace zelvor
