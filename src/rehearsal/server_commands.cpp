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

QString channelAsXml(const Stage& stage, int channel, std::optional<int> onlyLayer) {
    QString text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement("channel"_L1);
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
    return reply::okWith(command.word(), u"2.4.0 Zelvor Rehearsal " ZELVOR_VERSION);
}

QString info(const Command& command, Host& host) {
    if (command.channel > 0) {
        return reply::okWith(command.word(), channelAsXml(host.stage, command.channel, command.layer));
    }
    QStringList lines;
    for (int channel = 1; channel <= host.stage.channelCount(); ++channel) {
        lines.append(u"%1 1080i5000 PLAYING"_s.arg(channel));
    }
    return reply::okLines(command.word(), lines);
}

}  // namespace zelvor::rehearsal
