#include "app_check/literal_check.h"

#include <functional>

#include "app_check/argument_check.h"
#include "app_check/placeholder_scan.h"
#include "base/number.h"
#include "base/run_time_error.h"
#include "engine/arguments.h"
#include "engine/card_table.h"
#include "engine/forms.h"
#include "form/colour.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

using Role = Command::Role;

// Finds what the reading of the argument throws.
void checkReading(const std::function<void()>& read, const QString& what, const QString& argument, const Place& place,
                  Findings& findings) {
    try {
        read();
    } catch (const RunTimeError&) {
        findings.error(place, u"\"%1\" is no %2"_s.arg(argument, what));
    }
}

void checkNumbered(const QString& number, int first, int last, const QString& what, const Place& place,
                   Findings& findings) {
    const std::optional<int> found = wholeNumberOf(number);
    if (!found || *found < first || *found > last) {
        findings.error(place, u"no %1 %2: they are numbered %3 to %4"_s.arg(what, number).arg(first).arg(last));
    }
}

void checkSlot(const QString& slot, const Place& place, Findings& findings) {
    constexpr int kLastColumn = 5;
    const std::optional<int> row = wholeNumberOf(slot.section(u'-', 0, 0));
    const std::optional<int> column = wholeNumberOf(slot.section(u'-', 1, 1));
    if (!row || !column || *column < 0 || *column > kLastColumn) {
        findings.error(place, u"no slot %1: it is row-column, the column 0 to %2"_s.arg(slot).arg(kLastColumn));
    }
}

// Items key:answer between "##".
void checkTag(const QString& tag, const Place& place, Findings& findings) {
    for (const QString& item : tag.isEmpty() ? QStringList() : tag.split(u"##"_s)) {
        if (isKnown(item) && !item.contains(u':')) {
            findings.error(place, u"the tag \"%1\" is not key:answer"_s.arg(item));
        }
    }
}

void checkPlaces(const QString& places, const Place& place, Findings& findings) {
    constexpr int kMostPlaces = 22;
    const std::optional<int> number = wholeNumberOf(places);
    if (!number || *number < 0 || *number > kMostPlaces) {
        findings.error(place, u"\"%1\" is no number of decimal places, 0 to %2"_s.arg(places).arg(kMostPlaces));
    }
}

}  // namespace

std::optional<int> wholeNumberOf(const QString& text) {
    try {
        return wholeNumber32(text);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

void checkLiteral(Role role, const QString& argument, const Place& place, Findings& findings) {
    if (role == Role::Tag) return checkTag(argument, place, findings);
    if (!isKnown(argument)) return;
    const auto reads = [&](const QString& what, const std::function<void()>& read) {
        checkReading(read, what, argument, place, findings);
    };
    switch (role) {
        case Role::Button:
            return checkNumbered(argument, 0, CardTable::kCards - 1, u"card button"_s, place, findings);
        case Role::Proposal:
            return checkNumbered(argument, 1, 8, u"proposal"_s, place, findings);
        case Role::CellNumber:
            if (wholeNumberOf(argument).value_or(-1) < 0) {
                findings.error(place, u"\"%1\" is no row or column: they are counted from 0"_s.arg(argument));
            }
            return;
        case Role::Slot:
            return checkSlot(argument, place, findings);
        case Role::Places:
            return checkPlaces(argument, place, findings);
        case Role::ColourValue:
            return reads(u"colour"_s, [&] { parseColour(argument); });
        case Role::WholeNumber:
            return reads(u"whole number"_s, [&] { wholeNumber32(argument); });
        case Role::FeedNumber:
            return reads(u"number of 16 bits"_s, [&] { wholeNumber16(Val(argument)); });
        case Role::Number:
            return reads(u"number"_s, [&] {
                double number = 0;
                if (!readNumber(argument, number)) throw RunTimeError(ErrorNumber::TypeMismatch);
            });
        case Role::Form:
            if (formNamed(argument).isEmpty()) findings.error(place, u"no form %1"_s.arg(argument));
            return;
        case Role::Character:
            if (argument.size() != 1) {
                findings.error(place, u"\"%1\" is not one character: it is never found"_s.arg(argument));
            }
            return;
        default:
            return;
    }
}

void checkField(const QStringList& arguments, bool remote, const Place& place, Findings& findings) {
    const QString& field = arguments[0];
    const bool animated = arguments.size() == 3;
    const QString value = arguments.value(animated ? 2 : 1);
    if (!remote && (field.contains(u'-') || field.contains(u'*'))) {
        findings.error(place,
                       u"the field %1 is cut at its \"-\" or \"*\""_s.arg(QString(field).replace(kAnything, u"..."_s)));
    }
    if (!remote && animated && (arguments[1].contains(u'-') || arguments[1].contains(u'*'))) {
        findings.error(place,
                       u"the animation \"%1\" holds \"-\" or \"*\": MAKEXML ends the card or cuts the field"_s.arg(
                           QString(arguments[1]).replace(kAnything, u"..."_s)));
    }
    if (remote && animated && isKnown(arguments[1]) && arguments[1].size() != 1) {
        findings.error(place, u"the animation of a remote field is one character, not \"%1\""_s.arg(arguments[1]));
    }
    if (!isKnown(value)) return;
    if (value.contains(u'|')) {
        if (remote && Pieces(value, u'|').count() < 3) {
            findings.error(place, u"a remote value with \"|\" needs three pieces: MAKEXMLREMOTE ends the card"_s);
        }
    } else if (value.contains(u'#') && Pieces(value, u'#').count() < 3) {
        findings.error(place, u"a value with \"#\" is value#attribute#value: MAKEXML ends the card"_s);
    }
}

}  // namespace zelvor
