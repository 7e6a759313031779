#pragma once

#include <string>

namespace zelvor::test {

// Calls of the system that can be made to fail in this program: writing, flushing, renaming and opening files, making
// sockets, every call to the database's driver manager. From failCall() on each is counted, and the one with that
// number, from 1, fails as it would on a full disk, without room for handles, or with a lost database.
void failCall(int number);
// Ends that. The name of the call that failed; empty when there were not so many.
std::string endOfFailing();

}  // namespace zelvor::test
