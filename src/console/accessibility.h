#pragma once

namespace zelvor {

// Lets assistive programs know the console's own widgets: role, name, state, and what may be done with them. Calling it
// again does nothing.
void describeWidgets();

}  // namespace zelvor
