#include "ask/scripted_ask.h"

#include <algorithm>

#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr size_t kKeysNamed = 100;

QString keysOf(const PickList& list) {
    QStringList keys;
    for (const PickList::Row& row : list.rows()) {
        if (keys.size() == kKeysNamed) break;
        keys += QString::number(row.key);
    }
    if (list.rows().size() > kKeysNamed) keys += u"..."_s;
    return keys.isEmpty() ? u"nothing"_s : keys.join(u", "_s);
}

}  // namespace

void ScriptedAsk::show(const Asker& asker) {
    PickList list(state_, database_, trap_, asker);
    if (list.isGivenUp()) return list.cancel();
    const QString answer = answers_.isEmpty() ? QString() : answers_.takeFirst();
    const auto& rows = list.rows();
    const auto chosen =
        std::ranges::find_if(rows, [&](const PickList::Row& row) { return QString::number(row.key) == answer; });
    if (chosen != rows.end()) {
        list.choose(static_cast<int>(chosen - rows.begin()));
        return;
    }
    list.cancel();
    if (answer == u"cancel") return;
    const QString field = u"ask field %1 \"%2\" "_s.arg(state_.ask.ASK_FIELD).arg(list.title());
    const QString fault = answer.isEmpty() ? u"has no answer left"_s : u"has no key \""_s + answer + u'"';
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, field + fault + u"; it offers "_s + keysOf(list));
}

}  // namespace zelvor
