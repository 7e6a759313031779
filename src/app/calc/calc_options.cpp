#include "app_calc/calc_options.h"

#include <array>
#include <cmath>

#include "command_line/command_line.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kMaxDigits = 17;

const std::array kOptions{
    CommandLine::Option{u"--var"_s, true},    CommandLine::Option{u"--angle"_s, true},
    CommandLine::Option{u"--digits"_s, true}, CommandLine::Option{u"--dms"_s},
    CommandLine::Option{u"--units"_s},        CommandLine::Option{u"--assign-explicit"_s},
    CommandLine::Option{u"--dump"_s},         CommandLine::Option{u"--list"_s},
    CommandLine::Option{u"--help"_s},         CommandLine::Option{u"-h"_s},
};

std::optional<std::pair<std::string, double>> variable(const QString& text) {
    const qsizetype mark = text.indexOf(u'=');
    bool isNumber = false;
    const double value = text.mid(mark + 1).toDouble(&isNumber);
    if (mark < 1 || !isNumber || !std::isfinite(value)) return std::nullopt;
    return std::pair(text.left(mark).toStdString(), value);
}

std::optional<std::string> angleUnit(const QString& text) {
    for (const QString& unit : {u"RAD"_s, u"DEG"_s, u"GRAD"_s, u"rad"_s, u"deg"_s, u"grad"_s}) {
        if (text == unit) return text.toStdString();
    }
    return std::nullopt;
}

}  // namespace

CalcOptions readCalcOptions(const QStringList& arguments) {
    const CommandLine line(arguments, kOptions);
    CalcOptions options;
    options.help = line.has(u"--help") || line.has(u"-h");
    if (options.help) return options;
    line.check();
    options.variables = line.readAll(u"--var", u"NAME=VALUE"_s, variable);
    options.angle = line.read(u"--angle", u"RAD, DEG or GRAD"_s, angleUnit).value_or(options.angle);
    options.digits = line.number(u"--digits", 1, kMaxDigits).value_or(options.digits);
    options.degrees = line.has(u"--dms");
    options.units = line.has(u"--units");
    options.assignExplicit = line.has(u"--assign-explicit");
    options.dump = line.has(u"--dump");
    options.list = line.has(u"--list");
    // A single "-" begins a formula, as in -2^2.
    if (line.rest().size() > 1) throw UsageError{u"more than one formula; put it in quotes"_s};
    if (line.rest().isEmpty() && !options.list) throw UsageError{u"no formula"_s};
    options.formula = line.restText().toStdString();
    return options;
}

}  // namespace zelvor
