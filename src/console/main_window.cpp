#include "console/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "console/accessibility.h"
#include "console/key_filter.h"
#include "console/key_sheet.h"
#include "console/panels/card_grid.h"
#include "console/panels/history_panel.h"
#include "console/panels/key_bar.h"
#include "console/panels/lineup_panels.h"
#include "console/panels/link_panels.h"
#include "console/panels/on_air_bar.h"
#include "console/panels/players_panel.h"
#include "console/panels/scores_panel.h"
#include "console/panels/settings_panels.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr QSize kFirstSize{1280, 800};
constexpr int kRightWidth = 480;  // pixels; where the cards would have less than kCardsWidth it is narrower
constexpr int kCardsWidth = 500;
constexpr int kRightMargin = 10;
constexpr int kPanelHeight = 250;  // the tallest panel's

// On a small screen the content scrolls.
QScrollArea* scrolling(QWidget* content) {
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(content);
    return area;
}

}  // namespace

MainWindow::MainWindow(FormModel& form, FormEvents& events, CardConsole& console, QAbstractItemModel& history,
                       QAbstractItemModel& responses)
    : mirrors_(form, events), keys_(new KeyFilter(*this, form)) {
    describeWidgets();
    setObjectName(u"frmMAIN"_s);
    resize(kFirstSize.boundedTo(screen()->availableSize()));
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(new OnAirBar(mirrors_));
    auto* sides = new QHBoxLayout;
    sides->setSpacing(0);
    sides->addWidget(scrolling(leftSide(console, history)), 1);
    auto* rule = new QWidget;
    rule->setFixedWidth(1);
    rule->setAutoFillBackground(true);
    rule->setBackgroundRole(QPalette::Mid);
    sides->addWidget(rule);
    right_ = scrolling(rightSide(responses));
    sides->addWidget(right_);
    rows->addLayout(sides, 1);
    rows->addWidget(new KeyBar(mirrors_));

    // The window itself has the keyboard until the operator chooses a box: a stray key must not turn a list.
    setFocusPolicy(Qt::StrongFocus);
    setFocus();
    answerKeys();
    touch_ = std::make_unique<Touch>(*this);
}

void MainWindow::answerKeys() {
    connect(keys_, &KeyFilter::functionKey, this, &MainWindow::functionKey);
    connect(keys_, &KeyFilter::clearKey, this, &MainWindow::clearKey);
    connect(keys_, &KeyFilter::findKey, this, &MainWindow::findKey);
    connect(keys_, &KeyFilter::sheetKey, this, &MainWindow::showSheet);
    connect(keys_, &KeyFilter::fullScreenKey, this, &MainWindow::changeFullScreen);
    connect(keys_, &KeyFilter::altHeld, findChild<CardGrid*>(), &CardGrid::showLetters);
}

void MainWindow::showSheet() {
    if (sheet_ == nullptr) sheet_ = new KeySheet(mirrors_.form(), *this);
    sheet_->show();
    sheet_->raise();
    sheet_->activateWindow();
}

void MainWindow::changeFullScreen() {
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

void MainWindow::setTheme(theme::Theme theme) {
    const bool changes = theme != theme::current();
    theme::apply(*qApp, theme);
    if (changes) mirrors_.showColoursAnew();
    shareWidth();
}

QPoint MainWindow::below(const ControlRow& control) const {
    const auto* widget = findChild<QWidget*>(control.name.toString());
    return widget->mapToGlobal(QPoint(0, widget->height()));
}

void MainWindow::takeFunctionKeysOf(const QWidget& beside) {
    keys_->addBeside(beside);
}

QWidget* MainWindow::leftSide(CardConsole& console, QAbstractItemModel& history) {
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(12, 10, 10, 8);
    column->setSpacing(8);
    auto* selectors = new QHBoxLayout;
    selectors->setSpacing(6);
    for (int i = 0; i < CardConsole::kSelectors; ++i) {
        ConsoleButton* selector = mirrors_.button(
            controls.GradientButtonS, i, {14, false, theme::Role::Bar, theme::Role::Line, theme::Role::Text, true});
        selector->setFixedHeight(32);
        selectors->addWidget(selector, 1);
    }
    column->addLayout(selectors);
    column->addWidget(new CardGrid(mirrors_, console), 3);
    // Stands below the cards, which stay at hand while it is open.
    column->addWidget(new HistoryPanel(mirrors_, history), 2);
    column->addWidget(new ProposalsPanel(mirrors_));
    return side;
}

QWidget* MainWindow::rightSide(QAbstractItemModel& responses) {
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(kRightMargin, 10, kRightMargin, 8);
    column->setSpacing(9);

    // Tabs and panels are one block: the cover lies over both.
    auto* covered = new QWidget;
    auto* block = new QVBoxLayout(covered);
    block->setContentsMargins(0, 0, 0, 0);
    block->setSpacing(9);
    tabs_ = new QHBoxLayout;
    tabs_->setSpacing(2);
    for (int i = 0; i < CardConsole::kTabs; ++i) {
        ConsoleButton* tab = mirrors_.button(controls.cmdTAB, i, {.pixels = 13, .showsPage = true});
        tab->setFixedHeight(30);
        constexpr int kLeastSides = 10;  // pixels
        tab->setMinimumWidth(tab->fontMetrics().horizontalAdvance(tab->text()) + kLeastSides);
        tab->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        tabs_->addWidget(tab, 1);
    }
    block->addLayout(tabs_);
    auto* place = new QWidget;
    place->setFixedHeight(kPanelHeight);
    auto* panels = new QGridLayout(place);
    panels->setContentsMargins(0, 0, 0, 0);
    auto* caspar = new CasparPanel(mirrors_, responses);
    connect(caspar, &CasparPanel::olderWanted, this, &MainWindow::olderLineWanted);
    connect(caspar, &CasparPanel::newerWanted, this, &MainWindow::newerLineWanted);
    // All panels lie in one place; the controls say which one shows.
    panels_ = {new ScoresPanel(mirrors_),
               new StartFivePanel(mirrors_),
               new EffectPanel(mirrors_),
               new NetworkPanel(mirrors_),
               caspar,
               new StartElevenPanel(mirrors_),
               new ClocksPanel(mirrors_)};
    for (QWidget* panel : panels_) panels->addWidget(panel, 0, 0);
    block->addWidget(place);

    auto* stack = new QGridLayout;
    stack->setContentsMargins(0, 0, 0, 0);
    stack->addWidget(covered, 0, 0);
    stack->addWidget(new ControlsCover(mirrors_, *covered), 0, 0);
    column->addLayout(stack);
    column->addWidget(new PlayersPanel(mirrors_), 1);
    return side;
}

int MainWindow::leastRight() const {
    // The hidden panels count, too: the cards stay where they are whichever shows.
    int least = tabs_->minimumSize().width();
    for (const QWidget* panel : panels_) least = std::max(least, panel->minimumSizeHint().width());
    return least + 2 * kRightMargin +
           style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, right_->verticalScrollBar());
}

void MainWindow::shareWidth() {
    // The panels give way to the cards as far as they can.
    const int least = leastRight();
    right_->setFixedWidth(std::clamp(width() - kCardsWidth, least, std::max(kRightWidth, least)));
}

void MainWindow::enlarge() {
    touch_->enlarge();
    shareWidth();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    shareWidth();
    QWidget::resizeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    // The desktop's log-out must not hang on a question, nor the program's own end.
    const bool isOperators = event->spontaneous() && !qGuiApp->isSavingSession();
    if (isOperators && mayClose_ && !mayClose_()) {
        event->ignore();
        return;
    }
    Q_EMIT closed();
    event->accept();
}

}  // namespace zelvor
