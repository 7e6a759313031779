#include "base/command_line.h"

#include <algorithm>

#include "base/number.h"

using namespace Qt::StringLiterals;

namespace zelvor {

CommandLine::CommandLine(const QStringList& arguments, std::span<const Option> options) {
    bool optionsEnded = false;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (optionsEnded || !argument.startsWith(u'-') || argument == u"-") {
            rest_ += argument;
            continue;
        }
        if (argument == u"--") {
            optionsEnded = true;
            continue;
        }
        const qsizetype equals = argument.indexOf(u'=');
        const QString name = argument.left(equals < 0 ? argument.size() : equals);
        const auto option = std::ranges::find(options, name, &Option::name);
        if (option == options.end() || (!option->takesValue && equals >= 0)) {
            if (unknownOption_.isEmpty()) unknownOption_ = argument;
            rest_ += argument;
        } else if (!option->takesValue) {
            given_.push_back({name, {}});
        } else if (equals >= 0) {
            given_.push_back({name, argument.mid(equals + 1)});
        } else if (i + 1 < arguments.size()) {
            given_.push_back({name, arguments[++i]});
        } else if (optionWithoutValue_.isEmpty()) {
            optionWithoutValue_ = name;
        }
    }
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

bool isPreview(const QString& commandLineText) {
    return commandLineText.contains(u"/PREVIEW"_s, Qt::CaseInsensitive);
}

int leadingNumber(const QString& commandLineText) {
    const double number = Val(QString(u'0' + commandLineText));
    return number >= 1 && number <= INT16_MAX ? static_cast<int>(number) : 0;
}

}  // namespace zelvor
