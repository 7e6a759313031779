#include "app_eval/eval_command.h"

#include <gtest/gtest.h>

#include <array>

#include "command_line/command_line.h"

using namespace Qt::StringLiterals;

namespace {

struct Invocation {
    QStringList arguments;
    int status;
    QString out;
    QString err;
};

TEST(EvalCommand, PrintsTheValueOrTheError) {
    const std::array rows{
        Invocation{{u"7 mod 4"_s}, 0, u"3\n"_s, {}},
        Invocation{{u"7"_s, u"mod"_s, u"4"_s}, 0, u"3\n"_s, {}},
        Invocation{{u"--"_s, u"--5"_s}, 0, u"5\n"_s, {}},
        Invocation{{u"-5"_s}, 0, u"-5\n"_s, {}},
        Invocation{{u"Null"_s}, 0, u"Null\n"_s, {}},
        Invocation{{u"Array(1,Null,'x')"_s}, 0, u"1, Null, x\n"_s, {}},
        Invocation{{u"1 + (2"_s}, 1, {}, u"Error 1006: Expected ')'\nPosition 7\n"_s},
        Invocation{{u"foo(1)"_s}, 1, {}, u"Error 13: Type mismatch: 'foo'\nPosition 1\n"_s},
        Invocation{{}, 2, {}, u"no expression"_s},
        Invocation{{u"--"_s}, 2, {}, u"no expression"_s},
        Invocation{{u"--fast"_s, u"1"_s}, 2, {}, u"unknown option --fast"_s},
    };
    for (const Invocation& row : rows) {
        QString out;
        QString err;
        QTextStream outStream(&out);
        QTextStream errStream(&err);
        int status = zelvor::UsageError::kExitStatus;
        try {
            status = zelvor::runEval(row.arguments, outStream, errStream);
        } catch (const zelvor::UsageError& error) {
            err = error.text;
        }
        EXPECT_EQ(status, row.status) << qPrintable(row.arguments.join(u' '));
        EXPECT_EQ(out.toStdString(), row.out.toStdString());
        EXPECT_EQ(err.toStdString(), row.err.toStdString());
    }
}

}  // namespace
