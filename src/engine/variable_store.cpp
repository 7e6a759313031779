#include "engine/variable_store.h"

namespace zelvor {

void VariableStore::SetVar(QStringView name, Value value) {
    const auto found = index_.find(name);
    if (found == index_.end()) {
        add(name)->value = std::move(value);
        return;
    }
    found->second->value = std::move(value);
    entries_.splice(entries_.end(), entries_, found->second);
}

void VariableStore::setText(QStringView name, QStringView text) {
    const auto found = index_.find(name);
    if (found == index_.end()) {
        add(name)->value.setText(text);
        return;
    }
    found->second->value.setText(text);
    entries_.splice(entries_.end(), entries_, found->second);
}

const Value& VariableStore::GetVar(QStringView name) {
    const auto found = index_.find(name);
    if (found != index_.end()) return found->second->value;
    return add(name)->value = {};
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
    spare_.splice(spare_.end(), entries_);
}

VariableStore::Entries::iterator VariableStore::add(QStringView name) {
    if (spare_.empty()) spare_.emplace_back();
    const auto entry = spare_.begin();
    entries_.splice(entries_.end(), spare_, entry);
    entry->name.setUnicode(name.data(), name.size());
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
