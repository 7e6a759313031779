#pragma once

#include <QMenu>
#include <optional>

#include "console/theme.h"
#include "form/form_model.h"

namespace zelvor {

// The main menu (mnMain), opened as a pop-up. The check marks of the screen modes are those of the form's controls
// mnSet169 and mnSet43, that of a theme stands at the one that is shown.
class MainMenu : public QMenu {
    Q_OBJECT

 public:
    // form: outlives the menu. parent: gives the menu its place on the screen.
    MainMenu(FormModel& form, QWidget* parent);

    // What can be chosen: an item's name with its caption.
    struct Item {
        QString name;
        QString caption;
    };
    [[nodiscard]] const std::vector<Item>& items() const { return items_; }
    // nullopt: the item is no theme.
    [[nodiscard]] static std::optional<theme::Theme> themeOf(const QString& item);

 Q_SIGNALS:
    // "mnReloadVar", "mnDisplayVars", "mnGeneralVars", "mnSet169", "mnSet43" or a theme's.
    void chosen(const QString& item);

 private:
    void addItem(QMenu& menu, const QString& name, const QString& caption);
    void addThemes(QMenu& menu);
    void addMode(QMenu& menu, const ControlRow& mode, const QString& caption, FormModel& form);

    std::vector<Item> items_;
};

}  // namespace zelvor
