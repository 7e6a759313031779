#include <gtest/gtest.h>

#include <QCoreApplication>

#include "link/line_list.h"
#include "link/recall_list.h"
#include "link/reply_decoder.h"

using namespace Qt::StringLiterals;
using namespace zelvor;

TEST(ReplyDecoder, ShowsEachPieceOnce) {
    const std::pair<QByteArrayList, QStringList> cases[] = {
        {{"200 INFO OK\r\n1 PAL\r\n\r\n"}, {u"200 INFO OK1 PAL"_s}},
        {{"202 OK\r", "\n404 NO\r\n"}, {u"202 OK"_s, u"404 NO"_s}},
        {{"a\r", "\r", "\n", "b\n"}, {u"a"_s, u"\r"_s, u"b\n"_s}},
        {{"\xCE", "\x86 \xE2\x82", "\xAC \xF0", "\x9F\x98\x80\r\n"}, {u"Ά "_s, u"€ "_s, u"😀"_s}},
        {{"x\xFFy"}, {u"x\uFFFDy"_s}},
    };
    for (const auto& [pieces, expected] : cases) {
        ReplyDecoder decoder;
        QStringList shown;
        for (const QByteArray& piece : pieces) {
            if (const auto text = decoder.feed(piece)) shown += *text;
        }
        EXPECT_EQ(shown, expected) << pieces.join('|').toStdString();
    }
}

TEST(RecallList, StepsThroughTheLast50Lines) {
    RecallList lines;
    for (int i = 1; i <= 52; ++i) lines.add(QString::number(i));
    for (const QString& notKept : {u"52"_s, QString()}) lines.add(notKept);
    QString shown = u"draft"_s;
    const auto older = [&] { return shown = lines.older(shown); };
    const auto newer = [&] { return shown = lines.newer(shown); };
    const QStringList steps{newer(), older(), older(), newer(), newer(), newer()};
    EXPECT_EQ(steps, (QStringList{u"draft"_s, u"52"_s, u"51"_s, u"52"_s, u"draft"_s, u"draft"_s}));
    for (int i = 0; i < 60; ++i) older();
    EXPECT_EQ(older(), u"3"_s);
    EXPECT_EQ(RecallList().older(u"kept"_s), u"kept"_s);
}

TEST(LineList, ShowsTheNewest500HoweverManyATurnAdds) {
    for (const auto newest : {LineList::Newest::First, LineList::Newest::Last}) {
        LineList list(newest);
        int last = 0;
        for (const int added : {1, 499, 500, 501, 999, 1000, 1001, 2600, 3}) {
            for (const int end = last + added; last < end;) {
                ++last;
                list.add(QString::number(last), {u" "_s, QString(last % 9, u'x')}, last % 7 == 0);
            }
            QCoreApplication::sendPostedEvents(&list);
            ASSERT_EQ(list.rowCount(), std::min(last, 500));
            for (int age = 0; age < list.rowCount(); ++age) {
                const int line = last - age;
                const int row = newest == LineList::Newest::First ? age : list.rowCount() - 1 - age;
                ASSERT_EQ(list.text(row), QString::number(line) + u' ' + QString(line % 9, u'x')) << added;
                ASSERT_EQ(list.data(list.index(row), LineList::kAlarmRole).toBool(), line % 7 == 0) << added;
            }
        }
        list.clear();
        list.add(u"after"_s);
        QCoreApplication::sendPostedEvents(&list);
        EXPECT_EQ(list.rowCount(), 1);
        EXPECT_EQ(list.text(0), u"after"_s);
    }
}
