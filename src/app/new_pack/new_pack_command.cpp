#include "app_new_pack/new_pack_command.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <array>

#include "base/app_folder.h"
#include "base/run_time_error.h"
#include "base/text_file.h"
#include "command_line/command_line.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kMade = 0;
constexpr int kFailed = 1;

const QString kUsage =
    uR"(usage: zelvor new [--app-folder DIR] CODE

Makes the smallest pack that runs, MODULES/QRD_CODE, and adds it to MODULES/PACKS.TXT.

  --app-folder DIR     the application folder (default: the program's own); it must exist

Exit status: 0, 1 when a file could not be written, 2 for wrong usage or a pack that is there already.
Example: zelvor new CUP && zelvor run --language CUP hello.csp
)"_s;

struct PackFile {
    QString name;
    QString text;
};

const std::array kFiles{
    PackFile{u"CARDS.TXT"_s, u"CLEAR:clear.csp\nSETNO:1,Cards\nHello,hello.csp,1\n"_s + u",\n"_s.repeated(20)},
    PackFile{u"CONNECTIONS.TXT"_s, u"1==None yet==Driver=SQLite3;Database=:memory:\n"_s},
    PackFile{u"ASKFIELDS.TXT"_s, {}},
    PackFile{u"GetGame.csp"_s,
             u"# Runs at the start.\nFUNCTIONCARD\nSETVAR~@HTLNAMEEN;Home\n"
             u"SETVAR~@ATLNAMEEN;Away\n"_s},
    PackFile{u"hello.csp"_s,
             u"# A name strap.\nCLEARDATA\nSDATA~NAME;Hello\nSDATA~TITLE;{@HTLNAMEEN}\nMAKEXML\n"
             u"CSPSEND~CG !!POC!!-20 ADD 1 'lowerthird' 1 '{@CASPARXML}'\n"_s},
    PackFile{u"clear.csp"_s, u"# The button CLEAR.\nFUNCTIONCARD\nCSPSEND~CG !!POC!!-20 CLEAR\n"_s},
};

void makePack(const AppFolder& folder, const QString& code) {
    const QString packs = folder.resolve(folder.modulesFile(u"PACKS.TXT"));
    QByteArray list = QFileInfo::exists(packs) ? readWholeFile(packs) : QByteArray();
    const QString path = folder.resolve(folder.packFolder(code));
    if (!QDir().mkpath(path)) throw RunTimeError(ErrorNumber::PathFileAccessError, path);
    for (const PackFile& file : kFiles) replaceFile(path + u'/' + file.name, file.text.toUtf8());
    if (!list.isEmpty() && !list.endsWith('\n')) list += '\n';
    replaceFile(packs, list + code.toUtf8() + ";New pack\n");
}

}  // namespace

int runNewPack(const QStringList& arguments, QTextStream& out, QTextStream& err) {
    static const std::array kOptions{CommandLine::Option{u"--app-folder"_s, true}, CommandLine::Option{u"--help"_s},
                                     CommandLine::Option{u"-h"_s}};
    static const QRegularExpression kCode(u"^[A-Za-z0-9_-]+$"_s);
    const CommandLine line(arguments, kOptions);
    if (line.has(u"--help") || line.has(u"-h")) {
        out << kUsage;
        return kMade;
    }
    line.check();
    const QString code = line.rest().value(0);
    if (line.rest().size() != 1 || !kCode.match(code).hasMatch()) {
        throw UsageError{u"one CODE of letters, digits, \"-\" and \"_\" is to be named"_s};
    }
    const AppFolder folder(line.value(u"--app-folder").value_or(QCoreApplication::applicationDirPath()));
    if (!QFileInfo(folder.path()).isDir()) throw UsageError{u"no such folder: "_s + folder.path()};
    if (folder.exists(folder.packFolder(code))) throw UsageError{u"the pack %1 is there already"_s.arg(code)};
    try {
        makePack(folder, code);
    } catch (const RunTimeError& error) {
        err << "zelvor new: " << error.text() << '\n';
        return kFailed;
    }
    out << QDir(folder.path()).relativeFilePath(folder.resolve(folder.packFolder(code))) << '\n';
    return kMade;
}

}  // namespace zelvor
