#include "command_line/command_line.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <QStringDecoder>
#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace zelvor {

QString UsageError::line(const QString& program) const {
    return program + u": "_s + text + u". Try: "_s + program + u" --help\n"_s;
}

CommandLine::CommandLine(const QStringList& arguments, std::span<const Option> options) {
    bool optionsEnded = false;
    const auto note = [this](const QString& fault) {
        if (fault_.isEmpty()) fault_ = fault;
    };
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (!optionsEnded && argument == u"--") {
            optionsEnded = true;
            continue;
        }
        const qsizetype equals = argument.indexOf(u'=');
        const QString name = argument.left(equals < 0 ? argument.size() : equals);
        const auto option = optionsEnded ? options.end() : std::ranges::find(options, name, &Option::name);
        if (option == options.end() || (!option->takesValue && equals >= 0)) {
            if (optionsEnded || !argument.startsWith(u"--") || isPreview(argument)) {
                rest_ += argument;
            } else {
                note(u"unknown option "_s + argument);
            }
        } else if (!option->takesValue) {
            given_.push_back({name, {}});
        } else if (equals >= 0) {
            given_.push_back({name, argument.mid(equals + 1)});
        } else if (i + 1 < arguments.size()) {
            given_.push_back({name, arguments[++i]});
        } else {
            note(name + u" takes a value"_s);
        }
    }
}

void CommandLine::check() const {
    if (!fault_.isEmpty()) throw UsageError{fault_};
}

bool CommandLine::has(QStringView name) const {
    return std::ranges::any_of(given_, [&](const Given& given) { return given.name == name; });
}

std::optional<QString> CommandLine::value(QStringView name) const {
    const QStringList all = values(name);
    if (all.isEmpty()) return std::nullopt;
    return all.last();
}

QStringList CommandLine::values(QStringView name) const {
    QStringList all;
    for (const Given& given : given_) {
        if (given.name == name) all += given.value;
    }
    return all;
}

QString CommandLine::lastOf(std::span<const QStringView> names) const {
    QString last;
    for (const Given& given : given_) {
        if (std::ranges::find(names, QStringView(given.name)) != names.end()) last = given.name;
    }
    return last;
}

std::optional<int> CommandLine::number(QStringView name, int lowest, int highest) const {
    return read(name, u"a number from %1 to %2"_s.arg(lowest).arg(highest), [=](const QString& text) {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        return isNumber && number >= lowest && number <= highest ? std::optional(number) : std::nullopt;
    });
}

std::optional<quint16> CommandLine::port(QStringView name) const {
    const std::optional<int> port = number(name, 0, std::numeric_limits<quint16>::max());
    return port ? std::optional(static_cast<quint16>(*port)) : std::nullopt;
}

std::optional<HostPort> CommandLine::hostPort(QStringView name) const {
    return read(name, u"HOST:PORT"_s, readHostPort);
}

std::optional<QByteArray> CommandLine::codePage(QStringView name) const {
    return read(name, u"a code page such as windows-1253"_s, [](const QString& text) {
        const QByteArray codePage = text.toLatin1();
        return QStringDecoder(codePage.constData()).isValid() ? std::optional(codePage) : std::nullopt;
    });
}

void CommandLine::refuse(QStringView name, const QString& wanted, const QString& text) {
    throw UsageError{name + u" takes "_s + wanted + u", not "_s + text};
}

QString CommandLine::appFolder() const {
    const std::optional<QString> named = value(u"--app-folder");
    if (!has(u"--user-folder")) return named.value_or(QCoreApplication::applicationDirPath());
    if (named) throw UsageError{u"--app-folder or --user-folder, not both"_s};
    return userFolder();
}

QString userFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/zelvor-cards"_s;
}

bool isPreview(const QString& commandLineText) {
    return commandLineText.contains(u"/PREVIEW"_s, Qt::CaseInsensitive);
}

}  // namespace zelvor
