#include <algorithm>
#include <array>

#include "base/run_time_error.h"
#include "script/date_text.h"
#include "script/decimal.h"
#include "script/functions.h"
#include "script/grouped_number.h"
#include "script/operators.h"
#include "script/pattern.h"

using namespace Qt::StringLiterals;

namespace zelvor::script::functions {

namespace {

using Kind = Value::Kind;

// The choice of a format argument: -1 yes, 0 no, -2 or absent as usual.
bool choice(const Arguments& args, qsizetype index, bool usual) {
    const qint64 chosen = args.whole(index, -2);
    require(chosen >= -2 && chosen <= 0);
    return chosen == -2 ? usual : chosen == -1;
}

struct NumberStyle {
    double scale = 1;
    QStringView prefix;
    QStringView suffix;
    bool brackets = false;  // negative numbers, unless the call says otherwise
};

// Arguments: number, digits behind the point (2), leading zero (yes), brackets when negative, groups (yes).
Value styled(const Arguments& args, const NumberStyle& style) {
    constexpr qint64 kUsualDigits = 2;
    constexpr qint64 kMostDigits = 99;
    const double number = *finite(args.number(0) * style.scale).as<double>();
    const qint64 digits = args.whole(1, -1);
    require(digits >= -1 && digits <= kMostDigits);
    const bool leadingZero = choice(args, 2, true);
    const bool brackets = choice(args, 3, style.brackets);
    const bool groups = choice(args, 4, true);
    const Decimal decimal =
        decimalOf(number, static_cast<int>(digits == -1 ? kUsualDigits : digits), Halves::AwayFromZero);
    QString text = style.prefix.toString();
    if (decimal.whole.empty() && (leadingZero || decimal.fraction.empty())) text += u'0';
    text += QString::fromStdString(groups ? grouped(decimal.whole) : decimal.whole);
    if (!decimal.fraction.empty()) text += u'.' + QString::fromStdString(decimal.fraction);
    text += style.suffix;
    if (!decimal.negative) return text;
    return brackets ? QString(u'(' + text + u')') : QString(u'-' + text);
}

}  // namespace

Value format(const Arguments& args) {
    const Value& value = args[0];
    if (value.isNull() || value.isEmpty()) return QString();
    const TextOf text = args.text(0);
    if (!args.has(1)) return text.string();
    const TextOf name = args.text(1);
    const QStringView pattern = namedPattern(name);
    if (pattern.isEmpty()) return text.string();
    const WeekRule rule{.firstDay = static_cast<int>(std::clamp<qint64>(args.whole(2, 1), 1, 7)),
                        .firstWeek = static_cast<WeekRule::FirstWeek>(std::clamp<qint64>(args.whole(3, 1), 1, 3))};
    const PatternKind kind = kindOf(pattern);
    if (kind == PatternKind::Text) return formatText(text, pattern);
    double number = 0;
    const bool isNumber = value.isText() ? readsAsNumber(text, number) : true;
    if (!value.isText()) number = value.number();
    if (kind == PatternKind::Date) {
        if (isNumber) return formatDate(checkedDate(number), pattern, rule);
        const auto date = readDate(text, &args.environment().clock);
        // A text that the pattern does not fit stays as it is.
        return date ? formatDate(*date, pattern, rule) : text.string();
    }
    return isNumber ? zelvor::script::formatNumber(number, pattern) : text.string();
}

Value formatCurrency(const Arguments& args) {
    return styled(args, {.scale = 1, .prefix = u"$", .suffix = u"", .brackets = true});
}

Value formatDateTime(const Arguments& args) {
    static constexpr std::array<QStringView, 5> kPatterns{u"c", u"dddddd", u"ddddd", u"ttttt", u"hh:nn"};
    const qint64 kind = args.whole(1, 0);
    require(kind >= 0 && kind < static_cast<qint64>(kPatterns.size()));
    return formatDate(args.date(0), kPatterns[static_cast<size_t>(kind)], {});
}

Value formatNumber(const Arguments& args) {
    return styled(args, {.scale = 1, .prefix = u"", .suffix = u"", .brackets = false});
}

Value formatPercent(const Arguments& args) {
    return styled(args, {.scale = 100, .prefix = u"", .suffix = u"%", .brackets = false});
}

}  // namespace zelvor::script::functions
