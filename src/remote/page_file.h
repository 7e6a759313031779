#pragma once

#include "http/http_message.h"

namespace zelvor {

// A file of the tablet's page. What its texts hold as "{{Find}}" is in the operator's language, and so is "{{en}}", the
// code of that language; tools/translations finds them there. name: without a folder; 404 where there is no such file.
[[nodiscard]] HttpResponse pageFile(const QString& name);

}  // namespace zelvor
