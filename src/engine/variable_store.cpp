#include "engine/variable_store.h"

namespace zelvor {

void VariableStore::SetVar(QStringView name, Value value) {
    const auto found = index_.find(name);
    if (found == index_.end()) {
        add(name, std::move(value));
        return;
    }
    found->second->value = std::move(value);
    entries_.splice(entries_.end(), entries_, found->second);
}

void VariableStore::setText(QStringView name, QStringView text) {
    const auto found = index_.find(name);
    if (found == index_.end()) {
        add(name, text.toString());
        return;
    }
    found->second->value.setText(text);
    entries_.splice(entries_.end(), entries_, found->second);
}

const Value& VariableStore::GetVar(QStringView name) {
    const auto found = index_.find(name);
    return (found == index_.end() ? add(name, {}) : found->second)->value;
}

const Value* VariableStore::find(QStringView name) const {
    const auto found = index_.find(name);
    return found == index_.end() ? nullptr : &found->second->value;
}

QString VariableStore::text(QStringView name) const {
    const Value* value = find(name);
    return value == nullptr ? QString() : value->text();
}

void VariableStore::remove(QStringView name) {
    const auto found = index_.find(name);
    if (found != index_.end()) removeEntry(found->second);
}

std::map<QStringView, VariableStore::Entries::iterator>& VariableStore::sorted() {
    if (!sorted_) {
        sorted_.emplace();
        for (auto entry = entries_.begin(); entry != entries_.end(); ++entry) sorted_->emplace(entry->name, entry);
    }
    return *sorted_;
}

void VariableStore::clear() {
    index_.clear();
    sorted_.reset();
    entries_.clear();
}

VariableStore::Entries::iterator VariableStore::add(QStringView name, Value value) {
    const auto entry = entries_.insert(entries_.end(), {name.toString(), std::move(value)});
    index_.emplace(entry->name, entry);
    if (sorted_) sorted_->emplace(entry->name, entry);
    return entry;
}

void VariableStore::removeEntry(Entries::iterator entry) {
    index_.erase(QStringView(entry->name));
    if (sorted_) sorted_->erase(QStringView(entry->name));
    entries_.erase(entry);
}

}  // namespace zelvor
