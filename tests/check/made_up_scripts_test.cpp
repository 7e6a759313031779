// Scripts made up of every command with all kinds of arguments, until two thousand have run to their end without an
// error: none of these may be called an error by the checker.

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <random>

#include "app_check/pack_check.h"
#include "support/fake_ports.h"

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

constexpr int kRunWell = 2000;
constexpr int kBatch = 1000;  // checked at once
constexpr unsigned kSeed = 20261121;

class ScriptMaker {
 public:
    // Ends with a mark that the script's number was reached.
    QByteArray script(int number) {
        QStringList lines{u"SETVAR~@A;7"_s};
        const int count = 1 + pick(3);
        for (int i = 0; i < count; ++i) lines += block();
        lines += u"SETVAR~@END;%1"_s.arg(number);
        return lines.join(u"\r\n"_s).toUtf8();
    }

 private:
    int pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    const QString& any(const QStringList& of) { return of[pick(static_cast<int>(of.size()))]; }

    QString block() {
        switch (pick(8)) {
            case 0:
                return u"IFL~1;=;1~\""_s + line() + u'"';
            case 1:
                ++labels_;
                return u"IF~EVAL\"x\" & {@A};s=;x7;L%1\r\n"_s.arg(labels_) + line() + u"\r\nFI~L%1"_s.arg(labels_);
            case 2:
                return u"FOREACHREC~I\r\n"_s + line() + u"\r\nIFL~{@I};>;1~\"ROF\"\r\nROF"_s;
            case 3:
                return u"EVAL~E;"_s + any(kExpressions);
            case 4:
                return u"CALC~@C;"_s + any(kFormulas);
            default:
                return line();
        }
    }

    QString line() {
        // Files, waits and flow need more than arguments.
        static const QRegularExpression kLeftOut(
            u"^(INCLUDE|IFL?|FI|FOREACHREC|ROF|DELAY|OFILE8?|CFILE8?|WFILE8?|EXECUTE|FUNCTIONCARD|EVAL|CALC)$"_s);
        static const std::vector<const Command*> kCommands = allCommands();
        const Command* command = nullptr;
        do command = kCommands[static_cast<size_t>(pick(static_cast<int>(kCommands.size())))];
        while (command->word.toString().contains(kLeftOut));
        const auto most = command->usage.isEmpty() ? 0 : command->usage.count(u';') + 1;
        QStringList arguments;
        for (qsizetype i = 0; i < most; ++i) {
            if (pick(12) > 0) arguments += any(kArguments);
        }
        return command->word + (most > 0 ? u'~' + arguments.join(u';') : QString());
    }

    const QStringList kArguments{u"1"_s,     u"0"_s,        u"-2"_s,  u"20"_s,      u"2.5"_s,    u"70000"_s, u"abc"_s,
                                 u""_s,      u"{@A}"_s,     u"@X"_s,  u"@A"_s,      u"N{@A}"_s,  u"1-2"_s,   u"a|b|c"_s,
                                 u"a#b#c"_s, u"P:1##Q:2"_s, u"red"_s, u"lblTime"_s, u"txtS5A"_s, u"&HFF"_s,  u"x y"_s};
    const QStringList kExpressions =
        QStringLiteral(
            "1+{@A}~Len(\"{@A}\")~Left(\"abc\",{@A})~Abs(-1~Nobody(1)~Mid(\"abc\",2)~Left(\"abc\")~Not(True)~"
            "7 mod (4)~{@A}~IIf({@A}>3,\"Foo(\",'x')~Round(2.5) & vbCrLf~1/0")
            .split(u'~');
    const QStringList kFormulas{u"2*({@A}+1]"_s, u"Sqr({@A})"_s, u"Squirt(1)"_s, u"|-3|+5%"_s,      u"max(1,2,{@A})"_s,
                                u"width"_s,      u"(1+"_s,       u"2pi"_s,       u"Comb(5,{@A})"_s, u"1/0"_s};
    std::mt19937 random_{kSeed};
    int labels_ = 0;
};

class MadeUpScripts : public testing::Test, public test::EngineBench {};

TEST_F(MadeUpScripts, ThatRunAreNoErrors) {
    // What does nothing is an error of the checker, and none of a run; nor is what only a real database refuses.
    static const QRegularExpression kDoesNothing(
        u"the form has no|never found|finds nothing|is cut at|ends the card|one character|no field|card .* does not "
        u"exist|"
        u"no statement"_s);
    ScriptMaker maker;
    int ranWell = 0;
    int failed = 0;
    int found = 0;
    for (int first = 0; ranWell < kRunWell; first += kBatch) {
        for (int i = 0; i < kBatch; ++i) write(u"QRD_TT/s%1.csp"_s.arg(i), maker.script(first + i));
        PackCheck check(folder, u"TT"_s);
        (void)check.findings();
        for (int i = 0; i < kBatch; ++i) {
            const QString name = u"s%1.csp"_s.arg(i);
            operatorDesk.shown.clear();
            engine.SHOW_TVCARD(name, false, false, {});
            const bool well =
                operatorDesk.shown.isEmpty() && state.variables.text(u"@END") == QString::number(first + i);
            QStringList errors;
            Findings findings = check.scripts().at(check.files().path(name)).findings;
            for (const Finding& finding : findings.sorted()) {
                if (finding.isError && !finding.text.contains(kDoesNothing)) errors += finding.text;
            }
            EXPECT_TRUE(!well || errors.isEmpty()) << first + i << ": " << qPrintable(errors.join(u'\n'));
            ranWell += well ? 1 : 0;
            failed += well ? 0 : 1;
            found += !well && !errors.isEmpty() ? 1 : 0;
        }
    }
    // Most of what failed was to be seen beforehand.
    EXPECT_GT(found, failed / 2) << ranWell << " ran well, " << failed << " failed";
}

}  // namespace
}  // namespace zelvor
