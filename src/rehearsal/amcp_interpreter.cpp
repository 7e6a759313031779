#include "rehearsal/amcp_interpreter.h"

#include <algorithm>
#include <utility>

#include "rehearsal/amcp_tokenizer.h"
#include "rehearsal/place.h"
#include "rehearsal/reply.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

// A line on its way: its words without "REQ id", and that id.
struct AmcpInterpreter::Request {
    const QString& line;
    QStringList tokens;
    QString id;

    [[nodiscard]] bool isWord(QLatin1StringView word) const {
        return tokens.size() == 1 && tokens.first().compare(word, Qt::CaseInsensitive) == 0;
    }
};

namespace {

using Target = CommandRow::Target;

const CommandRow* rowNamed(const QString& name) {
    const auto table = commandTable();
    const auto row = std::ranges::find_if(table, [&](const CommandRow& each) { return name == each.name; });
    return row == table.end() ? nullptr : &*row;
}

// The row for the words at the front of TOKENS, which are taken away: the two words, else the one.
const CommandRow* takeRow(QStringList& tokens) {
    const QString word = tokens.takeFirst().toUpper();
    if (const CommandRow* row = tokens.isEmpty() ? nullptr : rowNamed(word + u' ' + tokens.first().toUpper())) {
        tokens.removeFirst();
        return row;
    }
    return rowNamed(word);
}

QString withRequestId(const QString& reply, const QString& id) {
    return id.isEmpty() || reply.isEmpty() ? reply : u"RES %1 "_s.arg(id) + reply;
}

}  // namespace

QString AmcpInterpreter::answer(const QString& line, AmcpClient& client) {
    Request request{.line = line, .tokens = tokenize(line), .id = {}};
    if (request.isWord("REQ"_L1)) {
        return reply::requestIdMissing();
    }
    if (request.tokens.size() >= 2 && request.tokens.first().compare("REQ"_L1, Qt::CaseInsensitive) == 0) {
        request.id = request.tokens[1];
        request.tokens.remove(0, 2);
    }
    if (client.batch && request.isWord("COMMIT"_L1)) {
        const QString done = request.id.isEmpty() ? QString() : reply::ok(u"COMMIT");
        return commit(client) + withRequestId(done, request.id);
    }
    return withRequestId(run(request, client), request.id);
}

QString AmcpInterpreter::run(Request& request, AmcpClient& client) {
    QStringList& tokens = request.tokens;
    if (tokens.isEmpty()) {
        return reply::unknown(request.line);
    }
    if (tokens.first().compare("PING"_L1, Qt::CaseInsensitive) == 0) {
        tokens.first() = u"PONG"_s;
        return tokens.join(u' ') + u"\r\n"_s;
    }
    if (request.isWord("BYE"_L1)) {
        client.hasSaidBye = true;
        return {};
    }
    if (request.isWord("BEGIN"_L1)) {
        client.batch.emplace();
        client.batchText = 0;
        return {};
    }
    if (client.batch && request.isWord("DISCARD"_L1)) {
        client.batch.reset();
        return {};
    }

    // The channel stands behind the first word, also of a command of two words.
    const Place place = parsePlace(tokens.value(1)).value_or(Place{});
    const bool hasPlace = host_.stage.hasChannel(place.channel);
    if (hasPlace) {
        tokens.removeAt(1);
    }
    const CommandRow* row = takeRow(tokens);
    const bool needsChannel = row != nullptr && (row->target == Target::Layer || row->target == Target::Locks);
    if (row == nullptr || (needsChannel && !hasPlace) || tokens.size() < row->minimumParameters) {
        return reply::unknown(request.line);
    }
    Command command{.name = row->name.toString(), .parameters = tokens, .client = client.id};
    if (hasPlace && row->target != Target::Server) {
        command.channel = place.channel;
        command.layer = place.layer;
        command.at = {place.channel, place.layer.value_or(row->usualLayer)};
    }
    if (!client.batch) {
        return execute(*row, command);
    }
    client.batchText += request.line.size();
    if (client.batch->size() >= AmcpClient::kMaxBatch || client.batchText > AmcpClient::kMaxBatchText) {
        return reply::failed(command.name);
    }
    client.batch->push_back({row, std::move(command), request.id});
    return {};
}

// Of the commands of a batch, only those with a request id are answered.
QString AmcpInterpreter::commit(AmcpClient& client) {
    QString replies;
    const std::vector<AmcpClient::Collected> batch = std::move(*client.batch);
    client.batch.reset();
    for (const auto& [row, command, requestId] : batch) {
        const QString reply = execute(*row, command);
        if (!requestId.isEmpty()) {
            replies += withRequestId(reply, requestId);
        }
    }
    return replies;
}

QString AmcpInterpreter::execute(const CommandRow& row, const Command& command) {
    const bool isAdmitted = row.target == Target::Locks || host_.locks.admits(command.channel, command.client);
    return isAdmitted ? row.run(command, host_) : reply::noAccess(command.name);
}

}  // namespace zelvor::rehearsal
