#include "system/termination.h"

namespace zelvor {

Termination::Termination() = default;
Termination::~Termination() = default;

}  // namespace zelvor
