#include "app_check/check_command.h"

#include <QFileInfo>
#include <array>

#include "app_check/pack_check.h"
#include "app_check/report.h"
#include "command_line/command_line.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kClean = 0;
constexpr int kErrors = 1;

const QString kUsage =
    uR"(usage: zelvor check [--app-folder DIR | --user-folder] [--format FORMAT] [CODE]

Reads the pack of that code, or every pack of PACKS.TXT, and prints what is wrong with it without running a card.

  --app-folder DIR     the application folder (default: the program's own)
  --user-folder        the user's own folder, ~/.local/share/zelvor-cards
  --format FORMAT      text (the default), json or sarif

A line each: FILE:LINE: error|warning: TEXT; then the counts. Exit status 1 when there is an error.
)"_s;

}  // namespace

int runCheck(const QStringList& arguments, QTextStream& out, QTextStream&) {
    static const std::array kOptions{CommandLine::Option{u"--app-folder"_s, true},
                                     CommandLine::Option{u"--user-folder"_s}, CommandLine::Option{u"--format"_s, true},
                                     CommandLine::Option{u"--help"_s}, CommandLine::Option{u"-h"_s}};
    const CommandLine line(arguments, kOptions);
    if (line.has(u"--help") || line.has(u"-h")) {
        out << kUsage;
        return kClean;
    }
    line.check();
    if (line.rest().size() > 1) throw UsageError{u"one pack at a time, or all"_s};

    const ReportFormat format =
        line.read(u"--format", u"text, json or sarif"_s, reportFormat).value_or(ReportFormat::Text);
    const AppFolder folder(line.appFolder());
    if (!QFileInfo(folder.path()).isDir()) throw UsageError{u"no such folder: "_s + folder.path()};
    Findings findings;
    if (line.rest().isEmpty()) {
        checkPacks(folder, findings);
    } else {
        const QString& code = line.rest().first();
        if (!folder.exists(folder.packFolder(code))) throw UsageError{u"no such pack: "_s + code};
        findings.append(PackCheck(folder, code).findings());
    }
    return printReport(findings, format, out) > 0 ? kErrors : kClean;
}

}  // namespace zelvor
