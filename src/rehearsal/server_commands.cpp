#include "rehearsal/server_commands.h"

#include <QXmlStreamWriter>

#include "rehearsal/reply.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

QString kindName(Source::Kind kind) {
    switch (kind) {
        case Source::Kind::Template:
            return u"html"_s;
        case Source::Kind::Colour:
            return u"color"_s;
        case Source::Kind::Picture:
            return u"image"_s;
        case Source::Kind::Empty:
            break;
    }
    return u"empty"_s;
}

void writeSource(QXmlStreamWriter& xml, const QString& place, const Source& source) {
    xml.writeStartElement(place);
    xml.writeTextElement("producer"_L1, kindName(source.kind));
    if (!source.name.isEmpty()) {
        xml.writeTextElement("name"_L1, source.name);
    }
    xml.writeEndElement();
}

QString elementsAsXml(const QString& root, const std::vector<std::pair<QString, QString>>& elements) {
    QString text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement(root);
    for (const auto& [name, value] : elements) {
        xml.writeTextElement(name, value);
    }
    xml.writeEndElement();
    return text;
}

QString channelAsXml(const Stage& stage, int channel, std::optional<int> onlyLayer) {
    QString text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement("channel"_L1);
    xml.writeTextElement("format"_L1, stage.mode(channel).name.toString());
    for (const auto& output : stage.outputs(channel)) {
        xml.writeTextElement("output"_L1, output.second);
    }
    xml.writeStartElement("stage"_L1);
    for (const auto& [number, layer] : stage.layers(channel)) {
        if (onlyLayer && *onlyLayer != number) {
            continue;
        }
        xml.writeStartElement("layer"_L1);
        xml.writeTextElement("number"_L1, QString::number(number));
        xml.writeTextElement("paused"_L1, layer.paused ? u"true"_s : u"false"_s);
        writeSource(xml, u"foreground"_s, layer.foreground);
        writeSource(xml, u"background"_s, layer.background);
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEndElement();
    return text;
}

}  // namespace

QString version(const Command& command, Host& /*host*/) {
    return reply::okWith(command.word(), u"2.4.3 fd9168c73 Stable");
}

QString info(const Command& command, Host& host) {
    if (command.channel > 0) {
        return reply::okWith(command.word(), channelAsXml(host.stage, command.channel, command.layer));
    }
    QStringList lines;
    for (int channel = 1; channel <= host.stage.channelCount(); ++channel) {
        lines.append(u"%1 %2 PLAYING"_s.arg(channel).arg(host.stage.mode(channel).name));
    }
    return reply::okLines(command.word(), lines);
}

QString infoPaths(const Command& command, Host& host) {
    return reply::okWith(command.name, elementsAsXml(u"paths"_s, {{u"template-path"_s, host.folder.path()},
                                                                  {u"media-path"_s, host.folder.path()}}));
}

QString infoConfig(const Command& command, Host& host) {
    QString text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement("configuration"_L1);
    xml.writeTextElement("log-level"_L1, host.logLevel);
    xml.writeStartElement("channels"_L1);
    for (int channel = 1; channel <= host.stage.channelCount(); ++channel) {
        xml.writeStartElement("channel"_L1);
        xml.writeTextElement("video-mode"_L1, host.stage.mode(channel).name.toString());
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return reply::okWith(command.name, text);
}

QString glInfo(const Command& command, Host& /*host*/) {
    return reply::okWith(command.name, elementsAsXml(u"gl"_s, {{u"summary"_s, u"none"_s}}));
}

QString logLevel(const Command& command, Host& host) {
    static const QStringList kLevels = {u"trace"_s, u"debug"_s, u"info"_s, u"warning"_s, u"error"_s, u"fatal"_s};
    const QString level = command.parameters.first().toLower();
    if (!kLevels.contains(level)) {
        return reply::illegal(command.word());
    }
    host.logLevel = level;
    return reply::ok(command.word());
}

QString acknowledge(const Command& command, Host& /*host*/) {
    return reply::ok(command.name);
}

QString unavailable(const Command& command, Host& /*host*/) {
    return reply::failed(command.name);
}

}  // namespace zelvor::rehearsal
