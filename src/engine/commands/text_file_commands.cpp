// Text tables read into variables, and text files written.

#include "engine/card_run.h"
#include "engine/output_files.h"

using namespace Qt::StringLiterals;

namespace zelvor::commands {

namespace {

QString threeDigits(qint64 number) {
    return QString::number(number).rightJustified(3, u'0');
}

// The lines of a text table; its name may hold the two placeholders itself.
QStringList readTable(CardRun& run, const QString& name) {
    QString path = name;
    path.replace(u"{@APP_PATH}"_s, run.variables().text(u"@APP_PATH"));
    path.replace(u"{@SCREEN_MODE}"_s, run.variables().text(u"@SCREEN_MODE"));
    return run.engine().program().files.readLines(run.engine().program().folder.resolve(path));
}

void storeFields(CardRun& run, const QString& prefix, const Pieces& fields) {
    for (int i = 0; i < fields.count(); ++i) {
        run.variables().SetVar(QString(prefix + threeDigits(i + 1)), fields[i].toString());
    }
}

void LOADTXT(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    const QString name = u'@' + pieces[1] + u'_';
    qint64 lines = 0;
    int columns = 0;
    for (const QString& line : readTable(run, pieces[0].toString().replace(u'\\', u'/'))) {
        if (line.startsWith(u'#')) continue;
        const Pieces fields(line, u',');
        storeFields(run, name + threeDigits(++lines) + u'_', fields);
        columns = std::max(columns, fields.count());
    }
    run.variables().SetVar(u"@TEXTLINES", lines);
    run.variables().SetVar(u"@TEXTCOLS", columns);
}

// The position of the last "S" in a header "#CL:,,S,".
int selectorColumn(const QString& header, int before) {
    const Pieces parts(header, u':');
    if (parts.count() < 2) throw RunTimeError(ErrorNumber::SubscriptOutOfRange, header.left(80));
    const Pieces entries(parts[1], u',');
    int column = before;
    // Meant: the last entry is never looked at, so a header ends with a "," behind the "S".
    for (int i = 0; i < entries.count() - 1; ++i) {
        if (entries[i] == u"S") column = i;
    }
    return column;
}

void LOADTXTLINE(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    const QString name = u'@' + pieces[1] + u'_';
    int selector = 0;
    int columns = 0;
    for (const QString& line : readTable(run, pieces[0].toString().replace(u'/', u'\\'))) {
        if (line.startsWith(u"#CL")) selector = selectorColumn(line, selector);
        if (line.startsWith(u'#')) continue;
        const Pieces fields(line, u',');
        if (selector >= fields.count() || fields[selector] != u"X") continue;
        storeFields(run, name, fields);
        columns = fields.count();
    }
    run.variables().SetVar(u"@TEXTCOLS", columns);
}

void OFILE(CardRun& run, const Arguments& args) {
    run.files().open(run.engine().program().folder.resolve(args.rawPieces()[0].toString()));
}
void WFILE(CardRun& run, const Arguments& args) {
    run.files().writeLine(args.text());
}
void CFILE(CardRun& run, const Arguments&) {
    run.files().close();
}

void OFILE8(CardRun& run, const Arguments&) {
    run.files().openText();
}
// Meant: no line end is added; a script that wants one writes it.
void WFILE8(CardRun& run, const Arguments& args) {
    run.files().appendText(args.text());
}
void CFILE8(CardRun& run, const Arguments& args) {
    run.files().saveText(run.engine().program().folder.resolve(args.rawPieces()[0].toString()));
}

using Argument = Command::Argument;
using Role = Command::Role;

constexpr std::array kTextFileCommands{
    Command{u"LOADTXT", LOADTXT, Argument::Expanded, u"file;name",
            u"reads a comma-separated file into @name_LLL_CCC, @TEXTLINES and @TEXTCOLS",
            roles(Role::Filled, Role::VariablePrefix)},
    Command{u"LOADTXTLINE", LOADTXTLINE, Argument::Expanded, u"file;name",
            u"reads the line marked X into @name_CCC and @TEXTCOLS", roles(Role::Filled, Role::VariablePrefix)},
    Command{u"OFILE", OFILE, Argument::Raw, u"path", u"opens a text file for writing", roles(Role::Path)},
    Command{u"WFILE", WFILE, Argument::Expanded, u"text", u"writes a line to it", {}, u"OFILE"},
    Command{u"CFILE", CFILE, Argument::None, u"", u"closes it", {}, u"OFILE"},
    Command{u"OFILE8", OFILE8, Argument::None, u"", u"begins a UTF-8 text"},
    Command{u"WFILE8", WFILE8, Argument::Expanded, u"text", u"appends to it, without a line end", {}, u"OFILE8"},
    Command{u"CFILE8", CFILE8, Argument::Raw, u"path", u"saves it", roles(Role::Path), u"OFILE8"},
};

}  // namespace

std::span<const Command> textFiles() {
    return kTextFileCommands;
}

}  // namespace zelvor::commands
