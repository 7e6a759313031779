#include "engine/show_state.h"

#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

CardEntry& CardTable::entry(int set, int row) {
    if (set < 0 || set >= kSets || row < 0 || row >= kEntries) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return sets[set][row];
}

FunctionKey& CardTable::functionKey(int key) {
    if (key < 0 || key >= kFunctionKeys) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return functionKeys[key];
}

const AskField& AskState::field(int number) const {
    if (number < 0 || static_cast<size_t>(number) >= ASK_FIELDS.size()) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, u"ask field %1"_s.arg(number));
    }
    return ASK_FIELDS[number];
}

QString& OnAirTable::at(int row, int column) {
    if (column < 0 || column >= kColumns) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, u"%1-%2"_s.arg(row).arg(column));
    }
    return rows_[row][column];
}

}  // namespace zelvor
