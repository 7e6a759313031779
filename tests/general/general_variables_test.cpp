#include "general_rules/general_variables.h"

#include <gtest/gtest.h>

#include "support/fake_ports.h"

namespace zelvor {

using namespace Qt::StringLiterals;

namespace {

using Kind = GeneralCell::Kind;
using test::EngineBench;

class GeneralVariablesTest : public testing::Test {
 protected:
    QString variable(QStringView name) { return bench.state.variables.text(name); }
    QByteArray onDisk(const QString& name) {
        QFile file(bench.folderOnDisk.filePath(u"MODULES/QRD_TT/"_s + name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    EngineBench bench;
    GeneralVariables general{bench.state, bench.program, bench.operatorDesk};
};

TEST(GeneralCell, ShowsItsValueAndKeepsItsMarkerOrList) {
    // The text, its kind, value and choices, and the text with the value X.
    const std::tuple<QString, Kind, QString, QStringList, QString> cases[]{
        {u"plain:1"_s, Kind::Plain, u"plain:1"_s, {}, u"X"_s},
        {u"ON:ON|OFF"_s, Kind::Choice, u"ON"_s, {u"ON"_s, u"OFF"_s}, u"X:ON|OFF"_s},
        {u":a|b:c"_s, Kind::Choice, u""_s, {u"a"_s, u"b:c"_s}, u"X:a|b:c"_s},
        {u"a|b"_s, Kind::Choice, u"a|b"_s, {u"a"_s, u"b"_s}, u"X:a|b"_s},
        {u"[file]1:1|2"_s, Kind::Choice, u"1"_s, {u"1"_s, u"2"_s}, u"X:1|2"_s},
        {u"[folder]C:/clips"_s, Kind::Folder, u"C:/clips"_s, {}, u"[folder]X"_s},
        {u"C:/a.png[file]"_s, Kind::File, u"C:/a.png"_s, {}, u"X[file]"_s},
        {u"[FILE]x"_s, Kind::Plain, u"[FILE]x"_s, {}, u"X"_s},
    };
    for (const auto& [text, kind, value, choices, afterX] : cases) {
        SCOPED_TRACE(text.toStdString());
        const GeneralCell cell(text);
        EXPECT_EQ(cell.kind(), kind);
        EXPECT_EQ(cell.value(), value);
        EXPECT_EQ(cell.choices(), choices);
        EXPECT_EQ(cell.withValue(u"X"_s), afterX);
    }
    GeneralGrid grid;
    grid.append({{u"[folder]"_s, {}, u"@CLIPS"_s, {}}});
    grid.setPicked(0, u"C:\\clips\\new"_s);
    grid.setPicked(0, {});
    EXPECT_EQ(grid.text(0, 0), u"[folder]C:/clips/new");
    EXPECT_EQ(GeneralCell(u"[folder]"_s).withValue(u"[folder]D:/x"_s), u"[folder]D:/x");
}

TEST(GeneralGrid, MarksWhatApplyWouldNotReadAsMeant) {
    GeneralGrid grid;
    for (const auto& [value, name] : std::vector<std::pair<QString, QString>>{
             {u"1"_s, u"@A"_s}, {u"a|b"_s, u"A"_s}, {u"16:9:16:9|4:3"_s, u"@A"_s}, {u"ON:ON|OFF"_s, u"@B"_s}, {}})
        grid.append({{value, {}, name, {}}});
    QStringList faults;
    for (int row = 0; row < grid.rowCount(); ++row) faults += grid.fault(row);
    EXPECT_EQ(faults, (QStringList{u"the name of row 3"_s,
                                   u"no \"@\" before the name, choices without a value and \":\" before them"_s,
                                   u"the name of row 1, a choice holds \":\", the value is cut there"_s,
                                   {},
                                   u"no name"_s}));
    QString refused;
    QObject::connect(&grid, &GeneralGrid::refused, [&](const QString& words) { refused = words; });
    EXPECT_FALSE(grid.setData(grid.index(0, 0), u"a|b:c"_s, Qt::EditRole));
    EXPECT_TRUE(refused.startsWith(u"\"a|b:c\" is not taken: "_s)) << refused.toStdString();
    EXPECT_EQ(grid.text(0, 0), u"1");
    EXPECT_TRUE(grid.setData(grid.index(0, 0), u"ON:ON|OFF"_s, Qt::EditRole));
    grid.removeRows(2, 1);
    EXPECT_EQ(grid.headerData(0, Qt::Vertical, Qt::DisplayRole), u"changed, not saved, not applied"_s);
    EXPECT_EQ(grid.cell(0).choices(), (QStringList{u"ON"_s, u"OFF"_s}));
}

TEST(GridFile, EveryTextSurvives) {
    const std::vector<GeneralRow> rows{
        {u"a\tb\\t"_s, u"\r\n"_s, u"@Ά"_s, u"\\"_s}, {}, {u"\U0001F3C0"_s, {}, {}, u" "_s}};
    const GridReading reading = readGrid(gridBytes(rows));
    EXPECT_EQ(reading.damagedLine, 0);
    EXPECT_EQ(reading.rows, rows);
    EXPECT_EQ(readGrid("\xEF\xBB\xBFzelvor-grid 1\r\n1\tT\t@A\tH\r\n").rows,
              (std::vector<GeneralRow>{{u"1"_s, u"T"_s, u"@A"_s, u"H"_s}}));
}

TEST(GridFile, DamageIsFoundInItsLine) {
    const QByteArray head = "zelvor-grid 1\n1\tT\t@A\tH\n";
    const std::tuple<QByteArray, int, size_t> cases[]{{"", 1, 0},
                                                      {"zelvor-grid 2\n", 1, 0},
                                                      {QByteArray(4096, '\0'), 1, 0},
                                                      {head + "1\tT\t@B\n", 3, 1},
                                                      {head + "1\tT\t@B\tH\tX\n", 3, 1},
                                                      {head + "\\x\tT\t@B\tH\n", 3, 1},
                                                      {head + "1\tT\t@B\tH\\\n", 3, 1},
                                                      {head + "\xE1\tT\t@B\tH\n" + "2\tT\t@C\tH\n", 3, 1},
                                                      {head + "1\tT\t@B\tHe", 3, 1}};
    for (const auto& [bytes, line, rows] : cases) {
        const GridReading reading = readGrid(bytes);
        SCOPED_TRACE(bytes.left(60).toStdString());
        EXPECT_EQ(reading.damagedLine, line);
        EXPECT_EQ(reading.rows.size(), rows);
        EXPECT_FALSE(reading.damage.isEmpty());
    }
}

TEST_F(GeneralVariablesTest, AppliesSavesAndLoadsWithItsMarks) {
    general.load();
    general.grid().append(
        {{u"ON:ON|OFF"_s, u"Logo"_s, u"@LOGO"_s, u"Shows it"_s}, {u"[folder]"_s, {}, u"@CLIPS"_s, {}}});
    GeneralGrid& grid = general.grid();
    grid.setData(grid.index(0, 0), u"OFF"_s, Qt::EditRole);
    EXPECT_FALSE(grid.setData(grid.index(0, 1), u"slip"_s, Qt::EditRole));
    EXPECT_EQ(grid.headerData(0, Qt::Vertical, Qt::DisplayRole), u"changed, not saved, not applied"_s);
    general.apply();
    EXPECT_EQ(variable(u"@LOGO"), u"OFF");
    EXPECT_EQ(variable(u"@CLIPS"), u"");
    bench.state.variables.SetVar(u"@LANGUAGE", u"XX"_s);
    EXPECT_TRUE(general.save()) << "where it loaded, whatever cards do to the language";
    bench.state.variables.SetVar(u"@LANGUAGE", u"TT"_s);
    EXPECT_EQ(onDisk(u"infodata.dat"_s), "zelvor-grid 1\nOFF:ON|OFF\tLogo\t@LOGO\tShows it\n[folder]\t\t@CLIPS\t\n");
    EXPECT_FALSE(grid.hasUnsaved());

    bench.state.variables.SetVar(u"@LOGO", u"ON"_s);
    general.load();
    EXPECT_EQ(grid.headerData(0, Qt::Vertical, Qt::DisplayRole), u"not applied"_s);
    EXPECT_EQ(grid.headerData(1, Qt::Vertical, Qt::DisplayRole), u"2"_s);
    EXPECT_TRUE(bench.operatorDesk.shown.isEmpty());
}

TEST_F(GeneralVariablesTest, AFileThatWasChangedMeanwhileIsOverwrittenOnceAgreed) {
    const QByteArray others = "zelvor-grid 1\n2\tT\t@A\tH\n";
    const auto put = [&](const QByteArray& bytes) { bench.write(u"QRD_TT/infodata.dat"_s, bytes); };
    put("zelvor-grid 1\n1\tT\t@A\tH\n");
    general.load();
    general.grid().setValue(0, u"5"_s);
    put(others);
    bench.operatorDesk.answerYes = false;
    EXPECT_FALSE(general.save());
    EXPECT_EQ(bench.operatorDesk.shown.join(u'\n'),
              u"General Vars|infodata.dat has changed since it was read. Overwrite it?");
    EXPECT_EQ(onDisk(u"infodata.dat"_s), others);
    EXPECT_TRUE(general.grid().hasUnsaved());
    bench.operatorDesk.answerYes = true;
    EXPECT_TRUE(general.save());
    EXPECT_EQ(onDisk(u"infodata.dat"_s), "zelvor-grid 1\n5\tT\t@A\tH\n");
    EXPECT_TRUE(general.save()) << "its own is no change";
    EXPECT_EQ(bench.operatorDesk.shown.size(), 2);
    // Another pack was loaded while it was asked: its file keeps its rows.
    put(others);
    bench.operatorDesk.whileAsked = [this] {
        bench.state.variables.SetVar(u"@LANGUAGE", u"XX"_s);
        general.load();
    };
    EXPECT_FALSE(general.save());
    EXPECT_EQ(onDisk(u"infodata.dat"_s), others);
}

TEST_F(GeneralVariablesTest, ADamagedFileIsReportedAndKept) {
    const QByteArray damaged = "zelvor-grid 1\n1\tT\t@A\tH\nhalf";
    bench.write(u"QRD_TT/infodata.dat"_s, damaged);
    general.load();
    EXPECT_EQ(general.grid().rowCount(), 1);
    ASSERT_EQ(bench.operatorDesk.shown.size(), 1);
    EXPECT_TRUE(bench.operatorDesk.shown[0].contains(u"line 3"));
    EXPECT_EQ(onDisk(u"infodata.dat.bad"_s), damaged);
}

TEST_F(GeneralVariablesTest, ImportsEveryLineAsARowAndSaves) {
    general.load();
    general.importText();
    ASSERT_EQ(bench.operatorDesk.shown.size(), 1) << "there is no infodata.txt";
    bench.write(u"QRD_TT/infodata.txt"_s, "1,T,@A,H\r\n2,T,@B\r\n\r\n3,T,@C,H,too,many");
    general.importText();
    EXPECT_EQ(bench.operatorDesk.shown.last(),
              u"General Vars|infodata.txt\r\nline 2: 3 fields, filled with empty ones\r\nline 3: 1 fields, filled with "
              "empty ones\r\nline 4: 6 fields, those after the fourth left out");
    EXPECT_EQ(onDisk(u"infodata.dat"_s), "zelvor-grid 1\n1\tT\t@A\tH\n2\tT\t@B\t\n\t\t\t\n3\tT\t@C\tH\n");
}

TEST_F(GeneralVariablesTest, RemovesRowsOnceAgreed) {
    bench.write(u"QRD_TT/infodata.dat"_s, "zelvor-grid 1\n1\tOne\t@A\t\n2\t\t@B\t\n3\t\t@C\t\n4\t\t@D\t\n");
    general.load();
    general.apply();
    bench.operatorDesk.answerYes = false;
    general.removeRows({0});
    EXPECT_EQ(bench.operatorDesk.shown, QStringList{u"General Vars|Remove One @A?"_s});
    EXPECT_EQ(general.grid().rowCount(), 4);
    bench.operatorDesk.answerYes = true;
    general.removeRows({3, 0, 1});
    EXPECT_EQ(bench.operatorDesk.shown.last(), u"General Vars|Remove 3 rows?");
    EXPECT_EQ(general.grid().rows(), (std::vector<GeneralRow>{{u"3"_s, {}, u"@C"_s, {}}}));
    EXPECT_TRUE(general.grid().hasUnsaved());
    EXPECT_EQ(variable(u"@A"), u"1");
    general.save();
    EXPECT_FALSE(general.grid().hasUnsaved());
    EXPECT_EQ(onDisk(u"infodata.dat"_s), "zelvor-grid 1\n3\t\t@C\t\n");
    // Rows loaded while the question is open are others.
    bench.operatorDesk.whileAsked = [this] { general.load(); };
    general.removeRows({0});
    EXPECT_EQ(general.grid().rowCount(), 1);
}

}  // namespace
}  // namespace zelvor
