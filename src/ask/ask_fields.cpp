#include "ask/ask_fields.h"

#include "base/number.h"
#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kLinesOfABlock = 5;

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

void readBlocks(const QStringList& lines, std::vector<AskField>& fields) {
    for (qsizetype at = 0; at < lines.size(); ++at) {
        if (!lines[at].startsWith(u'%')) continue;
        const qint16 number = fieldNumber(lines[at]);
        if (fields.size() <= static_cast<size_t>(number)) fields.resize(number + 1);
        for (int pair = 0; pair < kLinesOfABlock; ++pair) {
            if (++at == lines.size()) {
                throw RunTimeError(ErrorNumber::InputPastEndOfFile, u"ASKFIELDS.TXT, field %1"_s.arg(number));
            }
            QString* const known = member(fields[number], lines[at].section(u':', 0, 0).trimmed());
            if (known != nullptr) *known = valueOf(lines[at]);
        }
    }
}

}  // namespace

void LOAD_ASK(ShowState& state, const AppFolder& folder, const TextFiles& files, ErrorTrap& trap) {
    trap.run({u"mGLOBAL.LOAD_ASK"_s}, ErrorTrap::Tell::Operator, [&] {
        state.ask.ASK_FIELDS.assign(AskState::kSmallestTable, {});
        readBlocks(files.readLines(folder.resolve(folder.packFile(state.language(), u"ASKFIELDS.TXT"))),
                   state.ask.ASK_FIELDS);
    });
}

}  // namespace zelvor
