#pragma once

#include <future>

namespace zelvor {

// Reads the system's fonts beside the rest of the start, each step on a thread of its own: the first text on the screen
// waits for all of them, as long as for everything else together. A step that finds no thread is left to that text.

// What fontconfig knows, where Qt asks it. Needs no application.
[[nodiscard]] std::future<void> readFontFiles();
// Qt's own list, once the files are read; `files` and the application must outlive what it gives.
[[nodiscard]] std::future<void> readFontList(const std::future<void>& files);

}  // namespace zelvor
