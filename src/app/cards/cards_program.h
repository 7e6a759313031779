#pragma once

namespace zelvor {

// The operator's console from its command line to its end, and its exit status. Takes what main() is given.
int runCards(int argc, char* argv[]);

}  // namespace zelvor
