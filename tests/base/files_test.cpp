#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "base/app_folder.h"
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
    EXPECT_EQ((QStringList{u"Γ"_s, u""_s, u"b"_s}),
              files.readLines(write(u"u"_s, QByteArray("\xFF\xFE\x93\x03\r\0\r\0b\0", 10))));
    EXPECT_EQ(u"#b"_s, files.read(write(u"v"_s, QByteArray("\0#\0b", 4))));
    // Ά is 0xA2 in windows-1253 and 0xB6 in ISO-8859-7.
    EXPECT_EQ(u"Άλφα"_s, files.read(write(u"b"_s, "\xA2\xEB\xF6\xE1")));
    EXPECT_EQ(u"B Γ"_s, files.read(write(u"d"_s, "B \xC3")));
    const TextFiles greek("ISO-8859-7");
    EXPECT_EQ(u"Άλφα"_s, greek.read(write(u"c"_s, "\xB6\xEB\xF6\xE1")));
    EXPECT_EQ("\xB6\xEB\xF6\xE1", greek.encode(u"Άλφα"_s));
}

TEST_F(Files, ThatCannotBeReadSayWhy) {
    EXPECT_EQ(53, readError(folder_.filePath(u"none"_s)));
    EXPECT_EQ(76, readError(folder_.filePath(u"none/none"_s)));
    EXPECT_EQ(75, readError(folder_.path()));
    const QString pipe = folder_.filePath(u"pipe"_s);
    ASSERT_EQ(0, mkfifo(qPrintable(pipe), 0600));
    EXPECT_EQ(75, readError(pipe));
    EXPECT_THROW(replaceFile(pipe, "x"), RunTimeError);
    EXPECT_FALSE(QFileInfo(pipe).isFile());
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
    EXPECT_EQ(score, folder.resolve(folder.packFile(u"EN ", u"Score.csp ")));
    for (const QStringView other : {u" Score.csp", u" ", u"... "})
        EXPECT_FALSE(folder.exists(folder.packFile(u"EN", other))) << qPrintable(other.toString());
    EXPECT_EQ(folder_.path() + u"/Modules/new.TXT "_s, folder.resolve(folder.modulesFile(u"new.TXT ")));
    EXPECT_EQ(folder_.path() + u"/Modules/new.TXT"_s, folder.resolve(folder.modulesFile(u"new.TXT")));
    EXPECT_FALSE(folder.exists(u"MODULES\\none"_s));
}

TEST_F(Files, TrappedErrorsAreLoggedAndToldOnlyWhereWanted) {
    EXPECT_EQ(folder_.filePath(u"cards.log"_s), errorLogPath(folder_.filePath(u"cards"_s), u"/show"_s));
    EXPECT_EQ(u"/show/cards.log"_s, errorLogPath(folder_.filePath(u"none/cards"_s), u"/show"_s));
    const QString log = folder_.filePath(u"program.log"_s);
    ErrorTrap trap(log);
    QStringList told;
    trap.setReporter([&](const ErrorPlace& place, const QString& message) { told += {errorTitle(place), message}; });
    ErrorPlace place{u"m.P"_s, 7};
    place.asker.at = {u"card.csp"_s, u"part.inc"_s, 3};
    EXPECT_FALSE(
        trap.run(place, ErrorTrap::Tell::Operator, [] { throw RunTimeError(ErrorNumber::SubscriptOutOfRange); }));
    EXPECT_FALSE(trap.run({u"m.Q"_s}, ErrorTrap::Tell::LogOnly, [] { throw std::runtime_error("a\nb"); }));
    EXPECT_EQ((QStringList{u"Error in card.csp (part.inc, line 3)"_s,
                           u"Error 9\r\nSubscript out of range\r\nLocation: ZELVOR_BASKET.m.P\r\nLine 7"_s}),
              told);
    const QStringList lines = TextFiles().readLines(log);
    ASSERT_EQ(2, lines.size());
    EXPECT_TRUE(lines[0].endsWith(u"\tm.P\tcard.csp\tpart.inc, line 3\terror 9\tSubscript out of range"_s));
    EXPECT_TRUE(lines[1].endsWith(u"\ta b"_s));
}

}  // namespace
}  // namespace zelvor
