#include "soak_desk/line_ledger.h"

namespace zelvor {

void LineLedger::beginConnection() {
    const std::lock_guard lock(mutex_);
    connections_.emplace_back();
}

void LineLedger::add(std::string_view line) {
    const std::lock_guard lock(mutex_);
    if (!connections_.empty()) connections_.back().push_back(numberOf(line));
}

std::vector<LineLedger::Connection> LineLedger::connections() const {
    const std::lock_guard lock(mutex_);
    return connections_;
}

std::size_t LineLedger::lineCount() const {
    const std::lock_guard lock(mutex_);
    std::size_t count = 0;
    for (const Connection& connection : connections_) count += connection.size();
    return count;
}

}  // namespace zelvor
