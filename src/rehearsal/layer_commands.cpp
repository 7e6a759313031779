#include "rehearsal/layer_commands.h"

#include <algorithm>
#include <cmath>

#include "rehearsal/reply.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {

namespace {

struct NamedColour {
    QStringView name;
    QStringView colour;
};

constexpr NamedColour kColours[] = {
    {u"EMPTY", u"#00000000"}, {u"BLACK", u"#000000FF"},   {u"WHITE", u"#FFFFFFFF"}, {u"RED", u"#FF0000FF"},
    {u"GREEN", u"#00FF00FF"}, {u"BLUE", u"#0000FFFF"},    {u"GRAY", u"#808080FF"},  {u"ORANGE", u"#FFA500FF"},
    {u"TEAL", u"#008080FF"},  {u"MAGENTA", u"#FF00FFFF"}, {u"CYAN", u"#00FFFFFF"},  {u"YELLOW", u"#FFFF00FF"},
};

// The colour as "#RRGGBBAA". Lines write it by name, as "#RRGGBB" or as "#AARRGGBB".
std::optional<QString> colourNamed(const QString& text) {
    for (const NamedColour& row : kColours) {
        if (text.compare(row.name, Qt::CaseInsensitive) == 0) {
            return row.colour.toString();
        }
    }
    const auto isHex = [](QChar digit) { return digit.unicode() < 128 && std::isxdigit(digit.unicode()) != 0; };
    const QString digits = text.mid(1).toUpper();
    if (!text.startsWith(u'#') || !std::all_of(digits.begin(), digits.end(), isHex)) {
        return std::nullopt;
    }
    if (digits.size() == 6) {
        return u'#' + digits + u"FF"_s;
    }
    if (digits.size() == 8) {
        return u'#' + digits.mid(2) + digits.left(2);
    }
    return std::nullopt;
}

std::optional<Source> sourceNamed(const QString& name, const TemplateFolder& folder) {
    if (const auto colour = colourNamed(name)) {
        return Source{.kind = Source::Kind::Colour, .name = *colour};
    }
    if (const auto found = folder.findTemplate(name)) {
        return Source{.kind = Source::Kind::Template, .name = *found};
    }
    if (const auto found = folder.findPicture(name)) {
        return Source{.kind = Source::Kind::Picture, .name = *found};
    }
    return std::nullopt;
}

enum class Destination { Foreground, ForegroundPaused, Background };

// The common part of PLAY, LOAD and LOADBG with a name: finds what it names and puts it where it belongs.
QString put(const Command& command, Host& host, Destination to) {
    // "[HTML]" in front says what kind of name follows; names tell that here by themselves.
    const bool marked = command.parameters.first().compare("[HTML]"_L1, Qt::CaseInsensitive) == 0;
    std::optional<Source> source = sourceNamed(command.parameters.value(marked ? 1 : 0), host.folder);
    if (!source) {
        return reply::notFound(command.name);
    }
    if (!host.stage.hasRoomFor(command.at)) {
        return reply::failed(command.name);
    }
    if (to == Destination::Background) {
        host.stage.prepare(command.at, std::move(*source));
    } else {
        host.stage.show(command.at, std::move(*source), to == Destination::ForegroundPaused);
    }
    return reply::ok(command.word());
}

}  // namespace

QString play(const Command& command, Host& host) {
    if (!command.parameters.isEmpty()) {
        return put(command, host, Destination::Foreground);
    }
    host.stage.take(command.at);
    return reply::ok(command.word());
}

QString load(const Command& command, Host& host) {
    return put(command, host, Destination::ForegroundPaused);
}

QString loadBackground(const Command& command, Host& host) {
    return put(command, host, Destination::Background);
}

QString pause(const Command& command, Host& host) {
    host.stage.setPaused(command.at, true);
    return reply::ok(command.word());
}

QString resume(const Command& command, Host& host) {
    host.stage.setPaused(command.at, false);
    return reply::ok(command.word());
}

QString stop(const Command& command, Host& host) {
    host.stage.stop(command.at);
    return reply::ok(command.word());
}

QString clear(const Command& command, Host& host) {
    if (command.layer) {
        host.stage.clear(command.at);
    } else {
        host.stage.clearChannel(command.channel);
    }
    return reply::ok(command.word());
}

QString call(const Command& command, Host& host) {
    host.stage.call(command.at, {TemplateCall::Function::Invoke, command.parameters.first()});
    return reply::ok(command.word());
}

}  // namespace zelvor::rehearsal
