#include "console_rules/find_list.h"

#include <QDirIterator>
#include <QHash>
#include <algorithm>
#include <iterator>
#include <optional>

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

// Their names in alphabetical order. A name filter of Qt's would cost more than all the rest.
QStringList scriptsIn(const QString& folder) {
    QStringList scripts;
    QDirIterator files(folder, QDir::Files);
    while (files.hasNext()) {
        files.next();
        if (files.fileName().endsWith(u".csp", Qt::CaseInsensitive)) scripts += files.fileName();
    }
    scripts.sort(Qt::CaseInsensitive);
    return scripts;
}

bool runsScript(const FindEntry& entry) {
    return entry.kind == Kind::Card || entry.kind == Kind::FunctionKey || entry.kind == Kind::Script;
}

}  // namespace

std::vector<FindEntry> findable(const ShowState& state, const AppFolder& folder,
                                const std::vector<FindEntry>& commands) {
    std::vector<FindEntry> entries;
    const QStringList scripts = scriptsIn(folder.resolve(folder.packFolder(state.language())));
    constexpr qsizetype kCards = qsizetype{CardTable::kSets} * CardTable::kCards;
    entries.reserve(kCards + scripts.size() + state.variables.size() + commands.size());
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
    for (const QString& script : scripts)
        entries.push_back({Kind::Script, script, translate("console", "script"), script, {}, state.language()});
    entries.insert(entries.end(), commands.begin(), commands.end());
    state.variables.forEach([&](const QString& name, const Value& value) {
        entries.push_back({Kind::Variable, name, value.text().left(kShownValue), name});
    });
    return entries;
}

FindList::FindList(std::vector<FindEntry> entries, const QStringList& recent) : entries_(std::move(entries)) {
    offerFirst(recent);
}

void FindList::offerFirst(const QStringList& recent) {
    QHash<QString, qsizetype> places;
    for (const QString& script : recent) places.insert(CardEngine::scriptName(script), places.size());
    std::vector<std::optional<FindEntry>> first(places.size());
    std::vector<FindEntry> others;
    others.reserve(entries_.size());
    for (FindEntry& entry : entries_) {
        const auto place =
            runsScript(entry) ? places.constFind(CardEngine::scriptName(entry.target)) : places.constEnd();
        const bool isFirst = place != places.constEnd() && !first.at(*place);
        if (isFirst) {
            first.at(*place) = std::move(entry);
        } else {
            others.push_back(std::move(entry));
        }
    }
    entries_.clear();
    for (std::optional<FindEntry>& entry : first) {
        if (entry) entries_.push_back(std::move(*entry));
    }
    std::ranges::move(others, std::back_inserter(entries_));
}

std::vector<const FindEntry*> FindList::narrowed(const QString& typed) {
    const QStringList words = foldedLetters(typed).split(u' ', Qt::SkipEmptyParts);
    if (!words.isEmpty() && folded_.isEmpty()) {
        folded_.reserve(static_cast<qsizetype>(entries_.size()));
        for (const FindEntry& entry : entries_) folded_ += foldedLetters(QString(entry.caption + u' ' + entry.target));
    }
    std::vector<const FindEntry*> found;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        const auto holds = [&](const QString& word) { return folded_.at(static_cast<qsizetype>(i)).contains(word); };
        if (std::ranges::all_of(words, holds)) found.push_back(&entries_[i]);
    }
    return found;
}

}  // namespace zelvor
