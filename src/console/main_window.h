#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "console/mirror.h"
#include "console/touch.h"
#include "console_rules/card_console.h"

class QAbstractItemModel;
class QHBoxLayout;
class QScrollArea;

namespace zelvor {

class CasparPanel;
class KeyFilter;
class KeySheet;

// The operator's window (frmMAIN): lays the panels out around the form model and hands keys and clicks on.
class MainWindow : public QWidget {
    Q_OBJECT

 public:
    // All must outlive the window. history: oldest line on top; responses: newest on top.
    MainWindow(FormModel& form, FormEvents& events, CardConsole& console, QAbstractItemModel& history,
               QAbstractItemModel& responses);

    // F1 to F10 pressed in that window are this one's.
    void takeFunctionKeysOf(const QWidget& beside);

    // For fingers: what is pressed is made large enough.
    void enlarge();
    void setTheme(theme::Theme theme);
    // The place for a menu that the widget opens: below it, where the pointer need not be.
    [[nodiscard]] QPoint below(const ControlRow& control) const;

    // Asked when the operator closes the window; false keeps it open.
    void setMayClose(std::function<bool()> mayClose) { mayClose_ = std::move(mayClose); }

 Q_SIGNALS:
    void closed();
    // F1 to F10 by their numbers.
    void functionKey(int number);
    void clearKey();
    void findKey();
    // Up and Down in the manual line.
    void olderLineWanted();
    void newerLineWanted();

 protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

 private:
    QWidget* leftSide(CardConsole& console, QAbstractItemModel& history);
    QWidget* rightSide(QAbstractItemModel& responses);
    // Pixels that the right side needs for all that is on it to be seen.
    [[nodiscard]] int leastRight() const;
    void shareWidth();

    void answerKeys();
    void showSheet();
    void changeFullScreen();

    Mirrors mirrors_;
    KeyFilter* keys_;
    std::unique_ptr<Touch> touch_;
    QScrollArea* right_ = nullptr;
    QHBoxLayout* tabs_ = nullptr;
    QList<QWidget*> panels_;
    KeySheet* sheet_ = nullptr;  // made when it is first wanted
    std::function<bool()> mayClose_;
};

}  // namespace zelvor
