#include "rehearsal/stored_data.h"

namespace zelvor::rehearsal {

bool StoredData::store(const QString& name, const QString& text) {
    const qsizetype before = find(name) ? name.size() + find(name)->size() : 0;
    const qsizetype after = text_ - before + name.size() + text.size();
    if (after > kMaxText) {
        return false;
    }
    sets_[name.toLower()] = {name, text};
    text_ = after;
    return true;
}

std::optional<QString> StoredData::find(const QString& name) const {
    const auto found = sets_.find(name.toLower());
    return found == sets_.end() ? std::nullopt : std::optional(found->second.text);
}

bool StoredData::remove(const QString& name) {
    const auto found = sets_.find(name.toLower());
    if (found == sets_.end()) {
        return false;
    }
    text_ -= found->second.name.size() + found->second.text.size();
    sets_.erase(found);
    return true;
}

QStringList StoredData::names() const {
    QStringList names;
    for (const auto& entry : sets_) {
        names.append(entry.second.name);
    }
    return names;
}

}  // namespace zelvor::rehearsal
