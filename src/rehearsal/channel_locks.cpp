#include "rehearsal/channel_locks.h"

namespace zelvor::rehearsal {

bool ChannelLocks::acquire(int channel, const QString& phrase, ClientId client) {
    const auto lock = locks_.try_emplace(channel, Lock{phrase, {}}).first;
    if (lock->second.phrase != phrase) {
        return false;
    }
    lock->second.holders.insert(client);
    return true;
}

void ChannelLocks::release(int channel, ClientId client) {
    const auto lock = locks_.find(channel);
    if (lock != locks_.end() && lock->second.holders.erase(client) > 0 && lock->second.holders.empty()) {
        locks_.erase(lock);
    }
}

void ChannelLocks::leave(ClientId client) {
    for (auto lock = locks_.begin(); lock != locks_.end();) {
        const int channel = lock->first;
        ++lock;  // release() may let go of the one before
        release(channel, client);
    }
}

bool ChannelLocks::admits(int channel, ClientId client) const {
    const auto lock = locks_.find(channel);
    return lock == locks_.end() || lock->second.holders.contains(client);
}

}  // namespace zelvor::rehearsal
