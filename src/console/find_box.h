#pragma once

#include <QDialog>
#include <optional>

#include "console_rules/find_list.h"

class QLineEdit;
class QListView;

namespace zelvor {

class FindModel;

// The list that Ctrl+K opens over the console: typing narrows it, Enter chooses, Escape leaves. It goes when another
// window is used.
class FindBox : public QDialog {
    Q_OBJECT

 public:
    // console: the window it lies over.
    explicit FindBox(QWidget& console);

    void showWith(FindList list);

 Q_SIGNALS:
    // asks: chosen with Shift.
    void chosen(const zelvor::FindEntry& entry, bool asks);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    void narrow();
    void choose(bool asks);

    std::optional<FindList> list_;
    FindModel* model_;
    QLineEdit* typed_;
    QListView* view_;
};

}  // namespace zelvor
