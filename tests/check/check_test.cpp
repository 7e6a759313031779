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
#include <array>

#include "app_check/check_command.h"
#include "command_line/command_line.h"

using namespace Qt::StringLiterals;

namespace {

const QString kBroken = QStringLiteral(TEST_DATA_DIR) + u"/broken"_s;

struct CheckRun {
    explicit CheckRun(const QStringList& arguments) {
        QTextStream outStream(&out);
        QTextStream errStream(&err);
        try {
            status = zelvor::runCheck(arguments, outStream, errStream);
        } catch (const zelvor::UsageError& error) {
            err = error.text;
            status = zelvor::UsageError::kExitStatus;
        }
    }

    QString out;
    QString err;
    int status = -1;
};

TEST(Check, FindsEachFaultAndNoOther) {
    QTemporaryDir cards;
    ASSERT_TRUE(QDir(cards.path()).mkpath(u"MODULES"_s));
    ASSERT_TRUE(QFile::link(QStringLiteral(CARDS_FOLDER), cards.filePath(u"MODULES/QRD_TT"_s)));
    struct Row {
        QStringList arguments;
        QString expected;
    };
    for (const Row& row :
         {Row{{kBroken}, u"/expected.txt"_s}, Row{{cards.path(), u"TT"_s}, u"/expected_of_cards.txt"_s}}) {
        QFile file(QStringLiteral(TEST_DATA_DIR) + row.expected);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QStringList expected = QString::fromUtf8(file.readAll()).split(u'\n');
        const CheckRun check(QStringList{u"--app-folder"_s} + row.arguments);
        const QStringList found = check.out.split(u'\n');
        for (qsizetype i = 0; i < qMax(found.size(), expected.size()); ++i) {
            EXPECT_EQ(found.value(i).toStdString(), expected.value(i).toStdString());
        }
        EXPECT_EQ(check.status, 1);
    }
}

TEST(Check, HasNothingToSayAboutTheDemo) {
    const CheckRun check({u"--app-folder"_s, QStringLiteral(DEMO_FOLDER)});
    EXPECT_EQ(check.out.toStdString(), "0 errors, 0 warnings\n");
    EXPECT_EQ(check.status, 0);
}

TEST(Check, ReportsForOtherTools) {
    const auto report = [](const QString& format) {
        const CheckRun check({u"--app-folder"_s, kBroken, u"--format"_s, format, u"FLOW"_s});
        EXPECT_EQ(check.status, 1);
        return QJsonDocument::fromJson(check.out.toUtf8()).object();
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
    struct Row {
        QStringList arguments;
        int status;
        QString err;  // how it begins
    };
    const std::array rows{
        Row{{u"--help"_s}, 0, {}},
        Row{{u"--fast"_s}, 2, u"unknown option --fast"_s},
        Row{{u"--app-folder"_s}, 2, u"--app-folder takes a value"_s},
        Row{{u"--app-folder"_s, kBroken, u"FLOW"_s, u"WORDS"_s}, 2, u"one pack at a time"_s},
        Row{{u"--app-folder"_s, kBroken, u"GONE"_s}, 2, u"no such pack: GONE"_s},
        Row{{u"--app-folder"_s, kBroken + u"/none"_s}, 2, u"no such folder"_s},
    };
    for (const Row& row : rows) {
        const CheckRun check(row.arguments);
        EXPECT_EQ(check.status, row.status) << qPrintable(row.arguments.join(u' '));
        EXPECT_TRUE(check.err.startsWith(row.err)) << qPrintable(check.err);
        EXPECT_EQ(check.out.isEmpty(), row.status == 2);
    }
}

}  // namespace
