#include "console/panels/scores_panel.h"

#include "base/translate.h"
#include "form/follow.h"

using namespace Qt::StringLiterals;

namespace zelvor {

using theme::Role;

namespace {

// One of the three dark boxes with a heading and a time.
QWidget* timeBox(QWidget* heading, QWidget* content) {
    auto* box = new QWidget;
    box->setAutoFillBackground(true);
    box->setBackgroundRole(QPalette::Base);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(4, 4, 4, 4);
    column->setSpacing(2);
    column->addWidget(heading, 0, Qt::AlignHCenter);
    column->addWidget(content, 1);
    return box;
}

}  // namespace

ScoresPanel::ScoresPanel(const Mirrors& mirrors) : PanelFrame(mirrors, controls.Frame1) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 8, 12, 10);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);

    addSide(mirrors, grid, 0, kHomeControls, translate("console", "Home"), 0);
    addSide(mirrors, grid, 2, kAwayControls, translate("console", "Away"), 2);

    TextLabel* live = mirrors.label(controls.lblLIVEBLINK, -1, {12, true, Qt::AlignCenter, Role::Field, Role::OnLine});
    // Hidden and shown as it blinks: its place stays.
    QSizePolicy keeps = live->sizePolicy();
    keeps.setRetainSizeWhenHidden(true);
    live->setSizePolicy(keeps);
    grid->addWidget(live, 0, 1, Qt::AlignCenter);
    // In its place stands what must not be overlooked.
    auto* manual = new TextLabel({12, true, Qt::AlignCenter, Role::AirText, Role::AirFill});
    manual->setObjectName(u"manualMark"_s);
    manual->setText(translate("console", "MANUAL"));
    const Control& manualMode = mirrors.form().at(controls.chkMANUAL);
    follow(manualMode, {Control::Property::Checked}, manual,
           [manual, &manualMode] { manual->setVisible(manualMode.checked()); });
    grid->addWidget(manual, 0, 1, Qt::AlignCenter);
    auto* period = new QVBoxLayout;
    period->setSpacing(2);
    period->addWidget(word(translate("console", "Period")), 0, Qt::AlignHCenter);
    QComboBox* periods = mirrors.list(controls.cbQt);
    periods->setFixedWidth(60);
    period->addWidget(periods, 0, Qt::AlignHCenter);
    grid->addLayout(period, 1, 1);
    grid->addWidget(mirrors.label(controls.Label1, -1, {12, false}), 2, 1);
    grid->addWidget(mirrors.checkBox(controls.chkMANUAL), 4, 0, 1, 3, Qt::AlignCenter);
    grid->addLayout(times(mirrors), 5, 0, 1, 3);
    grid->setRowStretch(1, 1);
    grid->setRowMinimumHeight(5, 56);
}

void ScoresPanel::addSide(const Mirrors& mirrors, QGridLayout* grid, int column, const TeamControls& team,
                          const QString& nobody, int firstStep) {
    TextLabel* name = mirrors.copy(team.team, team.team.name + u".score"_s, {14, true});
    name->setPlaceholder(nobody);
    grid->addWidget(name, 0, column);
    TextLabel* score = mirrors.label(team.score, -1, {.pixels = 52, .bold = true, .text = Role::OnLine, .padding = 0});
    // Three digits, without the room that a line of letters would have above and below.
    score->setMinimumSize(score->fontMetrics().horizontalAdvance(u"000"_s), score->fontMetrics().ascent());
    grid->addWidget(score, 1, column);
    grid->addWidget(mirrors.label(team.autoScore, -1, {12, true}), 2, column);
    grid->addLayout(manualScore(mirrors, team.manualScore, firstStep), 3, column);
}

QLayout* ScoresPanel::manualScore(const Mirrors& mirrors, const ControlRow& box, int firstStep) {
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    const auto step = [&](int index) {
        ConsoleButton* button = mirrors.button(controls.cmdMANSCORE, index, {18, true});
        button->setMinimumWidth(28);
        button->setMaximumWidth(36);
        button->setFixedHeight(32);
        row->addWidget(button);
    };
    step(firstStep + 1);
    QLineEdit* score = mirrors.textBox(box);
    score->setAlignment(Qt::AlignCenter);
    score->setMinimumWidth(36);
    score->setMaximumWidth(52);
    score->setProperty("narrow", true);
    row->addWidget(score);
    step(firstStep);
    return row;
}

QLayout* ScoresPanel::times(const Mirrors& mirrors) {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    const TextLabel::Look digits{22, true};
    row->addWidget(timeBox(word(translate("console", "Game")), mirrors.label(controls.lblTime, -1, digits)), 1);
    row->addWidget(timeBox(word(u"Extra time"_s), mirrors.label(controls.lblETime, -1, digits)), 1);
    QLineEdit* threshold = mirrors.textBox(controls.txtEAFTER);
    threshold->setAlignment(Qt::AlignCenter);
    row->addWidget(timeBox(mirrors.checkBox(controls.chkEAFTER), threshold), 1);
    return row;
}

}  // namespace zelvor
