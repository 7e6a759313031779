#include "app_check/ask_field_check.h"

#include "app_check/placeholder_scan.h"
#include "ask/ask_fields.h"
#include "base/number.h"
#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

class AskFieldCheck {
 public:
    AskFieldCheck(const QString& path, PackFiles& files, VariableUse& variables, Findings& findings)
        : path_(path), files_(files), variables_(variables), findings_(findings), lines_(files.lines(path)) {}

    QSet<int> check() {
        for (qsizetype at = 0; at < lines_.size();) at += lines_[at].startsWith(u'%') ? checkField(at) : 1;
        return numbers_;
    }

 private:
    [[nodiscard]] Place place(qsizetype index) const { return files_.place(path_, static_cast<int>(index) + 1); }

    // Checks the field whose block begins at that index; gives the number of its lines.
    qsizetype checkField(qsizetype at) {
        qsizetype pairs = 0;
        while (pairs < kAskFieldLines && at + pairs + 1 < lines_.size() && !lines_[at + pairs + 1].startsWith(u'%')) {
            ++pairs;
        }
        QStringList block = lines_.mid(at, 1 + pairs);
        if (pairs < kAskFieldLines) {
            findings_.error(place(at), u"the field has %1 lines instead of %2"_s.arg(pairs).arg(kAskFieldLines));
            // Its lines that are there are checked all the same.
            block.resize(1 + kAskFieldLines);
        }
        int lineNo = 0;
        try {
            std::vector<AskField> fields;
            readAskFields(block, fields, lineNo);
            numbers_ += static_cast<int>(fields.size()) - 1;
            checkContent(fields.back(), at);
        } catch (const RunTimeError& error) {
            findings_.error(place(at + lineNo - 1), error.text());
        }
        for (qsizetype pair = 1; pair <= pairs; ++pair) checkPair(block[pair], at + pair);
        return 1 + pairs;
    }

    void checkContent(const AskField& field, qsizetype at) {
        if (field.sql.isEmpty()) findings_.error(place(at), u"the field has no SQL"_s);
        if (field.getCode.isEmpty()) findings_.error(place(at), u"the field has no GETCODE"_s);
        if (field.display.isEmpty()) findings_.error(place(at), u"the field has no DISPLAY"_s);
    }

    void checkPair(const QString& line, qsizetype at) {
        if (line.count(u':') > 1) findings_.warning(place(at), u"the value ends at its second \":\""_s);
        if (line.section(u':', 0, 0).trimmed() != u"SQL") return;
        PlaceholderScan scan = scanPlaceholders(line.section(u':', 1, 1));
        if (!scan.fault.isEmpty()) findings_.error(place(at), scan.fault);
        scan.variables.removeAll(u"@@"_s);  // the previous answer
        for (const QString& name : scan.variables) variables_.read(name, place(at));
    }

    QString path_;
    PackFiles& files_;
    VariableUse& variables_;
    Findings& findings_;
    const QStringList& lines_;
    QSet<int> numbers_;
};

}  // namespace

QSet<int> checkAskFields(PackFiles& files, VariableUse& variables, Findings& findings) {
    const QString path = files.path(u"ASKFIELDS.TXT");
    try {
        return AskFieldCheck(path, files, variables, findings).check();
    } catch (const RunTimeError& error) {
        findings.error(files.place(path), error.text());
        return {};
    }
}

}  // namespace zelvor
