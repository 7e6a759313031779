#pragma once

#include <QString>
#include <vector>

namespace zelvor {

// A line of a file, from 1; the file as findings name it.
struct Place {
    QString file;
    int line = 1;
};

struct Finding {
    Place place;
    bool isError;
    QString text;
};

// What is wrong with the packs that were read. The same finding met twice (an include of several scripts) counts once.
class Findings {
 public:
    void error(const Place& place, const QString& text) { add(place, true, text); }
    void warning(const Place& place, const QString& text) { add(place, false, text); }

    void append(const Findings& others) { all_.insert(all_.end(), others.all_.begin(), others.all_.end()); }

    // All of them, sorted by file and line, each once.
    const std::vector<Finding>& sorted();

 private:
    void add(const Place& place, bool isError, const QString& text) { all_.push_back({place, isError, text}); }

    std::vector<Finding> all_;
};

}  // namespace zelvor
