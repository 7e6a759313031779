#include "engine/variable_store.h"

namespace zelvor {

void VariableStore::SetVar(QStringView name, Value value) {
    last(name).value = std::move(value);
}

void VariableStore::setText(QStringView name, QStringView text) {
    last(name).value.setText(text);
}

const Value& VariableStore::GetVar(QStringView name) {
    if (const Entry* entry = existing(name)) return entry->value;
    return last(name).value = {};
}

const Value* VariableStore::find(QStringView name) const {
    const Entry* entry = existing(name);
    return entry == nullptr ? nullptr : &entry->value;
}

QString VariableStore::text(QStringView name) const {
    const Value* value = find(name);
    return value == nullptr ? QString() : value->text();
}

void VariableStore::remove(QStringView name) {
    const auto found = index_.constFind({name});
    if (found != index_.cend() && !(*found)->isCleared) removeEntry(*found);
}

std::map<QStringView, VariableStore::Entries::iterator>& VariableStore::sorted() {
    if (!sorted_) {
        sorted_.emplace();
        for (auto entry = entries_.begin(); entry != entries_.end(); ++entry) sorted_->emplace(entry->name, entry);
    }
    return *sorted_;
}

void VariableStore::clear() {
    sorted_.reset();
    for (Entry& entry : entries_) entry.isCleared = true;
    cleared_.splice(cleared_.end(), entries_);
}

const VariableStore::Entry* VariableStore::existing(QStringView name) const {
    const auto found = index_.constFind({name});
    return found == index_.cend() || (*found)->isCleared ? nullptr : &**found;
}

VariableStore::Entry& VariableStore::last(QStringView name) {
    const auto found = index_.constFind({name});
    const auto entry = found == index_.cend() ? makeCleared(name) : *found;
    entries_.splice(entries_.end(), entry->isCleared ? cleared_ : entries_, entry);
    if (entry->isCleared && sorted_) sorted_->emplace(entry->name, entry);
    entry->isCleared = false;
    return *entry;
}

VariableStore::Entries::iterator VariableStore::makeCleared(QStringView name) {
    if (cleared_.empty()) {
        cleared_.push_back({name.toString(), {}, true});
    } else {
        Entry& oldest = cleared_.front();
        index_.remove({oldest.name});
        oldest.name.setUnicode(name.data(), name.size());
    }
    return *index_.insert({cleared_.front().name}, cleared_.begin());
}

void VariableStore::removeEntry(Entries::iterator entry) {
    index_.remove({entry->name});
    if (sorted_) sorted_->erase(QStringView(entry->name));
    entries_.erase(entry);
}

}  // namespace zelvor
