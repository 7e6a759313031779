#pragma once

#include <QMap>
#include <optional>

#include "base/program.h"
#include "console/main_window.h"

namespace zelvor {

// How the console looked last: its theme, and where its window was. Kept in MODULES\LOOK.TXT, a line each
// ("theme=dark").
class LookMemory : public QObject {
    Q_OBJECT

 public:
    // Both must outlive it. A file that cannot be read counts as none; one that cannot be written stands in the error
    // log.
    LookMemory(Program& program, MainWindow& window);

    // wanted: the theme of this start, in place of the one kept.
    void restoreTheme(std::optional<theme::Theme> wanted);
    // Shows the window where it was, on a screen that is there; without a place that was kept it fills the screen.
    void showWindow();
    // Applies the theme, and keeps it.
    void setTheme(theme::Theme theme);
    // Where the window is now.
    void keepPlace();

 private:
    void keep(const QString& key, const QString& value);
    [[nodiscard]] QString path() const;

    Program& program_;
    MainWindow& window_;
    QMap<QString, QString> kept_;
};

}  // namespace zelvor
