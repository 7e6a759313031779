#include "ask/ask_fields.h"

#include <gtest/gtest.h>

#include "support/fake_ports.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {
namespace {

const char* const kPlayer =
    "%:3\r\nASKTITLE:Player\r\nGETCODE:id\r\nDISPLAY:name\r\nAUTOTAG:PLAYER\r\nSQL:select 1: cut here\r\n";

TEST(AskFields, areReadBlockByBlock) {
    const QByteArray player = kPlayer;
    // The file, the size of the table, the title of field 3 where there is one, how the message begins.
    const std::tuple<std::optional<QByteArray>, int, QString, QString> cases[]{
        {std::nullopt, 2, {}, u"Error 53"_s},
        {"", 2, {}, {}},
        {"a line outside of every block\r\n" + player + "\r\nSQL:another\r\n", 4, u"Player"_s, {}},
        {player + QByteArray(player).replace("Player", "Again"), 4, u"Again"_s, {}},
        {QByteArray(player).replace("GETCODE:id", "ASKTITLE:Twice"), 4, u"Twice"_s, {}},
        {QByteArray(player).replace("GETCODE:id", "COLOUR:id"), 4, u"Player"_s, {}},
        {player + "%:5\r\nASKTITLE:Short\r\n", 6, u"Player"_s, u"Error 62"_s},
        {player + "%:70000\r\n", 4, u"Player"_s, u"Error 6\r\n"_s},
        {player + "%:-1\r\n", 4, u"Player"_s, u"Error 9"_s},
        {player + "%:team\r\n", 4, u"Player"_s, u"Error 13"_s},
    };
    for (const auto& [file, tableSize, title, error] : cases) {
        SCOPED_TRACE(file.value_or("no file").toStdString());
        EngineBench bench;
        if (file) bench.write(u"QRD_TT/ASKFIELDS.TXT"_s, *file);
        bench.state.ask.ASK_FIELDS.resize(50);
        LOAD_ASK(bench.state, bench.program);
        const std::vector<AskField>& fields = bench.state.ask.ASK_FIELDS;
        ASSERT_EQ(static_cast<int>(fields.size()), tableSize);
        EXPECT_TRUE(fields[0].title.isEmpty());
        if (!title.isEmpty()) {
            EXPECT_EQ(fields[3].title, title);
            EXPECT_EQ(fields[3].autoTag, u"PLAYER"_s);
            EXPECT_EQ(fields[3].sql, u"select 1"_s);
        }
        const QString shown = bench.operatorDesk.shown.join(u'\n');
        EXPECT_EQ(shown.isEmpty(), error.isEmpty());
        EXPECT_TRUE(shown.startsWith(error)) << shown.toStdString();
    }
}

}  // namespace
}  // namespace zelvor::test
