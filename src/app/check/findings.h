#pragma once

#include <QString>
#include <QTextStream>
#include <vector>

namespace zelvor {

// A line of a file, from 1; the file as findings name it.
struct Place {
    QString file;
    int line = 1;
};

// What is wrong with the packs that were read. The same finding met twice (an include of several scripts) counts once.
class Findings {
 public:
    void error(const Place& place, const QString& text) { add(place, true, text); }
    void warning(const Place& place, const QString& text) { add(place, false, text); }

    // Prints a line each, sorted by file and line, then the counts; returns the number of errors.
    int print(QTextStream& out);

 private:
    struct Finding {
        Place place;
        bool isError;
        QString text;
    };

    void add(const Place& place, bool isError, const QString& text) { all_.push_back({place, isError, text}); }
    void sort();

    std::vector<Finding> all_;
};

}  // namespace zelvor
