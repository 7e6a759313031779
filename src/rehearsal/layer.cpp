#include "rehearsal/layer.h"

#include <algorithm>

namespace zelvor::rehearsal {

void CallHistory::add(TemplateCall call) {
    text_ += call.argument.size();
    calls_.push_back(std::move(call));
    while (calls_.size() > 1 && (calls_.size() > kMaxCalls || text_ > kMaxText)) {
        dropOldest();
    }
}

void CallHistory::dropOldest() {
    // The first call is the data of CG ADD as a rule, the last is the one just made: both stay while others can go.
    const auto others = calls_.begin() + 1;
    const auto last = calls_.end() - 1;
    auto dropped = std::find_if(
        others, last, [](const TemplateCall& call) { return call.function == TemplateCall::Function::Update; });
    if (dropped == last) {
        dropped = others == last ? calls_.begin() : others;
    }
    text_ -= dropped->argument.size();
    calls_.erase(dropped);
}

}  // namespace zelvor::rehearsal
