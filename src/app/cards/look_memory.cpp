#include "app_cards/look_memory.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const QString kTheme = u"theme"_s;
const QString kWindow = u"window"_s;

}  // namespace

LookMemory::LookMemory(Program& program) : program_(program) {
    program_.trap.run({u"frmMAIN.LookMemory"_s}, ErrorTrap::Tell::LogOnly, [this] {
        if (!program_.folder.exists(program_.folder.modulesFile(u"LOOK.TXT"))) return;
        for (const QString& line : program_.files.readLines(path()))
            kept_.insert(line.section(u'=', 0, 0), line.section(u'=', 1));
    });
}

QString LookMemory::path() const {
    return program_.folder.resolve(program_.folder.modulesFile(u"LOOK.TXT"));
}

theme::Theme LookMemory::theme() const {
    return theme::themeOf(kept_.value(kTheme)).value_or(theme::Theme::Dark);
}

void LookMemory::show(QWidget& window) const {
    // Where its screen is gone, Qt takes one that is there.
    if (!window.restoreGeometry(QByteArray::fromBase64(kept_.value(kWindow).toLatin1()))) {
        window.showMaximized();
        return;
    }
    window.show();
}

void LookMemory::keepTheme(theme::Theme theme) {
    keep(kTheme, theme::wordOf(theme));
}

void LookMemory::keepPlace(const QWidget& window) {
    keep(kWindow, QString::fromLatin1(window.saveGeometry().toBase64()));
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
