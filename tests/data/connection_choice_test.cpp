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

struct ChoiceCase {
    QString commandLine;
    std::vector<std::optional<QString>> answers;
    QString proposed;  // in the box, as often as it was shown
    int boxes;
    QString found;
    QString fatalNumber;  // of the message that ends the program; empty for none
};

TEST(ConnectionChoice, followsTheCommandLineAndTheOperator) {
    const std::vector<ChoiceCase> cases{
        {u""_s, {u"1"_s}, u"1"_s, 1, u"Driver=A;INITSTMT=set names 'utf8'"_s, {}},
        {u"3 /PREVIEW"_s, {u"2"_s}, u"3"_s, 1, u"Driver=C;x='UTF8'"_s, {}},
        {u"2"_s, {std::nullopt, u""_s, u"x"_s, u"70000"_s, u"2"_s}, u"2"_s, 5, u"Driver=C;x='UTF8'"_s, {}},
        {u""_s, {u"9"_s}, u"1"_s, 1, {}, u"9"_s},
        {u""_s, {u"4"_s}, u"1"_s, 1, {}, u"4"_s},
        {u""_s, {std::nullopt}, u"1"_s, 2, {}, {}},  // the program is closing
    };
    for (const ChoiceCase& c : cases) {
        SCOPED_TRACE(c.commandLine.toStdString() + " -> " + c.found.toStdString() + c.fatalNumber.toStdString());
        Show show;
        show.writeConnections(kTwoConnections);
        show.operatorDesk.answers = c.answers;
        show.make(c.commandLine);
        EXPECT_EQ(show.connections->GET_CONNECTION_STRING(), c.found);
        const QString box =
            u"Επιλογή σύνδεσης|1\tMain\r\n2\tSpare\r\nshort\t\r\n4\tno string\r\n2\tSpare, moved\r\n|"_s;
        EXPECT_EQ(show.operatorDesk.asked, QStringList(c.boxes, box + c.proposed));
        const QString fatal = u"|Error find connection for ConnID:"_s + c.fatalNumber + u"\r\nProgram stop!!!"_s;
        EXPECT_EQ(show.operatorDesk.shown, c.fatalNumber.isEmpty() ? QStringList() : QStringList(fatal));
        EXPECT_EQ(show.program.closing.hasBegun(), c.found.isEmpty());
    }
}

TEST(ConnectionChoice, reportsWhatCannotBeOpened) {
    struct Case {
        std::optional<QByteArray> file;
        QString begins;
    };
    const std::vector<Case> cases{
        {std::nullopt, u"Error 53\r\n"_s},
        {QByteArray(), u"|Error find connection for ConnID:1"_s},
        {"1==x==Driver=NoSuchDriver;Database=y", u"Error 3704\r\n"_s},
        {"1==x==Provider=SQLOLEDB.1;Data Source=y", u"Error 3704\r\n"_s},
        {"1==x== provider = MSDASQL.1;Driver=SQLite3;Database=x.db", {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.file.value_or("no file").toStdString());
        Show show;
        if (c.file) show.writeConnections(*c.file);
        show.operatorDesk.answers = {u"1"_s};
        show.make(u""_s);
        show.connections->CONNECTDATABASE();
        const QString shown = show.operatorDesk.shown.join(u'\n');
        EXPECT_EQ(show.operatorDesk.shown.size(), c.begins.isEmpty() ? 0 : 1);
        EXPECT_TRUE(shown.startsWith(c.begins)) << shown.toStdString();
        EXPECT_EQ(show.connections->RUN_QUERY({}, u"select 1"_s), c.begins.isEmpty() ? 1 : 0);
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
