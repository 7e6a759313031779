#include "console/panels/scores_panel.h"

using namespace Qt::StringLiterals;

namespace zelvor {

using theme::Role;

namespace {

// One of the three dark boxes with a heading and a time.
QWidget* timeBox(QWidget* heading, QWidget* content) {
    auto* box = new QWidget;
    box->setAutoFillBackground(true);
    QPalette look = box->palette();
    look.setColor(QPalette::Window, theme::colour(Role::Field));
    box->setPalette(look);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(4, 4, 4, 4);
    column->setSpacing(2);
    column->addWidget(heading, 0, Qt::AlignHCenter);
    column->addWidget(content, 1);
    return box;
}

}  // namespace

ScoresPanel::ScoresPanel(const Mirrors& mirrors) : PanelFrame(mirrors, u"Frame1"_s) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 8, 12, 10);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);

    addSide(mirrors, grid, 0, u"lblHTEAM"_s, u"A"_s, 0);
    addSide(mirrors, grid, 2, u"lblATEAM"_s, u"B"_s, 2);

    TextLabel* live = mirrors.label(u"lblLIVEBLINK"_s, -1, {12, true, Qt::AlignCenter, Role::Field, Role::OnLine});
    // Hidden and shown as it blinks: its place stays.
    QSizePolicy keeps = live->sizePolicy();
    keeps.setRetainSizeWhenHidden(true);
    live->setSizePolicy(keeps);
    grid->addWidget(live, 0, 1, Qt::AlignCenter);
    // In its place stands what must not be overlooked.
    auto* manual = new TextLabel({12, true, Qt::AlignCenter, Role::AirText, Role::AirFill});
    manual->setObjectName(u"manualMark"_s);
    manual->setText(u"MANUAL"_s);
    const Control& manualMode = mirrors.form().at(u"chkMANUAL"_s);
    const auto mark = [manual, &manualMode] { manual->setVisible(manualMode.checked()); };
    connect(&manualMode, &Control::changed, manual, mark);
    mark();
    grid->addWidget(manual, 0, 1, Qt::AlignCenter);
    auto* period = new QVBoxLayout;
    period->setSpacing(2);
    period->addWidget(word(u"Period"_s), 0, Qt::AlignHCenter);
    QComboBox* periods = mirrors.list(u"cbQt"_s);
    periods->setFixedWidth(60);
    period->addWidget(periods, 0, Qt::AlignHCenter);
    grid->addLayout(period, 1, 1);
    grid->addWidget(mirrors.label(u"Label1"_s, -1, {12, false}), 2, 1);
    grid->addWidget(mirrors.checkBox(u"chkMANUAL"_s), 3, 1, Qt::AlignCenter);
    grid->addLayout(times(mirrors), 4, 0, 1, 3);
    grid->setRowStretch(1, 1);
    grid->setRowMinimumHeight(4, 60);
}

void ScoresPanel::addSide(const Mirrors& mirrors, QGridLayout* grid, int column, const QString& team,
                          const QString& side, int firstStep) {
    TextLabel* name = mirrors.copy(team, team + u".score"_s, {14, true});
    name->setPlaceholder(team == u"lblHTEAM" ? u"Home"_s : u"Away"_s);
    grid->addWidget(name, 0, column);
    grid->addWidget(mirrors.label(u"lblScore"_s + side, -1, {52, true, Qt::AlignCenter, Role::OnLine}), 1, column);
    grid->addWidget(mirrors.label(u"lblAutoScore"_s + side, -1, {12, true}), 2, column);
    grid->addLayout(manualScore(mirrors, side, firstStep), 3, column);
}

QLayout* ScoresPanel::manualScore(const Mirrors& mirrors, const QString& side, int firstStep) {
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    const auto step = [&](int index) {
        ConsoleButton* button = mirrors.button(u"cmdMANSCORE"_s, index, {18, true});
        button->setFixedSize(36, 32);
        row->addWidget(button);
    };
    step(firstStep + 1);
    QLineEdit* score = mirrors.textBox(u"mnSCORE"_s + side);
    score->setAlignment(Qt::AlignCenter);
    score->setFixedWidth(52);
    row->addWidget(score);
    step(firstStep);
    return row;
}

QLayout* ScoresPanel::times(const Mirrors& mirrors) {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    const TextLabel::Look digits{22, true};
    row->addWidget(timeBox(word(u"Game"_s), mirrors.label(u"lblTime"_s, -1, digits)), 1);
    row->addWidget(timeBox(word(u"Extra time"_s), mirrors.label(u"lblETime"_s, -1, digits)), 1);
    QLineEdit* threshold = mirrors.textBox(u"txtEAFTER"_s);
    threshold->setAlignment(Qt::AlignCenter);
    row->addWidget(timeBox(mirrors.checkBox(u"chkEAFTER"_s), threshold), 1);
    return row;
}

}  // namespace zelvor
