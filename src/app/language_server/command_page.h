#pragma once

#include <QString>

namespace zelvor {

// What the manual's page of commands says of a command (upper case), with its example; empty for one that it does not
// know. Markdown.
QString commandPage(const QString& word);

}  // namespace zelvor
