#include "ask/ask_fields.h"

#include "base/number.h"
#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Where a pair of that key goes; null for a key that means nothing.
QString* member(AskField& field, QStringView key) {
    if (key == u"ASKTITLE") return &field.title;
    if (key == u"GETCODE") return &field.getCode;
    if (key == u"DISPLAY") return &field.display;
    if (key == u"AUTOTAG") return &field.autoTag;
    if (key == u"SQL") return &field.sql;
    return nullptr;
}

// The text between the first ":" and the second: a value is meant to end there.
QString valueOf(const QString& line) {
    if (!line.contains(u':')) throw RunTimeError(ErrorNumber::SubscriptOutOfRange, line);
    return line.section(u':', 1, 1);
}

qint16 fieldNumber(const QString& line) {
    const qint16 number = wholeNumber16(valueOf(line));
    if (number < 0) throw RunTimeError(ErrorNumber::SubscriptOutOfRange, line);
    return number;
}

}  // namespace

void readAskFields(const QStringList& lines, std::vector<AskField>& fields, int& lineNo) {
    while (lineNo < lines.size()) {
        const QString& opening = lines[lineNo++];
        if (!opening.startsWith(u'%')) continue;
        const qint16 number = fieldNumber(opening);
        if (fields.size() <= static_cast<size_t>(number)) fields.resize(number + 1);
        for (int pair = 0; pair < kAskFieldLines; ++pair) {
            if (lineNo == lines.size()) {
                throw RunTimeError(ErrorNumber::InputPastEndOfFile, u"field %1"_s.arg(number));
            }
            const QString& line = lines[lineNo++];
            QString* const known = member(fields[number], line.section(u':', 0, 0).trimmed());
            if (known != nullptr) *known = valueOf(line);
        }
    }
}

void LOAD_ASK(ShowState& state, Program& program) {
    ErrorPlace place{u"mGLOBAL.LOAD_ASK"_s};
    program.trap.run(place, ErrorTrap::Tell::Operator, [&] {
        state.ask.ASK_FIELDS.assign(AskState::kSmallestTable, {});
        const AppFolder& folder = program.folder;
        const QString path = folder.resolve(folder.packFile(state.language(), u"ASKFIELDS.TXT"));
        const QStringList lines = program.files.readLines(path);
        try {
            readAskFields(lines, state.ask.ASK_FIELDS, place.line);
        } catch (const RunTimeError& error) {
            throw RunTimeError::withText(error.code(), error.text() + u": ASKFIELDS.TXT"_s);
        }
    });
}

}  // namespace zelvor
