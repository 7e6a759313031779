#pragma once

#include <QString>
#include <map>
#include <set>

namespace zelvor::rehearsal {

// Which clients have locked which channel. Who knows the phrase may join; nobody else's commands reach the channel.
class ChannelLocks {
 public:
    using ClientId = quint64;

    // False when others hold the channel with another phrase.
    bool acquire(int channel, const QString& phrase, ClientId client);
    void release(int channel, ClientId client);
    void clear(int channel) { locks_.erase(channel); }
    // Releases all channels that the client holds.
    void leave(ClientId client);

    [[nodiscard]] bool admits(int channel, ClientId client) const;

 private:
    struct Lock {
        QString phrase;
        std::set<ClientId> holders;
    };

    std::map<int, Lock> locks_;
};

}  // namespace zelvor::rehearsal
