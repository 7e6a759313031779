#include "remote/osc_packet.h"

#include <lo/lo.h>

#include <QtEndian>
#include <cstdlib>
#include <cstring>
#include <memory>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kDeepestBundle = 4;
constexpr std::size_t kMostMessages = 64;
constexpr qsizetype kBundleHead = 16;  // "#bundle" and its time

struct FreeMessage {
    void operator()(lo_message message) const { lo_message_free(message); }
};
using Message = std::unique_ptr<std::remove_pointer_t<lo_message>, FreeMessage>;

// Not read through lo_arg, which is aligned to 8 bytes where the arguments of a message are to 4.
template <class Number>
Number numberAt(const lo_arg* value) {
    Number number{};
    std::memcpy(&number, static_cast<const void*>(value), sizeof number);
    return number;
}

QVariant argumentOf(char type, const lo_arg* value) {
    switch (type) {
        case LO_INT32:
            return numberAt<qint32>(value);
        case LO_INT64:
            return numberAt<qlonglong>(value);
        case LO_FLOAT:
            return static_cast<double>(numberAt<float>(value));
        case LO_DOUBLE:
            return numberAt<double>(value);
        case LO_STRING:
        case LO_SYMBOL:
            return QString::fromUtf8(reinterpret_cast<const char*>(value));
        case LO_TRUE:
            return true;
        case LO_FALSE:
            return false;
        default:
            return {};
    }
}

bool addMessage(QByteArray bytes, std::vector<OscMessage>& messages) {
    // The path is looked for up to its NUL, within the packet alone.
    if (!bytes.startsWith('/') || !bytes.contains('\0') || messages.size() >= kMostMessages) return false;
    const qsizetype behindAddress = (bytes.indexOf('\0') / 4 + 1) * 4;
    if (bytes.size() == behindAddress) {
        // Old senders name no types where there are no arguments.
        messages.push_back({QString::fromUtf8(bytes.constData())});
        return true;
    }
    int result = 0;
    const Message message(lo_message_deserialise(bytes.data(), static_cast<std::size_t>(bytes.size()), &result));
    if (!message) return false;
    OscMessage read{QString::fromUtf8(bytes.constData())};
    const char* types = lo_message_get_types(message.get());
    lo_arg** values = lo_message_get_argv(message.get());
    for (int i = 0; i < lo_message_get_argc(message.get()); ++i) read.arguments += argumentOf(types[i], values[i]);
    messages.push_back(std::move(read));
    return true;
}

bool addPacket(const QByteArray& bytes, int depth, std::vector<OscMessage>& messages) {
    if (!bytes.startsWith(QByteArrayView("#bundle\0", 8))) return addMessage(bytes, messages);
    if (bytes.size() < kBundleHead || depth >= kDeepestBundle) return false;
    for (qsizetype at = kBundleHead; at < bytes.size();) {
        constexpr qsizetype kSizeField = 4;
        if (bytes.size() - at < kSizeField) return false;
        const auto size = static_cast<qsizetype>(qFromBigEndian<quint32>(bytes.constData() + at));
        at += kSizeField;
        if (size == 0 || size > bytes.size() - at || !addPacket(bytes.mid(at, size), depth + 1, messages)) return false;
        at += size;
    }
    return true;
}

}  // namespace

QByteArray OscMessage::bytes() const {
    const Message message(lo_message_new());
    for (const QVariant& argument : arguments) {
        if (argument.userType() == QMetaType::Int || argument.userType() == QMetaType::Bool) {
            lo_message_add_int32(message.get(), argument.toInt());
        } else if (argument.userType() == QMetaType::Double) {
            lo_message_add_float(message.get(), argument.toFloat());
        } else if (argument.userType() == QMetaType::QString) {
            // A text ends at its first NUL; one that is no UTF-8 is not sent.
            lo_message_add_string(message.get(), argument.toString().remove(QChar()).toUtf8().constData());
        } else {
            return {};
        }
    }
    std::size_t size = 0;
    const std::unique_ptr<void, decltype(&std::free)> made(
        lo_message_serialise(message.get(), address.toUtf8().constData(), nullptr, &size), &std::free);
    return {static_cast<const char*>(made.get()), static_cast<qsizetype>(size)};
}

std::optional<std::vector<OscMessage>> readOscPacket(const QByteArray& packet) {
    std::vector<OscMessage> messages;
    return addPacket(packet, 0, messages) ? std::optional(std::move(messages)) : std::nullopt;
}

}  // namespace zelvor
