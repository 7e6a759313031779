// Runs every card script of this folder through `zelvor run` and holds it to what its comment lines promise:
//
//   # args > --preview --set @X=1      more arguments of the run, split at blanks
//   # main > LINE                      what goes on air, all of it and in this order; "remote > " likewise
//   # console > lblONAIR.Caption = X   a change of the form: those promised come in this order among the others
//   # var > @X = 1                     a variable's value afterwards ("# novar > @X": it does not exist)
//   # says > TEXT                      what messages and questions hold, in this order, all on one line
//   # error > 9 @ 3                    the run ends with this error, at this line where one is given
//   # status > 3                       the exit status, where it is neither 0 nor 1 for an error
//   # example > WORD                   what follows is that command's example in docs/commands.md

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "app_run/run_command.h"
#include "support/told.h"

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

const QString kFolder = QStringLiteral(TEST_DATA_DIR);

QStringList promised(const QStringList& script, const QString& kind) {
    QStringList promises;
    for (const QString& line : script)
        if (line.startsWith(u"# "_s + kind + u" > "_s)) promises += line.mid(kind.size() + 5);
    return promises;
}

// beginning: a regular expression.
QStringList beginningWith(const QStringList& lines, const QString& beginning) {
    return lines.filter(QRegularExpression(u"^(?:%1)"_s.arg(beginning)));
}

class CardScripts : public testing::TestWithParam<std::string> {
 protected:
    // An application folder whose pack TT is this folder.
    void SetUp() override {
        ASSERT_TRUE(folder_.isValid());
        ASSERT_TRUE(QDir(folder_.path()).mkpath(u"MODULES"_s));
        ASSERT_TRUE(QFile::link(kFolder, folder_.filePath(u"MODULES/QRD_TT"_s)));
        QFile packs(folder_.filePath(u"MODULES/PACKS.TXT"_s));
        ASSERT_TRUE(packs.open(QIODevice::WriteOnly));
        packs.write("NONE;no folder\r\nTT;Tests\r\n");
    }

    QTemporaryDir folder_;
};

TEST_P(CardScripts, KeepTheirPromises) {
    const QString name = QString::fromStdString(GetParam());
    QFile file(kFolder + u'/' + name);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList script = QString::fromUtf8(file.readAll()).split(u'\n');
    script.replaceInStrings(u"$FOLDER"_s, folder_.path());

    QStringList arguments{u"--app-folder"_s, folder_.path(), u"--vars"_s};
    for (const QString& more : promised(script, u"args"_s)) arguments += more.split(u' ');
    const test::Told told(runCard, arguments << name);
    const QStringList seen = told.out.split(u'\n', Qt::SkipEmptyParts);
    QStringList air;
    for (const QString& line : beginningWith(script, u"# main > |# remote > "_s)) air += line.mid(2);
    EXPECT_EQ(air.join(u'\n'), beginningWith(seen, u"main > |remote > "_s).join(u'\n'));
    const QStringList changes = beginningWith(seen, u"console > "_s);
    qsizetype next = 0;
    for (const QString& change : promised(script, u"console"_s)) {
        const qsizetype found = changes.indexOf(u"console > "_s + change, next);
        EXPECT_GE(found, 0) << qPrintable(change + u"\nseen:\n" + changes.join(u'\n'));
        next = std::max(next, found + 1);
    }
    for (const QString& variable : promised(script, u"var"_s)) {
        EXPECT_TRUE(seen.contains(u"var > "_s + variable))
            << variable.toStdString() << "\nseen:\n"
            << beginningWith(seen, u"var > "_s + variable.section(u' ', 0, 0)).join(u'\n').toStdString();
    }
    for (const QString& variable : promised(script, u"novar"_s))
        EXPECT_TRUE(beginningWith(seen, u"var > "_s + QRegularExpression::escape(variable) + u" = "_s).isEmpty())
            << variable.toStdString();
    const QString said = told.err.simplified();
    qsizetype at = 0;
    for (const QString& text : promised(script, u"says"_s)) {
        at = said.indexOf(text, at);
        ASSERT_GE(at, 0) << text.toStdString() << "\nsaid: " << said.toStdString();
    }

    const QStringList error = promised(script, u"error"_s).join(QString()).split(u" @ "_s);
    if (error[0].isEmpty()) {
        EXPECT_EQ(promised(script, u"status"_s).value(0, u"0"_s).toInt(), told.status) << qPrintable(told.err);
    } else {
        EXPECT_EQ(1, told.status);
        for (const QString& part : QStringList{u"Error "_s + error[0] + u"\r\n"_s, u"Line "_s + error.value(1)})
            EXPECT_TRUE(told.err.contains(part)) << qPrintable(told.err);
    }
}

std::vector<std::string> scriptNames() {
    std::vector<std::string> names;
    for (const QString& name : QDir(kFolder).entryList({u"*.csp"_s}, QDir::Files)) names.push_back(name.toStdString());
    return names;
}

INSTANTIATE_TEST_SUITE_P(Cards, CardScripts, testing::ValuesIn(scriptNames()), [](const auto& test) {
    std::string name = test.param;
    std::ranges::replace_if(
        name, [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; }, '_');
    return name;
});

}  // namespace
}  // namespace zelvor
