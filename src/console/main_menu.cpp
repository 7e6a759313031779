#include "console/main_menu.h"

#include <array>

#include "base/translate.h"
#include "form/follow.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

struct ThemeItem {
    theme::Theme theme;
    QStringView name;
    const char* caption;
};
constexpr std::array kThemes{
    ThemeItem{theme::Theme::Dark, u"mnDark", QT_TRANSLATE_NOOP("console", "&Dark theme")},
    ThemeItem{theme::Theme::Light, u"mnLight", QT_TRANSLATE_NOOP("console", "&Light theme")},
    ThemeItem{theme::Theme::HighContrast, u"mnHighContrast", QT_TRANSLATE_NOOP("console", "&High-contrast theme")},
};

}  // namespace

MainMenu::MainMenu(FormModel& form, QWidget* parent) : QMenu(u"Main"_s, parent) {
    setObjectName(u"mnMain"_s);
    addItem(*this, u"mnReloadVar"_s, u"&Reload db vars"_s);
    addItem(*this, u"mnDisplayVars"_s, u"&Display Vars"_s);
    addItem(*this, u"mnGeneralVars"_s, u"&General Vars"_s);
    addSeparator()->setObjectName(u"mnsep1"_s);
    // Meant: this item does nothing. A pack's cards are read again by choosing its language.
    addAction(u"Reload &Cards"_s)->setObjectName(u"mnReloadCards"_s);
    QMenu* modes = addMenu(u"&Screen mode"_s);
    modes->setObjectName(u"mnScreenMode"_s);
    addMode(*modes, controls.mnSet169, u"Mode &16:9"_s, form);
    addMode(*modes, controls.mnSet43, u"Mode &4:3"_s, form);
    addThemes(*addMenu(translate("console", "&Theme")));
}

void MainMenu::addItem(QMenu& menu, const QString& name, const QString& caption) {
    QAction* item = menu.addAction(caption);
    item->setObjectName(name);
    items_.push_back({name, QString(caption).remove(u'&')});
    connect(item, &QAction::triggered, this, [this, name] { Q_EMIT chosen(name); });
}

void MainMenu::addThemes(QMenu& menu) {
    menu.setObjectName(u"mnTheme"_s);
    for (const ThemeItem& each : kThemes) {
        addItem(menu, each.name.toString(), translate("console", each.caption));
        menu.actions().last()->setCheckable(true);
    }
    connect(&menu, &QMenu::aboutToShow, &menu, [&menu] {
        for (QAction* item : menu.actions()) item->setChecked(themeOf(item->objectName()) == theme::current());
    });
}

std::optional<theme::Theme> MainMenu::themeOf(const QString& item) {
    for (const ThemeItem& each : kThemes) {
        if (each.name == item) return each.theme;
    }
    return std::nullopt;
}

void MainMenu::addMode(QMenu& menu, const ControlRow& mode, const QString& caption, FormModel& form) {
    addItem(menu, mode.name.toString(), caption);
    QAction* item = menu.actions().last();
    item->setCheckable(true);
    const auto show = [item, &control = form.at(mode)] { item->setChecked(control.checked()); };
    follow(form.at(mode), {Control::Property::Checked}, item, show);
    // Choosing what is chosen already must not take the mark away.
    connect(item, &QAction::triggered, item, show);
}

}  // namespace zelvor
