#include "rehearsal/page_state.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

QString functionName(TemplateCall::Function function) {
    switch (function) {
        case TemplateCall::Function::Update:
            return u"update"_s;
        case TemplateCall::Function::Play:
            return u"play"_s;
        case TemplateCall::Function::Stop:
            return u"stop"_s;
        case TemplateCall::Function::Next:
            return u"next"_s;
        case TemplateCall::Function::Remove:
            return u"remove"_s;
        case TemplateCall::Function::Invoke:
            break;
    }
    return u"invoke"_s;
}

QString kindName(Journal::Kind kind) {
    switch (kind) {
        case Journal::Kind::Received:
            return u"received"_s;
        case Journal::Kind::Sent:
            return u"sent"_s;
        case Journal::Kind::Note:
            break;
    }
    return u"note"_s;
}

QJsonValue sourceAsJson(const Source& source) {
    const QString url = u"/templates/"_s + QString::fromLatin1(QUrl::toPercentEncoding(source.name, "/"));
    const auto withId = [&](const QString& kind, const QString& key, const QString& value) {
        return QJsonObject{
            {u"id"_s, static_cast<qint64>(source.id)}, {u"kind"_s, kind}, {u"name"_s, source.name}, {key, value}};
    };
    switch (source.kind) {
        case Source::Kind::Template:
            return withId(u"template"_s, u"url"_s, url);
        case Source::Kind::Picture:
            return withId(u"picture"_s, u"url"_s, url);
        case Source::Kind::Colour:
            return withId(u"colour"_s, u"colour"_s, source.name);
        case Source::Kind::Empty:
            break;
    }
    return QJsonValue::Null;
}

QJsonObject mixerAsJson(const Mixer& mixer) {
    QJsonArray fill;
    for (const double value : mixer.values(u"FILL")) {
        fill.append(value);
    }
    return {{u"opacity"_s, mixer.value(u"OPACITY")},
            {u"fill"_s, fill},
            {u"volume"_s, mixer.value(u"VOLUME")},
            {u"keyer"_s, mixer.value(u"KEYER") != 0},
            {u"frames"_s, mixer.frames}};
}

}  // namespace

QJsonValue layerAsJson(const Stage& stage, LayerAddress at) {
    const auto& layers = stage.layers(at.channel);
    const auto found = layers.find(at.layer);
    if (found == layers.end()) {
        return QJsonValue::Null;
    }
    const Layer& layer = found->second;
    return QJsonObject{{u"number"_s, at.layer},
                       {u"source"_s, sourceAsJson(layer.foreground)},
                       {u"background"_s, sourceAsJson(layer.background)},
                       {u"paused"_s, layer.paused},
                       {u"mixer"_s, mixerAsJson(layer.mixer)}};
}

QJsonObject callAsJson(const TemplateCall& call) {
    return {{u"function"_s, functionName(call.function)}, {u"argument"_s, call.argument}};
}

QJsonArray callsAsJson(const Source& source) {
    QJsonArray calls;
    for (const TemplateCall& call : source.history.calls()) {
        calls.append(callAsJson(call));
    }
    return calls;
}

QJsonObject modeAsJson(const VideoMode& mode) {
    return {
        {u"name"_s, mode.name.toString()}, {u"height"_s, mode.height}, {u"framesPerSecond"_s, mode.framesPerSecond}};
}

QJsonArray channelsAsJson(const Stage& stage) {
    QJsonArray channels;
    for (int channel = 1; channel <= stage.channelCount(); ++channel) {
        QJsonArray layers;
        for (const auto& [number, layer] : stage.layers(channel)) {
            QJsonObject entry = layerAsJson(stage, {channel, number}).toObject();
            entry.insert("calls"_L1, callsAsJson(layer.foreground));
            layers.append(entry);
        }
        channels.append(
            QJsonObject{{u"number"_s, channel}, {u"mode"_s, modeAsJson(stage.mode(channel))}, {u"layers"_s, layers}});
    }
    return channels;
}

QJsonObject lineAsJson(const Journal::Line& line) {
    return {{u"time"_s, line.time.toString(u"HH:mm:ss"_s)},
            {u"kind"_s, kindName(line.kind)},
            {u"client"_s, line.client},
            {u"text"_s, line.text}};
}

}  // namespace zelvor::rehearsal
