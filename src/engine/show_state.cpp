#include "engine/show_state.h"

#include "base/run_time_error.h"

namespace zelvor {

CardEntry& CardTable::entry(int set, int row) {
    if (set < 0 || set >= kSets || row < 0 || row >= kEntries) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return sets[set][row];
}

FunctionKey& CardTable::functionKey(int key) {
    if (key < 0 || key >= kFunctionKeys) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return functionKeys[key];
}

QString& OnAirTable::at(int row, int column) {
    if (column < 0 || column >= kColumns) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return rows_[row][column];
}

}  // namespace zelvor
