#pragma once

#include <QSortFilterProxyModel>
#include <QWidget>

#include "general_forms/pickers.h"
#include "general_forms/value_delegate.h"
#include "general_rules/general_variables.h"

class QLabel;
class QLineEdit;
class QTableView;

namespace zelvor {

// The general-variables editor (frmGENERAL): the grid vsDATA, a search line, the current row's help, and the buttons.
// Closing it by hand asks about what is not saved; hiding it does not. A window of its own, so that it can stand
// behind the console.
class GeneralForm : public QWidget {
    Q_OBJECT

 public:
    // All must outlive the form.
    GeneralForm(GeneralVariables& general, Operator& operatorDesk, Pickers& pickers);

 protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

 private:
    QWidget* gridView();
    QWidget* buttonRow();
    void pressCellButton(const QModelIndex& index);
    void pick(const QModelIndex& index);
    void endEditing();
    [[nodiscard]] QList<int> chosenRows() const;
    void showState();
    void showHelp();

    GeneralVariables& general_;
    Operator& operator_;
    Pickers& pickers_;
    QSortFilterProxyModel shown_;
    ValueDelegate delegate_;
    QLineEdit* search_;
    QTableView* view_;
    QLabel* help_;
    QLabel* marks_;
};

}  // namespace zelvor
