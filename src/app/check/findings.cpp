#include "app_check/findings.h"

#include <algorithm>
#include <tuple>

namespace zelvor {

void Findings::sort() {
    const auto key = [](const Finding& finding) {
        return std::tie(finding.place.file, finding.place.line, finding.text);
    };
    std::ranges::sort(all_, [&](const Finding& a, const Finding& b) { return key(a) < key(b); });
    const auto same = [&](const Finding& a, const Finding& b) { return key(a) == key(b); };
    all_.erase(std::unique(all_.begin(), all_.end(), same), all_.end());
}

int Findings::print(QTextStream& out) {
    sort();
    for (const Finding& finding : all_) {
        out << finding.place.file << ':' << finding.place.line << (finding.isError ? ": error: " : ": warning: ")
            << finding.text << '\n';
    }
    const auto errors = static_cast<int>(std::ranges::count_if(all_, &Finding::isError));
    const auto warnings = static_cast<int>(all_.size()) - errors;
    out << errors << (errors == 1 ? " error, " : " errors, ") << warnings
        << (warnings == 1 ? " warning\n" : " warnings\n");
    return errors;
}

}  // namespace zelvor
