#pragma once

#include <gtest/gtest.h>

#include "support/line_server.h"
#include "support/wait.h"

namespace zelvor::test {

// Whether these lines have come since the last take, and no others.
inline testing::AssertionResult heard(LineServer& server, const QStringList& lines) {
    waitUntil([&] { return server.bytes.count('\n') >= lines.size(); });
    const QStringList came = server.takeLines();
    if (came == lines) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "heard: " << came.join(u'\n').toStdString();
}

}  // namespace zelvor::test
