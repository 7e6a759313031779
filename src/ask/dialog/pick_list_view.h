#pragma once

#include <QListWidget>

#include "ask/pick_list.h"

namespace zelvor {

// The list box of a pick list (lstASK). Typing a character selects the first row that begins with it.
class PickListView : public QListWidget {
    Q_OBJECT

 public:
    // list: outlives this view. Its first row is selected.
    explicit PickListView(const PickList& list, QWidget* parent = nullptr);

    // Tall enough for that many rows.
    [[nodiscard]] int heightForRows(int rows) const;
    // The whole text of a row as its tool tip where the row is too narrow for it.
    bool viewportEvent(QEvent* event) override;
    // One character at a time: what was typed before does not matter.
    void keyboardSearch(const QString& typed) override;

 Q_SIGNALS:
    // Enter on the selected row, or a double-click.
    void chosen(int row);

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    const PickList& list_;
};

}  // namespace zelvor
