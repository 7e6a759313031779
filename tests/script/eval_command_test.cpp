#include "app_eval/eval_command.h"

#include <gtest/gtest.h>

#include "support/told.h"

using namespace Qt::StringLiterals;

namespace {

TEST(EvalCommand, PrintsTheValueOrTheError) {
    const std::tuple<QStringList, int, QString, QString> rows[]{
        {{u"7"_s, u"mod"_s, u"4"_s}, 0, u"3\n"_s, {}},
        {{u"--"_s, u"--5"_s}, 0, u"5\n"_s, {}},
        {{u"-5"_s}, 0, u"-5\n"_s, {}},
        {{u"Null"_s}, 0, u"Null\n"_s, {}},
        {{u"Array(1,Null,'x')"_s}, 0, u"1, Null, x\n"_s, {}},
        {{u"1 + (2"_s}, 1, {}, u"Error 1006: Expected ')'\nPosition 7\n"_s},
        {{u"foo(1)"_s}, 1, {}, u"Error 13: Type mismatch: 'foo'\nPosition 1\n"_s},
        {{u"--"_s}, 2, {}, u"no expression"_s},
    };
    for (const auto& [arguments, status, out, err] : rows) {
        const zelvor::test::Told told(zelvor::runEval, arguments);
        EXPECT_EQ(told.status, status) << qPrintable(arguments.join(u' '));
        EXPECT_EQ(told.out.toStdString(), out.toStdString());
        EXPECT_EQ(told.err.toStdString(), err.toStdString());
    }
}

}  // namespace
