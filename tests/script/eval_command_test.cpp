#include "app_eval/eval_command.h"

#include <gtest/gtest.h>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Invocation {
    QStringList arguments;
    int status;
    QString out;
    QString err;  // how it begins
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
        Invocation{{}, 2, {}, u"usage: "_s},
        Invocation{{u"--"_s}, 2, {}, u"usage: "_s},
        Invocation{{u"--fast"_s, u"1"_s}, 2, {}, u"usage: "_s},
    };
    for (const Invocation& row : rows) {
        QString out;
        QString err;
        QTextStream outStream(&out);
        QTextStream errStream(&err);
        EXPECT_EQ(zelvor::runEval(row.arguments, outStream, errStream), row.status)
            << qPrintable(row.arguments.join(u' '));
        EXPECT_EQ(out.toStdString(), row.out.toStdString());
        EXPECT_EQ(err.left(row.status == 2 ? row.err.size() : err.size()).toStdString(), row.err.toStdString());
    }
}

}  // namespace
