#include "app_check/findings.h"

#include <algorithm>
#include <tuple>

namespace zelvor {

const std::vector<Finding>& Findings::sorted() {
    const auto key = [](const Finding& finding) {
        return std::tie(finding.place.file, finding.place.line, finding.text);
    };
    std::ranges::sort(all_, [&](const Finding& a, const Finding& b) { return key(a) < key(b); });
    const auto same = [&](const Finding& a, const Finding& b) { return key(a) == key(b); };
    all_.erase(std::unique(all_.begin(), all_.end(), same), all_.end());
    return all_;
}

}  // namespace zelvor
