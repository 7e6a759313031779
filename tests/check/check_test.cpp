// The packs of broken/ hold each fault that the checker knows beside sound lines of the same kind, tests/cards what
// cards are made of; expected.txt and expected_of_cards.txt hold what it must say of them, and with that what it must
// not.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "app_check/check_command.h"
#include "base/text_file.h"
#include "support/told.h"

using namespace Qt::StringLiterals;
using zelvor::test::Told;

namespace {

const QString kBroken = QStringLiteral(TEST_DATA_DIR) + u"/broken"_s;

Told check(const QStringList& arguments) {
    return {zelvor::runCheck, arguments};
}

TEST(Check, FindsEachFaultAndNoOther) {
    QTemporaryDir cards;
    ASSERT_TRUE(QDir(cards.path()).mkpath(u"MODULES"_s));
    ASSERT_TRUE(QFile::link(QStringLiteral(CARDS_FOLDER), cards.filePath(u"MODULES/QRD_TT"_s)));
    for (const auto& [arguments, expected] : {std::pair{QStringList{kBroken}, u"/expected.txt"_s},
                                              {{cards.path(), u"TT"_s}, u"/expected_of_cards.txt"_s}}) {
        QFile file(QStringLiteral(TEST_DATA_DIR) + expected);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const Told told = check(QStringList{u"--app-folder"_s} + arguments);
        EXPECT_EQ(told.out.toStdString(), file.readAll().toStdString());
        EXPECT_EQ(told.status, 1);
    }
}

TEST(Check, HasNothingToSayAboutTheDemo) {
    const Told told = check({u"--app-folder"_s, QStringLiteral(DEMO_FOLDER)});
    EXPECT_EQ(told.out.toStdString(), "0 errors, 0 warnings\n");
    EXPECT_EQ(told.status, 0);
}

TEST(Check, TellsWhichFileCannotBeRead) {
    for (const QString& name : {u"infodata.txt"_s, u"infodata.dat"_s, u"CARDS.TXT"_s, u"ASKFIELDS.TXT"_s}) {
        QTemporaryDir folder;
        ASSERT_TRUE(QDir(folder.path()).mkpath(u"MODULES/QRD_TT/"_s + name));
        const Told told = check({u"--app-folder"_s, folder.path(), u"TT"_s});
        EXPECT_TRUE(told.out.contains(name + u":1: error: Path/File access error"_s)) << qPrintable(told.out);
    }
}

// The rest of the script is checked all the same.
TEST(Check, TellsWhereAnIncludeCannotBeRead) {
    QTemporaryDir folder;
    const QString pack = folder.filePath(u"MODULES/QRD_TT"_s);
    ASSERT_TRUE(QDir().mkpath(pack));
    QFile script(pack + u"/card.csp"_s);
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#\nINCLUDE~large.inc\nNOWORD~1\n");
    script.close();
    QFile include(pack + u"/large.inc"_s);
    ASSERT_TRUE(include.open(QIODevice::WriteOnly) && include.resize(zelvor::TextFiles::kLargestFile + 1));
    const QString out = check({u"--app-folder"_s, folder.path(), u"TT"_s}).out;
    EXPECT_TRUE(out.contains(u"card.csp:2: error: Out of memory"_s)) << qPrintable(out);
    EXPECT_TRUE(out.contains(u"card.csp:3: error: unknown command NOWORD"_s)) << qPrintable(out);
}

// No card can be one: whatever names it is told of.
TEST(Check, TakesNoDeviceForAScript) {
    QTemporaryDir folder;
    const QString pack = folder.filePath(u"MODULES/QRD_TT"_s);
    ASSERT_TRUE(QDir().mkpath(pack));
    ASSERT_TRUE(QFile::link(u"/dev/null"_s, pack + u"/device.csp"_s));
    const Told told = check({u"--app-folder"_s, folder.path(), u"TT"_s});
    EXPECT_FALSE(told.out.contains(u"device.csp"_s)) << qPrintable(told.out);
}

TEST(Check, ReportsForOtherTools) {
    const auto report = [](const QString& format) {
        const Told told = check({u"--app-folder"_s, kBroken, u"--format"_s, format, u"FLOW"_s});
        EXPECT_EQ(told.status, 1);
        return QJsonDocument::fromJson(told.out.toUtf8()).object();
    };
    const QJsonObject json = report(u"json"_s);
    const QJsonObject first = json[u"findings"_s].toArray()[1].toObject();
    EXPECT_EQ(first[u"file"_s].toString(), u"MODULES/QRD_FLOW/flow.csp"_s);
    EXPECT_EQ(first[u"line"_s].toInt(), 5);
    EXPECT_EQ(first[u"severity"_s].toString(), u"error"_s);
    EXPECT_EQ(json[u"warnings"_s].toInt(), 1);
    const QJsonArray results = report(u"sarif"_s)[u"runs"_s].toArray()[0].toObject()[u"results"_s].toArray();
    EXPECT_EQ(results.size(), json[u"findings"_s].toArray().size());
    EXPECT_EQ(results[1].toObject()[u"message"_s].toObject()[u"text"_s], first[u"text"_s]);
}

TEST(Check, TellsItsUsage) {
    const std::tuple<QStringList, int, QString> rows[]{
        {{u"--help"_s}, 0, {}},
        {{u"--app-folder"_s}, 2, u"--app-folder takes a value"_s},
        {{u"--app-folder"_s, kBroken, u"FLOW"_s, u"WORDS"_s}, 2, u"one pack at a time"_s},
        {{u"--app-folder"_s, kBroken, u"GONE"_s}, 2, u"no such pack: GONE"_s},
        {{u"--app-folder"_s, kBroken + u"/none"_s}, 2, u"no such folder"_s},
    };
    for (const auto& [arguments, status, err] : rows) {
        const Told told = check(arguments);
        EXPECT_EQ(told.status, status) << qPrintable(arguments.join(u' '));
        EXPECT_TRUE(told.err.startsWith(err)) << qPrintable(told.err);
        EXPECT_EQ(told.out.isEmpty(), status == 2);
    }
}

}  // namespace
