#include "console_rules/find_list.h"

#include <QDir>
#include <algorithm>

#include "base/letters.h"
#include "base/translate.h"
#include "engine/card_engine.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

using Kind = FindEntry::Kind;

constexpr int kFiringKeys = 10;
constexpr int kShownValue = 200;  // characters

void addCards(std::vector<FindEntry>& entries, const ShowState& state, int set) {
    const CardTable::Set& cards = state.cards.sets.at(set);
    for (int index = 0; index < CardTable::kCards; ++index) {
        const CardEntry& card = cards.at(index + 1);
        if (card.script.isEmpty()) continue;
        const QString where = cards.front().shownCaption() + u", "_s + QString::number(index + 1);
        entries.push_back({Kind::Card, card.shownCaption(), where, card.script, {set, index}, state.language()});
    }
}

bool runsScript(const FindEntry& entry) {
    return entry.kind == Kind::Card || entry.kind == Kind::FunctionKey || entry.kind == Kind::Script;
}

}  // namespace

std::vector<FindEntry> findable(const ShowState& state, const AppFolder& folder,
                                const std::vector<FindEntry>& commands) {
    std::vector<FindEntry> entries;
    addCards(entries, state, state.currentSet);
    for (int set = 1; set < CardTable::kSets; ++set) {
        if (set != state.currentSet) addCards(entries, state, set);
    }
    for (int number = 1; number <= kFiringKeys; ++number) {
        const FunctionKey& key = state.cards.functionKeys.at(number);
        if (key.script.isEmpty()) continue;
        entries.push_back(
            {Kind::FunctionKey, key.title, u'F' + QString::number(number), key.script, {}, state.language()});
    }
    const QDir pack(folder.resolve(folder.packFolder(state.language())));
    for (const QString& script : pack.entryList({u"*.csp"_s}, QDir::Files))
        entries.push_back({Kind::Script, script, translate("console", "script"), script, {}, state.language()});
    entries.insert(entries.end(), commands.begin(), commands.end());
    state.variables.forEach([&](const QString& name, const Value& value) {
        entries.push_back({Kind::Variable, name, value.text().left(kShownValue), name});
    });
    return entries;
}

FindList::FindList(std::vector<FindEntry> entries, const QStringList& recent) : entries_(std::move(entries)) {
    auto place = entries_.begin();
    for (const QString& script : recent) {
        const auto found = std::find_if(place, entries_.end(), [&](const FindEntry& entry) {
            return runsScript(entry) && CardEngine::scriptName(entry.target) == CardEngine::scriptName(script);
        });
        if (found == entries_.end()) continue;
        std::rotate(place, found, found + 1);
        ++place;
    }
    for (const FindEntry& entry : entries_) folded_ += foldedLetters(QString(entry.caption + u' ' + entry.target));
}

std::vector<const FindEntry*> FindList::narrowed(const QString& typed) const {
    const QStringList words = foldedLetters(typed).split(u' ', Qt::SkipEmptyParts);
    std::vector<const FindEntry*> found;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        const QString& text = folded_.at(static_cast<qsizetype>(i));
        if (std::ranges::all_of(words, [&](const QString& word) { return text.contains(word); }))
            found.push_back(&entries_[i]);
    }
    return found;
}

}  // namespace zelvor
