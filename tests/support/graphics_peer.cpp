#include "support/graphics_peer.h"

#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <string>

namespace zelvor::test {

namespace {

void setOption(int socket, int level, int option, int value) {
    setsockopt(socket, level, option, &value, sizeof value);
}

}  // namespace

GraphicsPeer::~GraphicsPeer() {
    stop(End::Abrupt);
    if (thread_.joinable()) thread_.join();
}

bool GraphicsPeer::start() {
    if (thread_.joinable()) thread_.join();
    killed_ = false;
    listening_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    setOption(listening_, SOL_SOCKET, SO_REUSEADDR, 1);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port_);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    if (bind(listening_, reinterpret_cast<sockaddr*>(&address), size) != 0 || listen(listening_, 1) != 0) return false;
    getsockname(listening_, reinterpret_cast<sockaddr*>(&address), &size);
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { serve(); });
    return true;
}

void GraphicsPeer::stop(End end) {
    killed_ = end == End::Abrupt;
    if (const int open = socket_; open >= 0) shutdown(open, end == End::Abrupt ? SHUT_RD : SHUT_WR);
    if (listening_ >= 0) shutdown(listening_, SHUT_RDWR);
}

void GraphicsPeer::serve() {
    while (true) {
        const int accepted = accept4(listening_, nullptr, nullptr, SOCK_CLOEXEC);
        if (accepted < 0) break;
        setOption(accepted, IPPROTO_TCP, TCP_NODELAY, 1);
        listener_.connected();
        socket_ = accepted;
        converse(accepted);
        socket_ = -1;
        if (killed_) {
            const linger atOnce{1, 0};
            setsockopt(accepted, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        }
        close(accepted);
    }
    close(listening_);
    listening_ = -1;
}

void GraphicsPeer::converse(int socket) {
    std::string rest;
    std::array<char, 65536> buffer{};
    for (ssize_t size = 0; (size = recv(socket, buffer.data(), buffer.size(), 0)) > 0;) {
        while (frozen_ && !killed_) std::this_thread::sleep_for(std::chrono::milliseconds(1));
        if (killed_) return;
        rest.append(buffer.data(), static_cast<std::size_t>(size));
        std::string replies;
        std::size_t start = 0;
        for (std::size_t end = 0; (end = rest.find("\r\n", start)) != std::string::npos; start = end + 2) {
            listener_.line(std::string_view(rest).substr(start, end - start));
            replies += "202 CG OK\r\n";
        }
        rest.erase(0, start);
        send(socket, replies.data(), replies.size(), MSG_NOSIGNAL);
    }
}

}  // namespace zelvor::test
