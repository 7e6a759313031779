#pragma once

#include <QSet>
#include <QStringList>
#include <map>
#include <set>

namespace zelvor {

// Names with kAnything in them, found without looking at each: many packs build thousands of names in loops.
class NamePatterns {
 public:
    void insert(const QString& pattern);

    // Whether the name, which may hold kAnything itself, may be one of these.
    [[nodiscard]] bool mayHold(const QString& name) const;

 private:
    // By what stands behind the last kAnything, read backwards: the pieces between the first kAnything and the last.
    using Endings = std::map<QString, QSet<QStringList>>;

    static bool mayEnd(const Endings& endings, QStringView rest, bool isExact);

    std::map<QString, Endings> beginnings_;  // by what stands before the first kAnything
};

// Names as they are, found by a pattern without looking at each.
class ExactNames {
 public:
    void insert(const QString& name);
    [[nodiscard]] bool contains(const QString& name) const { return names_.contains(name); }

    // Whether one of these is of the pattern's form.
    [[nodiscard]] bool anyIs(const QString& pattern) const;

 private:
    std::set<QString> names_;
    std::set<QString> backwards_;
};

}  // namespace zelvor
