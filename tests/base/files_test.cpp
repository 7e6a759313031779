#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <array>

#include "base/app_folder.h"
#include "base/command_line.h"
#include "base/error_trap.h"
#include "base/text_file.h"

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

class Files : public testing::Test {
 protected:
    QString write(const QString& name, const QByteArray& bytes) {
        QFile file(folder_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    int readError(const QString& path) {
        try {
            (void)TextFiles().read(path);
            return 0;
        } catch (const RunTimeError& error) {
            EXPECT_TRUE(error.text().contains(path));
            return error.number();
        }
    }
    QTemporaryDir folder_;
};

TEST_F(Files, AreReadAsUtf8OrInTheCodePage) {
    const TextFiles files;
    EXPECT_EQ((QStringList{u"Γιώργος"_s, u""_s, u"b"_s}), files.readLines(write(u"a"_s, "\xEF\xBB\xBFΓιώργος\r\n\nb")));
    // Ά is 0xA2 in windows-1253 and 0xB6 in ISO-8859-7.
    EXPECT_EQ(u"Άλφα"_s, files.read(write(u"b"_s, "\xA2\xEB\xF6\xE1")));
    const auto greek = TextFiles::withCodePage(u"ISO-8859-7"_s);
    ASSERT_TRUE(greek);
    EXPECT_EQ(u"Άλφα"_s, greek->read(write(u"c"_s, "\xB6\xEB\xF6\xE1")));
    EXPECT_EQ("\xB6\xEB\xF6\xE1", greek->encode(u"Άλφα"_s));
    EXPECT_FALSE(TextFiles::withCodePage(u"no-such-page"_s));
}

TEST_F(Files, ThatCannotBeReadSayWhy) {
    EXPECT_EQ(53, readError(folder_.filePath(u"none"_s)));
    EXPECT_EQ(76, readError(folder_.filePath(u"none/none"_s)));
    EXPECT_EQ(75, readError(folder_.path()));
    QFile large(folder_.filePath(u"large"_s));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(TextFiles::kLargestFile + 1));
    EXPECT_EQ(7, readError(large.fileName()));
}

TEST_F(Files, AreFoundInAnySpelling) {
    QDir(folder_.path()).mkpath(u"Modules/QRD_en"_s);
    const QString score = write(u"Modules/QRD_en/score.CSP"_s, "x");
    const AppFolder folder(folder_.path() + u'/');
    EXPECT_EQ(folder_.path() + u"\\MODULES\\QRD_EN\\Score.csp"_s, folder.packFile(u"EN", u"Score.csp"));
    EXPECT_EQ(score, folder.resolve(folder.packFile(u"EN", u"Score.csp")));
    EXPECT_EQ(folder_.path() + u"/Modules/new.TXT"_s, folder.resolve(folder.modulesFile(u"new.TXT")));
    EXPECT_FALSE(folder.exists(u"MODULES\\none"_s));
}

TEST(CommandLines, GiveTheirOptionsAndWhatIsLeft) {
    const std::array options{CommandLine::Option{u"--app-folder"_s, true}, CommandLine::Option{u"--set"_s, true},
                             CommandLine::Option{u"--yes"_s}, CommandLine::Option{u"--no"_s}};
    const CommandLine line({u"3"_s, u"--app-folder"_s, u"/preview"_s, u"--set=A=1"_s, u"--yes"_s, u"--no"_s, u"--set"_s,
                            u"B"_s, u"--odd"_s, u"--"_s, u"--yes"_s},
                           options);
    EXPECT_EQ(u"/preview"_s, line.value(u"--app-folder"));
    EXPECT_EQ((QStringList{u"A=1"_s, u"B"_s}), line.values(u"--set"));
    EXPECT_EQ(u"--no"_s, line.lastOf(std::array<QStringView, 2>{u"--yes", u"--no"}));
    EXPECT_EQ(u"--odd"_s, line.unknownOption());
    EXPECT_EQ(u"3 --odd --yes"_s, line.restText());
    EXPECT_EQ(3, leadingNumber(line.restText()));
    EXPECT_EQ(u"--set"_s, CommandLine({u"--set"_s}, options).optionWithoutValue());
    EXPECT_TRUE(isPreview(u"x/Preview 3"_s));
    EXPECT_EQ(0, leadingNumber(u"99999"_s));
}

TEST_F(Files, TrappedErrorsAreLoggedAndToldOnlyWhereWanted) {
    const QString log = folder_.filePath(u"program.log"_s);
    ErrorTrap trap(log);
    QStringList told;
    trap.setReporter([&](const ErrorPlace&, const QString& message) { told += message; });
    EXPECT_FALSE(trap.run({u"m.P"_s, u"card.csp"_s, 7}, ErrorTrap::Tell::Operator,
                          [] { throw RunTimeError(ErrorNumber::SubscriptOutOfRange); }));
    EXPECT_FALSE(trap.run({u"m.Q"_s}, ErrorTrap::Tell::LogOnly, [] { throw std::runtime_error("a\nb"); }));
    EXPECT_EQ(QStringList{u"Error 9\r\nSubscript out of range\r\nLocation: ZELVOR_BASKET.m.P\r\nLine 7"_s}, told);
    const QStringList lines = TextFiles().readLines(log);
    ASSERT_EQ(2, lines.size());
    EXPECT_TRUE(lines[0].endsWith(u"\tm.P\tcard.csp\tline 7\terror 9\tSubscript out of range"_s));
    EXPECT_TRUE(lines[1].endsWith(u"\ta b"_s));
}

}  // namespace
}  // namespace zelvor
