#include "engine/variable_store.h"

#include <QHash>

namespace zelvor {

namespace {

quint32 hashOf(QStringView name) {
    const size_t hash = qHash(name);
    return static_cast<quint32>(hash ^ hash >> 32);
}

}  // namespace

int VariableStore::slotOf(QStringView name, quint32 hash) const {
    return index_.find(hash, [&](int slot) { return entries_[slot].name == name; });
}

void VariableStore::SetVar(QStringView name, Value value) {
    const quint32 hash = hashOf(name);
    const int slot = slotOf(name, hash);
    if (slot == kNone) {
        add(name, hash, std::move(value));
        return;
    }
    entries_[slot].value = std::move(value);
    if (slot != last_) {
        unlink(slot);
        linkLast(slot);
    }
}

const Value& VariableStore::GetVar(QStringView name) {
    const quint32 hash = hashOf(name);
    const int slot = slotOf(name, hash);
    return entries_[slot == kNone ? add(name, hash, {}) : slot].value;
}

const Value* VariableStore::find(QStringView name) const {
    const int slot = slotOf(name, hashOf(name));
    return slot == kNone ? nullptr : &entries_[slot].value;
}

QString VariableStore::text(QStringView name) const {
    const Value* value = find(name);
    return value == nullptr ? QString() : value->text();
}

void VariableStore::remove(QStringView name) {
    const int slot = slotOf(name, hashOf(name));
    if (slot != kNone) removeSlot(slot);
}

void VariableStore::RemoveVarsWithPrefix(QStringView prefix) {
    if (!sorted_) {
        sorted_.emplace();
        for (int at = first_; at != kNone; at = entries_[at].next) sorted_->emplace(entries_[at].name, at);
    }
    for (auto at = sorted_->lower_bound(prefix); at != sorted_->end() && at->first.startsWith(prefix);) {
        const int slot = at->second;
        ++at;
        removeSlot(slot);
    }
}

void VariableStore::clear() {
    index_.clear();
    sorted_.reset();
    entries_.clear();
    free_.clear();
    first_ = last_ = kNone;
}

int VariableStore::add(QStringView name, quint32 hash, Value value) {
    int slot = static_cast<int>(entries_.size());
    if (free_.empty()) {
        entries_.emplace_back();
    } else {
        slot = free_.back();
        free_.pop_back();
    }
    Entry& entry = entries_[slot];
    entry.name = name.toString();
    entry.value = std::move(value);
    entry.hash = hash;
    index_.insert(hash, slot);
    if (sorted_) sorted_->emplace(entry.name, slot);
    linkLast(slot);
    return slot;
}

void VariableStore::removeSlot(int slot) {
    Entry& entry = entries_[slot];
    unlink(slot);
    index_.remove(entry.hash, slot);
    if (sorted_) sorted_->erase(QStringView(entry.name));
    entry.name.clear();
    entry.value = {};
    free_.push_back(slot);
}

void VariableStore::unlink(int slot) {
    const Entry& entry = entries_[slot];
    (entry.previous == kNone ? first_ : entries_[entry.previous].next) = entry.next;
    (entry.next == kNone ? last_ : entries_[entry.next].previous) = entry.previous;
}

void VariableStore::linkLast(int slot) {
    Entry& entry = entries_[slot];
    entry.previous = last_;
    entry.next = kNone;
    (last_ == kNone ? first_ : entries_[last_].next) = slot;
    last_ = slot;
}

}  // namespace zelvor
