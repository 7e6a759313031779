#pragma once

#include <QtGlobal>
#include <atomic>
#include <functional>
#include <string_view>
#include <thread>

namespace zelvor::test {

// A graphics server on a thread of its own: takes one connection after the other and answers each line with "202".
class GraphicsPeer {
 public:
    // What it tells, on its own thread.
    struct Listener {
        std::function<void()> connected;
        std::function<void(std::string_view line)> line;
    };
    // Orderly: says goodbye and reads on until the other side has closed. Abrupt: resets the connection, as a server
    // that was killed does; what it had not read yet is gone.
    enum class End { Orderly, Abrupt };

    explicit GraphicsPeer(Listener listener) : listener_(std::move(listener)) {}
    GraphicsPeer(const GraphicsPeer&) = delete;
    GraphicsPeer& operator=(const GraphicsPeer&) = delete;
    ~GraphicsPeer();

    // Listens on the port it had before, at first on any free one. False when that cannot be had.
    bool start();
    // Returns at once; an orderly end may take until the other side has closed.
    void stop(End end);
    // A frozen server takes and answers nothing until it goes on; no connection ends by that.
    void freeze(bool frozen) { frozen_ = frozen; }

    [[nodiscard]] quint16 port() const { return port_; }

 private:
    void serve();
    void converse(int socket);

    Listener listener_;
    std::thread thread_;
    quint16 port_ = 0;
    int listening_ = -1;
    std::atomic<int> socket_ = -1;
    std::atomic<bool> killed_ = false;
    std::atomic<bool> frozen_ = false;
};

}  // namespace zelvor::test
