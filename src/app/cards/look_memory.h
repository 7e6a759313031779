#pragma once

#include <QMap>
#include <QWidget>
#include <optional>

#include "base/program.h"
#include "console/theme.h"

namespace zelvor {

// How the console looked last: its theme, and where its window was. Kept in MODULES\LOOK.TXT, a line each
// ("theme=dark").
class LookMemory {
 public:
    // program: must outlive it. A file that cannot be read counts as none; one that cannot be written stands in the
    // error log.
    explicit LookMemory(Program& program);

    // The one kept; dark without.
    [[nodiscard]] theme::Theme theme() const;
    // Shows the window where it was, on a screen that is there; without a place that was kept it fills the screen.
    void show(QWidget& window) const;

    void keepTheme(theme::Theme theme);
    // Where the window is now.
    void keepPlace(const QWidget& window);

 private:
    void keep(const QString& key, const QString& value);
    [[nodiscard]] QString path() const;

    Program& program_;
    QMap<QString, QString> kept_;
};

}  // namespace zelvor
