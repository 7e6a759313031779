#include "data/connection_list.h"
#include "show_fixture.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {
namespace {

const char* const kTwoConnections =
    "1==Main==Driver=A;INITSTMT=set names 'utf8'\r\n"
    "2==Spare==Driver=B\r\n"
    "short\r\n"
    "\r\n"
    "4==no string\r\n"
    "2==Spare, moved==Driver=C;x='UTF8'\r\n";

TEST(ConnectionChoice, followsTheCommandLineAndTheOperator) {
    // The command line, the answers, what is proposed in the box and how often it is shown, what is found, the number
    // in the message that ends the program.
    const std::tuple<QString, QList<std::optional<QString>>, QString, int, QString, QString> cases[]{
        {u""_s, {u"1"_s}, u"1"_s, 1, u"Driver=A;INITSTMT=set names 'utf8'"_s, {}},
        {u"3 /PREVIEW"_s, {u"2"_s}, u"3"_s, 1, u"Driver=C;x='UTF8'"_s, {}},
        {u"2"_s, {std::nullopt, u""_s, u"x"_s, u"70000"_s, u"2"_s}, u"2"_s, 5, u"Driver=C;x='UTF8'"_s, {}},
        {u""_s, {u"9"_s}, u"1"_s, 1, {}, u"9"_s},
        {u""_s, {u"4"_s}, u"1"_s, 1, {}, u"4"_s},
        {u""_s, {std::nullopt}, u"1"_s, 2, {}, {}},  // the program is closing
    };
    for (const auto& [commandLine, answers, proposed, boxes, found, fatalNumber] : cases) {
        SCOPED_TRACE(commandLine.toStdString() + " -> " + found.toStdString() + fatalNumber.toStdString());
        Show show;
        show.writeConnections(kTwoConnections);
        show.operatorDesk.answers = answers;
        show.make(commandLine);
        EXPECT_EQ(show.connections->GET_CONNECTION_STRING(), found);
        const QString box =
            u"Επιλογή σύνδεσης|1\tMain\r\n2\tSpare\r\nshort\t\r\n4\tno string\r\n2\tSpare, moved\r\n|"_s;
        EXPECT_EQ(show.operatorDesk.asked, QStringList(boxes, box + proposed));
        const QString fatal = u"|Error find connection for ConnID:"_s + fatalNumber + u"\r\nProgram stop!!!"_s;
        EXPECT_EQ(show.operatorDesk.shown, fatalNumber.isEmpty() ? QStringList() : QStringList(fatal));
        EXPECT_EQ(show.program.closing.hasBegun(), found.isEmpty());
    }
}

TEST(ConnectionChoice, reportsWhatCannotBeOpened) {
    const std::pair<std::optional<QByteArray>, QString> cases[]{
        {std::nullopt, u"Error 53\r\n"_s},
        {QByteArray(), u"|Error find connection for ConnID:1"_s},
        {"1==x==Driver=NoSuchDriver;Database=y", u"Error 3704\r\n"_s},
        {"1==x==Provider=SQLOLEDB.1;Data Source=y", u"Error 3704\r\n"_s},
        {"1==x== provider = MSDASQL.1;Driver=SQLite3;Database=x.db", {}},
    };
    for (const auto& [file, begins] : cases) {
        SCOPED_TRACE(file.value_or("no file").toStdString());
        Show show;
        if (file) show.writeConnections(*file);
        show.operatorDesk.answers = {u"1"_s};
        show.make(u""_s);
        show.connections->CONNECTDATABASE();
        const QString shown = show.operatorDesk.shown.join(u'\n');
        EXPECT_EQ(show.operatorDesk.shown.size(), begins.isEmpty() ? 0 : 1);
        EXPECT_TRUE(shown.startsWith(begins)) << shown.toStdString();
        EXPECT_EQ(show.connections->RUN_QUERY({}, u"select 1"_s), begins.isEmpty() ? 1 : 0);
    }
}

TEST(ConnectionChoice, leavesAFixedNumberToTheFirstQuery) {
    Show show;
    show.make();
    show.connections->CONNECTDATABASE();
    EXPECT_EQ(show.connections->connectionState(), Connections::State::NotTried);
    EXPECT_EQ(show.connections->RUN_QUERY({}, u"select 1"_s), 0);
    EXPECT_EQ(show.connections->connectionState(), Connections::State::Failed) << "no CONNECTIONS.TXT";
    show.writeConnections("1==x==Driver=SQLite3;Database=x.db");
    EXPECT_EQ(show.connections->RUN_QUERY2({}, u"select 1"_s), 1);
    EXPECT_TRUE(show.operatorDesk.asked.isEmpty());
    // A relative database lies in the application folder, whatever the working folder is.
    EXPECT_TRUE(QFile::exists(show.directory.filePath(u"x.db"_s)));
}

}  // namespace
}  // namespace zelvor::test
