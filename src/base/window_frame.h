#pragma once

#include <QSize>

namespace zelvor {

inline constexpr QSize kWindowFrame{20, 60};  // pixels that a window manager may put around a window

}  // namespace zelvor
