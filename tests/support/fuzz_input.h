#pragma once

#include <QByteArray>
#include <QStringList>

#include "base/text_file.h"

namespace zelvor::test {

// What a fuzz target is given: as bytes, and as the lines of a text file that holds them.
inline QByteArray fuzzBytes(const uint8_t* data, size_t size) {
    return {reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)};
}
inline QStringList fuzzLines(const uint8_t* data, size_t size) {
    return splitLines(TextFiles().decode(fuzzBytes(data, size)));
}

// Ends the target: what must hold does not.
inline void require(bool holds) {
    if (!holds) __builtin_trap();
}

}  // namespace zelvor::test
