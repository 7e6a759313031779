#pragma once

#include <QHash>
#include <QString>
#include <algorithm>
#include <list>
#include <map>
#include <optional>

#include "base/value.h"

namespace zelvor {

// An insertion-ordered table from name to value. Names are compared exactly. Setting a name that exists moves it to
// the end of the order. Get, set and remove do not depend on how many names there are, but for names that come and go
// once prefixes have been removed: those cost the logarithm of it.
class VariableStore {
 public:
    VariableStore() = default;
    VariableStore(const VariableStore&) = delete;
    VariableStore& operator=(const VariableStore&) = delete;

    // Removes the name if it exists, then adds it at the end.
    void SetVar(QStringView name, Value value);
    // The same for a text, which may not be the value's own. Faster than SetVar for a name that exists.
    void setText(QStringView name, QStringView text);
    // The value; a name that does not exist is entered with the empty value. Valid until the name is set or removed.
    const Value& GetVar(QStringView name);
    // The value without entering the name; null when it does not exist.
    [[nodiscard]] const Value* find(QStringView name) const;
    // The value as text without entering the name, empty when it does not exist.
    [[nodiscard]] QString text(QStringView name) const;

    void remove(QStringView name);
    // Removes every name that begins with the prefix, at a cost in proportion to how many those are.
    void RemoveVarsWithPrefix(QStringView prefix) {
        RemoveVarsWithPrefix(prefix, [](QStringView) { return false; });
    }
    // The same but for names whose rest behind the prefix is kept.
    template <class Keeps>
    void RemoveVarsWithPrefix(QStringView prefix, Keeps&& keeps) {
        auto at = sorted().lower_bound(prefix);
        while (at != sorted_->end() && at->first.startsWith(prefix)) {
            const auto entry = at++;
            if (!keeps(entry->first.mid(prefix.size()))) removeEntry(entry->second);
        }
    }
    void clear();

    [[nodiscard]] qsizetype size() const { return static_cast<qsizetype>(entries_.size()); }

    // Calls visit(const QString& name, const Value& value) for each name in order. The visitor must not change the
    // store.
    template <class Visitor>
    void forEach(Visitor&& visit) const {
        for (const Entry& entry : entries_) visit(entry.name, entry.value);
    }

 private:
    struct Entry {
        QString name;
        Value value;
        bool isCleared = false;
    };
    using Entries = std::list<Entry>;
    // Names are a few characters long: one multiplication each (by 2^64 / the golden ratio) is less than a call.
    struct Key {
        QStringView name;

        bool operator==(Key other) const {
            return std::equal(name.begin(), name.end(), other.name.begin(), other.name.end());
        }
        friend size_t qHash(Key key, size_t seed) noexcept {
            quint64 hash = seed;
            for (const QChar c : key.name) hash = (hash ^ c.unicode()) * 0x9E3779B97F4A7C15U;
            return hash ^ hash >> 32;
        }
    };

    std::map<QStringView, Entries::iterator>& sorted();
    // The name's entry, null when it does not exist.
    [[nodiscard]] const Entry* existing(QStringView name) const;
    // The name's entry at the end of the order; of a name that did not exist with a value left over or empty.
    Entry& last(QStringView name);
    // An entry of that name among the cleared ones.
    Entries::iterator makeCleared(QStringView name);
    void removeEntry(Entries::iterator entry);

    Entries entries_;  // in the order of the table; an entry keeps its place in memory
    // Entries cleared before, whose memory is used again: template data comes and goes with every card, and mostly
    // under the same names.
    Entries cleared_;
    // Of both. The names are views of the entries' own.
    QHash<Key, Entries::iterator> index_;
    // The names in sorted order, made when prefixes are first removed and kept from then on.
    std::optional<std::map<QStringView, Entries::iterator>> sorted_;
};

}  // namespace zelvor
