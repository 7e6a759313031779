#pragma once

#include <QString>
#include <deque>
#include <map>
#include <optional>

#include "base/value.h"
#include "engine/name_index.h"

namespace zelvor {

// An insertion-ordered table from name to value. Names are compared exactly. Setting a name that exists moves it to
// the end of the order. Get, set and remove do not depend on how many names there
// are, but for names that come and go once prefixes have been removed: those cost the logarithm of it.
class VariableStore {
 public:
    VariableStore() = default;
    VariableStore(const VariableStore&) = delete;
    VariableStore& operator=(const VariableStore&) = delete;

    // Removes the name if it exists, then adds it at the end.
    void SetVar(QStringView name, Value value);
    // The value; a name that does not exist is entered with the empty value. Valid until the name is set or removed.
    const Value& GetVar(QStringView name);
    // The value without entering the name; null when it does not exist.
    [[nodiscard]] const Value* find(QStringView name) const;
    // The value as text without entering the name, empty when it does not exist.
    [[nodiscard]] QString text(QStringView name) const;

    void remove(QStringView name);
    // Removes every name that begins with the prefix, at a cost in proportion to what it removes.
    void RemoveVarsWithPrefix(QStringView prefix);
    void clear();

    [[nodiscard]] qsizetype size() const { return index_.size(); }

    // Calls visit(const QString& name, const Value& value) for each name in order. The visitor must not change the
    // store.
    template <class Visitor>
    void forEach(Visitor&& visit) const {
        for (int at = first_; at != kNone; at = entries_[at].next) visit(entries_[at].name, entries_[at].value);
    }

 private:
    static constexpr int kNone = NameIndex::kNone;

    struct Entry {
        QString name;
        Value value;
        int previous = kNone;
        int next = kNone;
        quint32 hash = 0;
    };

    [[nodiscard]] int slotOf(QStringView name, quint32 hash) const;
    int add(QStringView name, quint32 hash, Value value);
    void removeSlot(int slot);
    void unlink(int slot);
    void linkLast(int slot);

    // Entries keep their place; the order is a linked list through them, free places are used again.
    std::deque<Entry> entries_;
    std::vector<int> free_;
    NameIndex index_;
    int first_ = kNone;
    int last_ = kNone;
    // The names in sorted order (views of the entries' own), made when prefixes are first removed and kept from then
    // on.
    std::optional<std::map<QStringView, int>> sorted_;
};

}  // namespace zelvor
