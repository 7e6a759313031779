#pragma once

#include <QSet>
#include <map>

#include "app_check/findings.h"
#include "app_check/pack_files.h"
#include "app_check/script_check.h"
#include "app_check/script_facts.h"
#include "base/app_folder.h"

namespace zelvor {

// Checks one pack: its card table, ask fields, scripts, and the variables that they share. What a script says by itself
// is kept until a file of it changes, so that checking again is quick.
class PackCheck {
 public:
    // The folder must outlive this.
    PackCheck(const AppFolder& folder, const QString& code);

    // Everything that is wrong with the pack now.
    Findings findings();

    [[nodiscard]] PackFiles& files() { return files_; }
    // Each script's facts by its path; those of the last findings().
    [[nodiscard]] const std::map<QString, ScriptFacts>& scripts() const { return scripts_; }
    // The fields that ASKFIELDS.TXT describes; those of the last findings().
    [[nodiscard]] const QSet<int>& askFields() const { return askFields_; }

    // A file has another content than before, or is there or gone.
    void changed(const QString& path);

 private:
    void readScripts();
    [[nodiscard]] QSet<QString> onlyIncluded(const std::vector<NamePlace>& tableCards) const;
    void warnOfWaiting(Findings& findings) const;

    PackFiles files_;
    QSet<int> askFields_;
    ScriptCheck check_;
    std::map<QString, ScriptFacts> scripts_;
};

// Checks every pack of PACKS.TXT.
void checkPacks(const AppFolder& folder, Findings& findings);

}  // namespace zelvor
