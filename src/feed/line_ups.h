#pragma once

#include "feed/quiet_rules.h"

namespace zelvor {

// The starting fives and elevens: each box's number is kept in a variable, @S5A1 for the first box of txtS5A.
class LineUps : public QuietRules {
    Q_OBJECT

 public:
    LineUps(const FormModel& form, VariableStore& variables, ErrorTrap& trap);
};

}  // namespace zelvor
