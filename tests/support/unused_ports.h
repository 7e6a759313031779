#pragma once

#include "engine/ports.h"

namespace zelvor::test {

// The ports that a measured card does not use. A message box ends the program: nothing was to go wrong.
class Unused : public Operator, public AskDialog, public Database, public Desktop {
 public:
    void message(const Asker&, const QString&, const QString& text, Severity) override {
        qFatal("%s", qPrintable(text));
    }
    bool yesNo(const Asker&, const QString&, const QString&) override { return true; }
    std::optional<QString> input(const Asker&, const QString&, const QString&, const QString&) override { return {}; }
    void show(const Asker&) override {}
    int RUN_QUERY(const Asker&, const QString&) override { return 0; }
    int RUN_QUERY2(const Asker&, const QString&) override { return 0; }
    bool execute(const Asker&, const QString&) override { return true; }
    std::optional<NamedRows> readGreek(const Asker&, const QString&) override { return NamedRows(); }
    void open(const QString&) override {}
    void loadForm(const Asker&, const QString&) override {}
};

}  // namespace zelvor::test
