#include "app_cards/look_memory.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const QString kTheme = u"theme"_s;
const QString kWindow = u"window"_s;

}  // namespace

LookMemory::LookMemory(Program& program, MainWindow& window) : program_(program), window_(window) {
    program_.trap.run({u"frmMAIN.LookMemory"_s}, ErrorTrap::Tell::LogOnly, [this] {
        if (!program_.folder.exists(program_.folder.modulesFile(u"LOOK.TXT"))) return;
        for (const QString& line : program_.files.readLines(path()))
            kept_.insert(line.section(u'=', 0, 0), line.section(u'=', 1));
    });
}

QString LookMemory::path() const {
    return program_.folder.resolve(program_.folder.modulesFile(u"LOOK.TXT"));
}

void LookMemory::restoreTheme(std::optional<theme::Theme> wanted) {
    window_.setTheme(wanted.value_or(theme::themeOf(kept_.value(kTheme)).value_or(theme::Theme::Dark)));
}

void LookMemory::showWindow() {
    // Where its screen is gone, Qt takes one that is there.
    if (!window_.restoreGeometry(QByteArray::fromBase64(kept_.value(kWindow).toLatin1()))) {
        window_.showMaximized();
        return;
    }
    window_.show();
}

void LookMemory::setTheme(theme::Theme theme) {
    window_.setTheme(theme);
    keep(kTheme, theme::wordOf(theme));
}

void LookMemory::keepPlace() {
    keep(kWindow, QString::fromLatin1(window_.saveGeometry().toBase64()));
}

void LookMemory::keep(const QString& key, const QString& value) {
    kept_.insert(key, value);
    program_.trap.run({u"frmMAIN.LookMemory"_s}, ErrorTrap::Tell::LogOnly, [this] {
        QString text;
        for (auto each = kept_.cbegin(); each != kept_.cend(); ++each)
            text += each.key() + u'=' + each.value() + u"\r\n"_s;
        replaceFile(path(), program_.files.encode(text));
    });
}

}  // namespace zelvor
