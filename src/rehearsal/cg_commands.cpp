#include "rehearsal/cg_commands.h"

#include "rehearsal/reply.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

using Function = TemplateCall::Function;

// The number of the template's own layer must be a whole number; HTML templates have no use for it.
bool namesTemplateLayer(const Command& command) {
    bool isNumber = false;
    command.parameters.first().toInt(&isNumber);
    return isNumber;
}

bool isTemplateData(const QString& text) {
    return text.startsWith(u'<') || text.startsWith(u'{');
}

// What a parameter means as data: itself when it is XML or JSON, else the stored data set of that name.
std::optional<QString> dataMeantBy(const QString& text, const Host& host) {
    return isTemplateData(text) ? text : host.data.find(text);
}

// The reply to data that is neither.
QString refusedData(const Command& command, const QString& data) {
    return data.isEmpty() ? reply::illegal(command.name) : reply::notFound(command.name);
}

QString pass(const Command& command, Host& host, const TemplateCall& call) {
    if (!namesTemplateLayer(command)) {
        return reply::failed(command.name);
    }
    if (!host.stage.showsTemplate(command.at)) {
        return reply::illegal(command.name);
    }
    host.stage.call(command.at, call);
    return reply::ok(command.word());
}

}  // namespace

QString cgAdd(const Command& command, Host& host) {
    const QStringList& parameters = command.parameters;
    // An older form has a label between the template and the flag, known by its length.
    const qsizetype flagAt = parameters[2].size() > 1 ? 3 : 2;
    const qsizetype dataAt = flagAt + 1;
    const bool hasData = dataAt < parameters.size();
    const auto data = hasData ? dataMeantBy(parameters[dataAt], host) : std::nullopt;
    if (!namesTemplateLayer(command)) {
        return reply::failed(command.name);
    }
    if (hasData && !data) {
        return refusedData(command, parameters[dataAt]);
    }
    const std::optional<QString> found = host.folder.findTemplate(parameters[1]);
    if (!found) {
        return reply::notFound(command.name);
    }
    if (!host.stage.hasRoomFor(command.at)) {
        return reply::failed(command.name);
    }

    Source source{.kind = Source::Kind::Template, .name = *found};
    if (data) {
        source.history.add({Function::Update, *data});
    }
    if (parameters.value(flagAt).startsWith(u'1')) {
        source.history.add({Function::Play, {}});
    }
    host.stage.show(command.at, std::move(source));
    return reply::ok(command.word());
}

QString cgPlay(const Command& command, Host& host) {
    if (!namesTemplateLayer(command)) {
        return reply::failed(command.name);
    }
    host.stage.call(command.at, {Function::Play, {}});
    return reply::ok(command.word());
}

QString cgUpdate(const Command& command, Host& host) {
    const QString& text = command.parameters[1];
    const auto data = dataMeantBy(text, host);
    return data ? pass(command, host, {Function::Update, *data}) : refusedData(command, text);
}

QString cgStop(const Command& command, Host& host) {
    return pass(command, host, {Function::Stop, {}});
}
QString cgNext(const Command& command, Host& host) {
    return pass(command, host, {Function::Next, {}});
}
QString cgRemove(const Command& command, Host& host) {
    return pass(command, host, {Function::Remove, {}});
}

QString cgInvoke(const Command& command, Host& host) {
    const QString& text = command.parameters[1];
    return pass(command, host, {Function::Invoke, text.endsWith(u')') ? text : text + u"()"_s});
}

QString cgClear(const Command& command, Host& host) {
    host.stage.clear(command.at);
    return reply::ok(command.word());
}

}  // namespace zelvor::rehearsal
