#include "app_check/name_patterns.h"

#include <algorithm>

#include "app_check/placeholder_scan.h"

namespace zelvor {

namespace {

QString backwards(QStringView text) {
    QString reversed = text.toString();
    std::ranges::reverse(reversed);
    return reversed;
}

// Whether the text holds the pieces in that order.
bool holdsInOrder(QStringView text, const QStringList& pieces) {
    return std::ranges::all_of(pieces, [&](const QString& piece) {
        const qsizetype at = text.indexOf(piece);
        if (at >= 0) text = text.sliced(at + piece.size());
        return at >= 0;
    });
}

// Whether holds(key, value) of an entry whose key the text begins with.
template <class Map, class Holds>
bool anyWithin(const Map& map, const QString& text, Holds holds) {
    for (qsizetype length = 0; length <= text.size(); ++length) {
        const auto found = map.find(text.left(length));
        if (found != map.end() && holds(found->first, found->second)) return true;
    }
    return false;
}

// Whether holds(key, value) of an entry whose key begins with the text.
template <class Map, class Holds>
bool anyBeyond(const Map& map, const QString& text, Holds holds) {
    for (auto at = map.lower_bound(text); at != map.end() && at->first.startsWith(text); ++at) {
        if (holds(at->first, at->second)) return true;
    }
    return false;
}

}  // namespace

void NamePatterns::insert(const QString& pattern) {
    QStringList pieces = pattern.split(kAnything);
    const QString beginning = pieces.takeFirst();
    const QString ending = backwards(pieces.takeLast());
    beginnings_[beginning][ending].insert(pieces);
}

bool NamePatterns::mayHold(const QString& name) const {
    const QString beginning = name.section(kAnything, 0, 0);
    const bool isExact = beginning.size() == name.size();
    const auto fits = [&](const QString& known, const Endings& endings) {
        return mayEnd(endings, QStringView(name).sliced(std::min(known.size(), beginning.size())), isExact);
    };
    return anyWithin(beginnings_, beginning, fits) || (!isExact && anyBeyond(beginnings_, beginning, fits));
}

// rest: the name behind the pattern's beginning. Two patterns may be the same when their ends agree: what either has in
// between, the other's kAnything may stand for.
bool NamePatterns::mayEnd(const Endings& endings, QStringView rest, bool isExact) {
    const QString reversed = backwards(rest);
    if (isExact) {
        return anyWithin(endings, reversed, [&](const QString& ending, const QSet<QStringList>& between) {
            const QStringView middle = rest.chopped(ending.size());
            return std::ranges::any_of(between,
                                       [&](const QStringList& pieces) { return holdsInOrder(middle, pieces); });
        });
    }
    const QString ending = reversed.section(kAnything, 0, 0);
    const auto always = [](const auto&...) { return true; };
    return anyWithin(endings, ending, always) || anyBeyond(endings, ending, always);
}

void ExactNames::insert(const QString& name) {
    names_.insert(name);
    backwards_.insert(backwards(name));
}

bool ExactNames::anyIs(const QString& pattern) const {
    NamePatterns wanted;
    wanted.insert(pattern);
    const QString beginning = pattern.section(kAnything, 0, 0);
    const QString ending = backwards(pattern.section(kAnything, -1));
    auto name = names_.lower_bound(beginning);
    auto reversed = backwards_.lower_bound(ending);
    // Whichever way there are fewer names to look at: each that fits stands in both.
    while (name != names_.end() && name->startsWith(beginning) && reversed != backwards_.end() &&
           reversed->startsWith(ending)) {
        if (wanted.mayHold(*name) || wanted.mayHold(backwards(*reversed))) return true;
        ++name;
        ++reversed;
    }
    return false;
}

}  // namespace zelvor
