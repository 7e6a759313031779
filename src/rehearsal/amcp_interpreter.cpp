#include "rehearsal/amcp_interpreter.h"

#include <algorithm>

#include "rehearsal/amcp_tokenizer.h"
#include "rehearsal/reply.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

using Target = CommandRow::Target;

// "1" or "1-20", taken apart.
struct ChannelToken {
    int channel = 0;
    std::optional<int> layer;
    bool layerIsLegal = true;
};

// Nothing when TOKEN does not begin with a channel number.
std::optional<ChannelToken> parseChannel(const QString& token) {
    const qsizetype dash = token.indexOf(u'-');
    bool isNumber = false;
    ChannelToken parsed;
    parsed.channel = token.left(dash).toInt(&isNumber);
    if (!isNumber) {
        return std::nullopt;
    }
    if (dash >= 0) {
        const int layer = QStringView(token).mid(dash + 1).toInt(&isNumber);
        parsed.layerIsLegal = isNumber && layer >= 0 && layer <= Stage::kMaxLayer;
        parsed.layer = layer;
    }
    return parsed;
}

const CommandRow* rowNamed(const QString& name) {
    const auto table = commandTable();
    const auto row = std::ranges::find_if(table, [&](const CommandRow& each) { return name == each.name; });
    return row == table.end() ? nullptr : &*row;
}

// The row for the words at the front of TOKENS, which are taken away.
const CommandRow* takeRow(QStringList& tokens) {
    const QString word = tokens.takeFirst().toUpper();
    if (const CommandRow* row = rowNamed(word)) {
        return row;
    }
    const CommandRow* row = tokens.isEmpty() ? nullptr : rowNamed(word + u' ' + tokens.first().toUpper());
    if (row != nullptr) {
        tokens.removeFirst();
    }
    return row;
}

}  // namespace

QString AmcpInterpreter::answer(const QString& line) {
    QStringList tokens = tokenize(line);
    QString requestId;
    if (tokens.size() >= 2 && tokens.first().compare("REQ"_L1, Qt::CaseInsensitive) == 0) {
        requestId = tokens[1];
        tokens.remove(0, 2);
    }
    const QString reply = run(tokens, line);
    return requestId.isEmpty() ? reply : u"RES %1 "_s.arg(requestId) + reply;
}

QString AmcpInterpreter::run(QStringList tokens, const QString& line) {
    if (tokens.isEmpty()) {
        return reply::unknown(line);
    }
    if (tokens.first().compare("PING"_L1, Qt::CaseInsensitive) == 0) {
        tokens.first() = u"PONG"_s;
        return tokens.join(u' ') + u"\r\n"_s;
    }

    // The channel stands behind the first word, also of a command of two words.
    const auto place = tokens.size() > 1 ? parseChannel(tokens[1]) : std::nullopt;
    if (place) {
        tokens.removeAt(1);
    }
    const CommandRow* row = takeRow(tokens);
    if (row == nullptr || (row->target == Target::Layer && !place)) {
        return reply::unknown(line);
    }

    Command command{.name = row->name.toString(), .parameters = tokens};
    if (place && row->target != Target::Server) {
        if (place->channel < 1 || place->channel > host_.stage.channelCount()) {
            return reply::noSuchChannel(command.word());
        }
        if (!place->layerIsLegal) {
            return reply::illegal(command.name);
        }
        command.channel = place->channel;
        command.layer = place->layer;
        command.at = {place->channel, place->layer.value_or(row->usualLayer)};
    }
    if (command.parameters.size() < row->minimumParameters) {
        return reply::parameterMissing(command.word());
    }
    return row->run(command, host_);
}

}  // namespace zelvor::rehearsal
