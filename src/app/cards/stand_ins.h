#pragma once

#include "base/run_time_error.h"
#include "engine/ports.h"

namespace zelvor {

// Until there are pick lists a card that asks for one is told so.
class NoAskDialog : public AskDialog {
 public:
    void show() override { throw RunTimeError(ErrorNumber::ActionNotSupported, QStringLiteral("ASKFIELD")); }
};

}  // namespace zelvor
