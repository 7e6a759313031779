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
    void loadForm(const Asker& asker, const QString& name) override;

    using Show = std::function<void(const Asker& asker)>;
    void addForm(const QString& name, Show show) { forms_[name] = std::move(show); }

 private:
    const AppFolder& folder_;
    std::map<QString, Show> forms_;
};

}  // namespace zelvor
