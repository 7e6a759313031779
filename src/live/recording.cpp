#include "live/recording.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr double kMilliseconds = 1000;
const QString kConnected = u"connected"_s;
const QString kLost = u"lost"_s;

QByteArray lineOf(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QString kindName(SourceKind kind) {
    return kind == SourceKind::LiveStats ? u"livestats"_s : u"daktronics"_s;
}

}  // namespace

QByteArray recordedHeading(SourceKind kind) {
    return lineOf({{u"recording"_s, kindName(kind)}});
}

QByteArray recordedLine(SourceKind kind, const RecordedMessage& message) {
    QJsonObject line{{u"at"_s, static_cast<double>(message.at) / kMilliseconds}};
    if (message.what != RecordedMessage::What::Message) {
        line[u"event"_s] = message.what == RecordedMessage::What::Connected ? kConnected : kLost;
    } else if (kind == SourceKind::Daktronics) {
        line[u"bytes"_s] = QString::fromLatin1(message.message.toHex());
    } else if (const QJsonDocument document = QJsonDocument::fromJson(message.message); document.isObject()) {
        line[u"message"_s] = document.object();
    } else {
        line[u"text"_s] = QString::fromUtf8(message.message);
    }
    return lineOf(line);
}

std::optional<SourceKind> readHeading(const QByteArray& line) {
    const QString name = QJsonDocument::fromJson(line).object().value(u"recording").toString();
    for (const SourceKind kind : {SourceKind::LiveStats, SourceKind::Daktronics}) {
        if (name == kindName(kind)) return kind;
    }
    return std::nullopt;
}

std::optional<RecordedMessage> readRecordedLine(const QByteArray& line) {
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    constexpr double kLongest = 7 * 24 * 3600;  // seconds
    const double at = object.value(u"at").toDouble(-1);
    if (!(at >= 0 && at <= kLongest)) return std::nullopt;
    RecordedMessage read{static_cast<qint64>(std::llround(at * kMilliseconds)), RecordedMessage::What::Message, {}};
    const QString event = object.value(u"event").toString();
    if (event == kConnected) {
        read.what = RecordedMessage::What::Connected;
    } else if (event == kLost) {
        read.what = RecordedMessage::What::Lost;
    } else if (object.contains(u"message")) {
        read.message = lineOf(object.value(u"message").toObject());
    } else if (object.contains(u"bytes")) {
        read.message = QByteArray::fromHex(object.value(u"bytes").toString().toLatin1());
    } else if (object.contains(u"text")) {
        read.message = object.value(u"text").toString().toUtf8();
    } else {
        return std::nullopt;
    }
    return read;
}

}  // namespace zelvor
