#pragma once

#include <QStringView>

#include "engine/variable_store.h"

namespace zelvor {

// A key of a tag list that is written under another name; none by default.
struct KeyChange {
    QStringView from;
    QStringView to;
};

// Sets AUTOTAG_<key> to the answer for each "key:answer" of a tag list, items separated by "##". An item without an
// answer throws 9; those before it are set.
void setAutoTags(VariableStore& variables, QStringView tags, KeyChange change = {});

}  // namespace zelvor
