#pragma once

#include <QElapsedTimer>
#include <QListWidget>

#include "ask/pick_list.h"
#include "ask/type_ahead.h"

namespace zelvor {

// The list box of a pick list (lstASK). Typing selects the row that is meant.
class PickListView : public QListWidget {
    Q_OBJECT

 public:
    // list: outlives this view. Its first row is selected.
    explicit PickListView(const PickList& list, QWidget* parent = nullptr);

    // Tall enough for that many rows.
    [[nodiscard]] int heightForRows(int rows) const;
    // Wide enough for the longest row.
    [[nodiscard]] int widthForRows() const;
    // The whole text of a row as its tool tip where the row is too narrow for it.
    bool viewportEvent(QEvent* event) override;
    // What was typed within the second before belongs to it.
    void keyboardSearch(const QString& typed) override;

 Q_SIGNALS:
    // Enter on the selected row, or a double-click.
    void chosen(int row);

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    const PickList& list_;
    TypeAhead typeAhead_;
    QElapsedTimer sinceOpened_;
};

}  // namespace zelvor
