#include "ask/pick_list.h"

#include <gtest/gtest.h>

#include "ask/type_ahead.h"
#include "pick_list_fixture.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {
namespace {

TEST(PickList, asksWithThePreviousAnswer) {
    AskBench bench;
    bench.state.ask.ASK_PREVIOUS = u"17"_s;
    bench.state.variables.SetVar(u"@PERIOD", 4);
    bench.state.variables.SetVar(u"@EIDOSEKLOGWN", u"cup"_s);
    bench.state.variables.SetVar(u"@TABLE", u"player"_s);
    const std::vector<std::pair<QString, QString>> cases{
        {u"select {@TABLE} where x='{@@}' and p={@PERIOD}"_s, u"select player where x='17' and p=4"_s},
        {u"%{@TABLE} {@@} {@PERIOD} {@EIDOSEKLOGWN}"_s, u"%{@TABLE} 17 4 cup"_s},
    };
    for (const auto& [sql, expected] : cases) {
        bench.state.ask.ASK_FIELDS[2].sql = sql;
        const PickList list(bench.state, bench.rowsDatabase, bench.trap, {});
        EXPECT_EQ(bench.rowsDatabase.statements.last(), expected);
        EXPECT_FALSE(bench.state.variables.find(u"@@"));
    }
}

TEST(PickList, leavesOutRowsWithoutAKey) {
    const std::vector<std::pair<Value, QString>> cases{{Value(Value::Null()), u"Invalid use of Null"_s},
                                                       {Value(u"B12"_s), u"Type mismatch"_s},
                                                       {Value(1e12), u"Overflow"_s}};
    for (const auto& [key, why] : cases) {
        AskBench bench;
        bench.rowsDatabase.fill({u"A"_s, u"B"_s, u"C\r\nc\nc"_s, u"D"_s});
        bench.rowsDatabase.rows.rows[1][0] = bench.rowsDatabase.rows.rows[3][0] = key;
        QStringList warned;
        bench.trap.setWarned([&warned](const QString& text) { warned += text; });
        PickList list(bench.state, bench.rowsDatabase, bench.trap, {});
        EXPECT_EQ(warned, QStringList(list.fault()));
        ASSERT_EQ(list.rows().size(), 2);
        EXPECT_EQ(list.rows()[1].text, u"C c c");
        EXPECT_EQ(list.rows()[1].key, 102);
        EXPECT_TRUE(list.fault().startsWith(u"ask field 2, GETCODE id, row 2: "_s + why)) << list.fault().toStdString();
        EXPECT_TRUE(bench.operatorDesk.shown.isEmpty());
        list.cancel();
    }
}

TEST(PickList, isEmptyAfterOneMessageWhenItCannotBeRead) {
    const std::tuple<const char*, void (*)(AskBench&), QString> cases[]{
        {"query", [](AskBench& bench) { bench.rowsDatabase.fails = true; }, u"no such table"_s},
        {"code column", [](AskBench& bench) { bench.state.ask.ASK_FIELDS[2].getCode = u"key"_s; }, u"\"key\""_s},
        {"text column", [](AskBench& bench) { bench.state.ask.ASK_FIELDS[2].display.clear(); }, u"no column \"\""_s},
        {"no field", [](AskBench& bench) { bench.state.ask.ASK_FIELD = 3; }, u"Error 9"_s},
    };
    for (const auto& [what, spoil, says] : cases) {
        SCOPED_TRACE(what);
        AskBench bench;
        bench.rowsDatabase.fill({u"A"_s, u"B"_s});
        spoil(bench);
        PickList list(bench.state, bench.rowsDatabase, bench.trap, {});
        EXPECT_TRUE(list.rows().empty());
        ASSERT_EQ(bench.operatorDesk.shown.size(), 1);
        EXPECT_TRUE(bench.operatorDesk.shown[0].contains(says)) << bench.operatorDesk.shown[0].toStdString();
        EXPECT_EQ(bench.state.ask.ASK_OPEN, -1);
        list.cancel();
        EXPECT_EQ(bench.state.ask.ASK_OPEN, 0);
    }
}

TEST(PickList, findsARowByWhatIsTyped) {
    AskBench bench;
    bench.rowsDatabase.fill({u"Ωρίων"_s, u"Άγγελος"_s, u"Αλέξης"_s, u"Σίμος"_s, u"Żak"_s, u"zed"_s, u"7 Bob"_s,
                             u"Éric"_s, u""_s, u"41  Thorne Owen, O'Hara"_s, u"Μπέλος Άρης, 4"_s});
    const PickList list(bench.state, bench.rowsDatabase, bench.trap, {});
    const std::vector<std::pair<QString, int>> cases{
        {u"ω"_s, 0},  {u"Ώ"_s, 0},  {u"α"_s, 2},    {u"ά"_s, 1},   {u"ς"_s, 3},  {u"Z"_s, 5},
        {u"7"_s, 6},  {u"e"_s, 7},  {u"x"_s, -1},   {u"%"_s, -1},  {u"ow"_s, 9}, {u"har"_s, 9},
        {u"41"_s, 9}, {u"4"_s, 10}, {u"αρη"_s, 10}, {u"en"_s, -1}, {u""_s, -1},
    };
    for (const auto& [typed, row] : cases) EXPECT_EQ(list.find(typed), row) << typed.toStdString();
}

TEST(TypeAhead, keepsTogetherWhatIsTypedWithinASecond) {
    using std::chrono_literals::operator""ms;
    TypeAhead typed;
    EXPECT_EQ(typed.add(u"1", 5000ms), u"1"_s);
    EXPECT_EQ(typed.add(u"8", 6000ms), u"18"_s);
    EXPECT_EQ(typed.add(u"4", 7001ms), u"4"_s);
}

TEST(PickList, leavesTheOneBelowItOpen) {
    AskBench bench;
    bench.rowsDatabase.fill({u"A"_s, u"B"_s});
    PickList below(bench.state, bench.rowsDatabase, bench.trap, {});
    PickList above(bench.state, bench.rowsDatabase, bench.trap, {});
    above.cancel();
    EXPECT_EQ(bench.state.ask.ASK_OPEN, -1);
    EXPECT_EQ(bench.state.ask.ASK_RESULT, u"-1"_s);
    below.choose(1);
    EXPECT_EQ(bench.state.ask.ASK_OPEN, 0);
    EXPECT_EQ(bench.state.ask.ASK_CANCELLED, 0);
    EXPECT_EQ(bench.state.ask.ASK_RESULT, u"101"_s);
    EXPECT_EQ(bench.state.ask.lastItemData, u"101"_s);
}

}  // namespace
}  // namespace zelvor::test
