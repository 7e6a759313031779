#include "base/closing.h"

namespace zelvor {

void Closing::begin() {
    if (begun_) return;
    begun_ = true;
    Q_EMIT begun();
}

}  // namespace zelvor
