#include "data/cell_value.h"

#include "base/run_time_error.h"
#include "data/statement_kind.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace zelvor::odbc {
namespace {

TEST(CellValue, keepsItsKindOrBecomesAText) {
    using Kind = Value::Kind;
    const std::tuple<ColumnKind, QByteArray, Kind, QString> cases[]{
        {ColumnKind::Integer, "2.5", Kind::Double, u"2.5"_s},
        {ColumnKind::Integer, "7 of 9", Kind::Text, u"7 of 9"_s},
        {ColumnKind::Integer, "", Kind::Text, u""_s},
        {ColumnKind::Double, "inf", Kind::Text, u"inf"_s},
        {ColumnKind::Decimal, "0.000123456789012345", Kind::Double, u"0.000123456789012345"_s},
        {ColumnKind::Decimal, "1234567890123456.7", Kind::Text, u"1234567890123456.7"_s},
        {ColumnKind::Boolean, QByteArray(1, '\0'), Kind::Boolean, u"False"_s},
        {ColumnKind::Boolean, "yes", Kind::Text, u"yes"_s},
        {ColumnKind::Date, "2026-11-21T20:31:07.999", Kind::Date, u"2026-11-21 20:31:07"_s},
        {ColumnKind::Date, "2026-03-29 03:30:00", Kind::Date, u"2026-03-29 03:30:00"_s},
        {ColumnKind::Date, "1821-03-25 18:00:00", Kind::Date, u"1821-03-25 18:00:00"_s},
        {ColumnKind::Date, "20:31", Kind::Date, u"20:31:00"_s},
        {ColumnKind::Date, "838:59:59", Kind::Text, u"838:59:59"_s},
        {ColumnKind::Date, "0000-00-00 00:00:00", Kind::Text, u"0000-00-00 00:00:00"_s},
        {ColumnKind::Date, "2026-02-30", Kind::Text, u"2026-02-30"_s},
        {ColumnKind::Date, "tomorrow, perhaps", Kind::Text, u"tomorrow, perhaps"_s},
    };
    CharacterSet utf8;
    for (const auto& [column, bytes, kind, text] : cases) {
        const Value value = cellValue(column, bytes, utf8);
        EXPECT_EQ(value.kind(), kind) << bytes.toStdString();
        EXPECT_EQ(value.text(), text) << bytes.toStdString();
    }
}

TEST(StatementKind, isItsFirstWord) {
    const std::vector<std::pair<QString, QString>> cases{
        {u" \n((SELECT 1) union (select 2))"_s, u"select"_s},
        {u"-- do\n# help\r\n/* values */Insert into t values (1)"_s, u"insert"_s},
        {u"/*!50000 optimize table t */"_s, {}},
        {u"/* never ends"_s, {}},
        {u"do sleep(0)"_s, u"do"_s},
        {u""_s, {}},
    };
    for (const auto& [sql, word] : cases) EXPECT_EQ(odbc::firstWord(sql), word) << sql.toStdString();
}

TEST(CharacterSet, goesByTheServersOwnName) {
    const std::vector<std::pair<QByteArray, QByteArray>> cases{
        {"utf8mb4", u"Άρης"_s.toUtf8()},
        {"nonsense", u"Άρης"_s.toUtf8()},
        {"ISO_8859_7", "\xB6\xF1\xE7\xF2"},
        {"WIN1253", "\xA2\xF1\xE7\xF2"},
    };
    for (const auto& [server, bytes] : cases) {
        CharacterSet set(server, server);
        EXPECT_EQ(set.decode(bytes), u"Άρης"_s) << server.toStdString();
        EXPECT_EQ(set.encode(u"Άρης"_s), bytes) << server.toStdString();
    }
    CharacterSet greek("greek", "greek");
    EXPECT_EQ(greek.encode(u"Ωmega\u001A"_s), QByteArray("\xD9mega\x1A"));
    try {
        (void)greek.encode(u"Ωmegá 日\u001A 🏀 日"_s);
        ADD_FAILURE() << "written as something else";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.text(),
                  u"The character set greek of the connection lacks á (U+00E1), 日 (U+65E5), 🏀 (U+1F3C0).");
    }
    EXPECT_EQ(greek.decodeMessage(u"Πίνακας"_s.toUtf8()), u"Πίνακας"_s);
    EXPECT_EQ(greek.decodeMessage("\xD0\xDF\xED\xE1\xEA\xE1\xF2"), u"Πίνακας"_s);
}

}  // namespace
}  // namespace zelvor::odbc
