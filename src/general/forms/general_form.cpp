#include "general_forms/general_form.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

#include "base/translate.h"
#include "base/window_frame.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr QSize kEditorSize{1060, 520};
constexpr int kValueWidth = 240;
constexpr int kTitleWidth = 200;
constexpr int kVariableWidth = 160;
constexpr int kMarkMargin = 24;

QString countOf(int rows, const QString& one, const QString& several) {
    return rows == 1 ? one : several.arg(rows);
}

}  // namespace

GeneralForm::GeneralForm(GeneralVariables& general, Operator& operatorDesk, Pickers& pickers)
    : general_(general),
      operator_(operatorDesk),
      pickers_(pickers),
      search_(new QLineEdit),
      view_(new QTableView),
      help_(new QLabel),
      marks_(new QLabel) {
    setObjectName(u"frmGENERAL"_s);
    setWindowTitle(u"General Vars"_s);
    setAttribute(Qt::WA_QuitOnClose, false);
    resize(kEditorSize.boundedTo(screen()->availableSize() - kWindowFrame));
    search_->setObjectName(u"txtSEARCH"_s);
    search_->setPlaceholderText(translate("general", "Search"));
    search_->setToolTip(translate("general", "Shows the rows that hold this text"));
    search_->setAccessibleName(search_->placeholderText());
    search_->setClearButtonEnabled(true);
    search_->findChild<QAction*>()->setText(translate("general", "Show all"));
    help_->setObjectName(u"lblHELP"_s);
    help_->setWordWrap(true);
    help_->setTextFormat(Qt::PlainText);
    marks_->setObjectName(u"lblMARKS"_s);

    auto* column = new QVBoxLayout(this);
    column->addWidget(search_);
    column->addWidget(gridView(), 1);
    column->addWidget(help_);
    column->addWidget(buttonRow());

    connect(search_, &QLineEdit::textChanged, &shown_, &QSortFilterProxyModel::setFilterFixedString);
    const GeneralGrid& grid = general_.grid();
    connect(&grid, &GeneralGrid::dataChanged, this, &GeneralForm::showState);
    connect(&grid, &GeneralGrid::rowsInserted, this, &GeneralForm::showState);
    connect(&grid, &GeneralGrid::rowsRemoved, this, &GeneralForm::showState);
    connect(&grid, &GeneralGrid::modelReset, this, &GeneralForm::showState);
    connect(&grid, &GeneralGrid::refused, help_, &QLabel::setText);
    showState();
}

QWidget* GeneralForm::gridView() {
    shown_.setSourceModel(&general_.grid());
    shown_.setFilterKeyColumn(-1);
    shown_.setFilterCaseSensitivity(Qt::CaseInsensitive);
    // A row that is being edited does not vanish because it no longer matches.
    shown_.setDynamicSortFilter(false);
    view_->setObjectName(u"vsDATA"_s);
    view_->setAccessibleName(windowTitle());
    view_->setModel(&shown_);
    view_->setItemDelegate(&delegate_);
    view_->setSelectionBehavior(QAbstractItemView::SelectRows);
    view_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                           QAbstractItemView::AnyKeyPressed);
    view_->setColumnWidth(general_column::kValue, kValueWidth);
    view_->setColumnWidth(general_column::kTitle, kTitleWidth);
    view_->setColumnWidth(general_column::kVariable, kVariableWidth);
    view_->horizontalHeader()->setStretchLastSection(true);
    // Wide enough for the marks: the columns stay where they are when some appear.
    QHeaderView* marks = view_->verticalHeader();
    marks->setFixedWidth(
        marks->fontMetrics().horizontalAdvance(translate("general", "changed, not saved, not applied")) + kMarkMargin);
    marks->setTextElideMode(Qt::ElideRight);
    view_->setToolTip(translate("general", "Enter edits the value, Alt+Down opens its list or picker"));
    connect(&delegate_, &ValueDelegate::buttonPressed, this, &GeneralForm::pressCellButton);
    connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this, &GeneralForm::showHelp);
    // Enter, or a double click on a cell that is no value. F2 and F4, as elsewhere, fire cards.
    connect(view_, &QTableView::activated, this, [this](const QModelIndex& index) {
        view_->setCurrentIndex(index.siblingAtColumn(general_column::kValue));
        view_->edit(view_->currentIndex());
    });
    connect(new QShortcut(Qt::ALT | Qt::Key_Down, view_, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            this, [this] { pressCellButton(view_->currentIndex().siblingAtColumn(general_column::kValue)); });
    return view_;
}

QWidget* GeneralForm::buttonRow() {
    auto* row = new QWidget;
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(marks_, 1);
    const auto add = [&](const QString& name, const QString& caption, const QString& hint, auto action) {
        auto* button = new QPushButton(caption);
        button->setObjectName(name);
        button->setToolTip(hint);
        connect(button, &QPushButton::clicked, this, [this, action] {
            endEditing();
            action();
        });
        line->addWidget(button);
    };
    add(u"cmdADDROW"_s, translate("general", "A&dd row"),
        translate("general", "Asks for name, title and help of a new variable"), [this] {
            if (!general_.addRow()) return;
            search_->clear();
            view_->setCurrentIndex(shown_.index(shown_.rowCount() - 1, general_column::kValue));
        });
    add(u"cmdREMOVEROW"_s, translate("general", "&Remove row"),
        translate("general", "Takes the chosen rows away; Save makes it last"),
        [this] { general_.removeRows(chosenRows()); });
    add(u"cmdIMPORT"_s, translate("general", "&Import"),
        translate("general", "Adds the lines of infodata.txt and saves"), [this] { general_.importText(); });
    add(u"cmdSAVE"_s, translate("general", "&Save"), translate("general", "Saves all rows to infodata.dat"),
        [this] { general_.save(); });
    add(u"cmdAPPLY"_s, translate("general", "&Apply"), translate("general", "Gives the cards all values"),
        [this] { general_.apply(); });
    return row;
}

void GeneralForm::pressCellButton(const QModelIndex& index) {
    const auto kind = static_cast<GeneralCell::Kind>(index.data(GeneralGrid::KindRole).toInt());
    if (!index.isValid()) return;
    if (kind == GeneralCell::Kind::Choice || kind == GeneralCell::Kind::Plain) {
        view_->edit(index);
        if (auto* list = qobject_cast<QComboBox*>(view_->indexWidget(index))) list->showPopup();
        return;
    }
    pick(index);
}

void GeneralForm::pick(const QModelIndex& index) {
    // While the picker is open the rows may be loaded anew.
    const QPersistentModelIndex cell(shown_.mapToSource(index));
    const QString from = index.data().toString();
    const bool isFolder = general_.grid().cell(cell.row()).kind() == GeneralCell::Kind::Folder;
    const QString path = isFolder ? pickers_.SelectFolder(this, from) : pickers_.SelectFile(this, from);
    if (cell.isValid()) general_.grid().setPicked(cell.row(), path);
}

void GeneralForm::endEditing() {
    QWidget* editor = view_->indexWidget(view_->currentIndex());
    if (editor == nullptr) return;
    Q_EMIT delegate_.commitData(editor);
    Q_EMIT delegate_.closeEditor(editor);
}

QList<int> GeneralForm::chosenRows() const {
    QList<int> rows;
    for (const QModelIndex& row : view_->selectionModel()->selectedRows()) rows += shown_.mapToSource(row).row();
    return rows;
}

void GeneralForm::showState() {
    const GeneralGrid& grid = general_.grid();
    int unsaved = 0;
    int unapplied = 0;
    for (int row = 0; row < grid.rowCount(); ++row) {
        unsaved += grid.isUnsaved(row) ? 1 : 0;
        unapplied += grid.isUnapplied(row) ? 1 : 0;
    }
    QStringList words;
    if (grid.removedUnsaved() > 0) {
        words += countOf(grid.removedUnsaved(), translate("general", "1 row removed but not saved"),
                         translate("general", "%1 rows removed but not saved"));
    }
    if (unsaved > 0)
        words += countOf(unsaved, translate("general", "1 row not saved"), translate("general", "%1 rows not saved"));
    if (unapplied > 0) {
        words +=
            countOf(unapplied, translate("general", "1 row not applied"), translate("general", "%1 rows not applied"));
    }
    marks_->setText(words.join(u", "_s));
    showHelp();
}

void GeneralForm::showHelp() {
    const QModelIndex current = view_->currentIndex();
    QStringList words{current.siblingAtColumn(general_column::kHelp).data().toString()};
    if (current.isValid()) words += general_.grid().fault(shown_.mapToSource(current).row());
    words.removeAll(QString());
    help_->setText(words.join(u'\n'));
}

void GeneralForm::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void GeneralForm::closeEvent(QCloseEvent* event) {
    endEditing();
    const bool leave =
        !general_.grid().hasUnsaved() ||
        operator_.yesNo({}, windowTitle(),
                        translate("general", "There are changes that are not saved. Close without them?"));
    event->setAccepted(leave);
}

}  // namespace zelvor
