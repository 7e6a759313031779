#pragma once

#include <cstddef>
#include <mutex>
#include <string_view>
#include <vector>

namespace zelvor {

// Which lines went over each connection, in their order: one side keeps what it sent, the other what arrived. Keeps a
// number for each line instead of its text, so that a long game does not look like a leak.
class LineLedger {
 public:
    using Connection = std::vector<std::size_t>;

    void beginConnection();
    // line: without its line end. Belongs to the connection begun last; dropped before the first.
    void add(std::string_view line);

    [[nodiscard]] std::vector<Connection> connections() const;
    [[nodiscard]] std::size_t lineCount() const;

    static std::size_t numberOf(std::string_view line) { return std::hash<std::string_view>()(line); }

 private:
    mutable std::mutex mutex_;
    std::vector<Connection> connections_;
};

}  // namespace zelvor
