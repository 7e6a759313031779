#include "general_rules/selections.h"

#include <utility>

#include "base/number.h"
#include "engine/defaults.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

using Tell = ErrorTrap::Tell;

constexpr int kFive = 5;

bool isKept(const Control& control) {
    return control.is(controls.cbQt) || control.is(controls.cmbFADE) || control.is(kHomeControls.startFive) ||
           control.is(kAwayControls.startFive);
}

// What stands for an effect box whose text is none of its list, before that text: the position alone would lose it.
const QString kOwnText = u"-1;"_s;

QString savedEffect(const Control& box) {
    const bool isOwn = box.position() < 0 && !box.text().isEmpty();
    return isOwn ? kOwnText + box.text() : QString::number(box.position());
}

// A box that was saved with nothing selected keeps its default.
void restorePosition(Control& box, const QString& line) {
    const int position = wholeNumber16(line);
    if (position != -1) box.setPosition(position);
}

}  // namespace

Selections::Selections(CardEngine& engine) : program_(engine.program()), state_(engine.state()), form_(engine.form()) {
    connect(&form_, &FormModel::changed, this, [this](const Control* control, Control::Property property) {
        if (saving_ && property == Control::Property::Text && isKept(*control)) due_.start();
    });
    due_.setSingleShot(true);
    due_.setInterval(0);
    connect(&due_, &QTimer::timeout, this, &Selections::SaveSelections);
    connect(&program_.closing, &Closing::begun, this, [this] {
        if (due_.isActive()) SaveSelections();
    });
}

QString Selections::path() const {
    return program_.folder.resolve(program_.folder.modulesFile(u"SELECTIONS.TXT"));
}

void Selections::SaveSelections() {
    due_.stop();
    // Told before it is shown: while its message stands, further changes fail, too.
    const Tell tell = std::exchange(told_, true) ? Tell::LogOnly : Tell::Operator;
    const bool saved = program_.trap.run({u"frmMAIN.SaveSelections"_s}, tell, [&] {
        QString text;
        // A card may have written several lines into a box.
        const auto addLine = [&text](QString line) {
            text += line.replace(u'\r', u' ').replace(u'\n', u' ') + u"\r\n"_s;
        };
        addLine(QString::number(form_.at(controls.cbQt).position()));
        for (const Control* box : form_.named(controls.cmbFADE)) addLine(savedEffect(*box));
        for (const TeamControls& team : {kHomeControls, kAwayControls}) {
            for (const Control* box : form_.named(team.startFive)) addLine(box->text());
        }
        replaceFile(path(), program_.files.encode(text));
    });
    if (saved) told_ = false;
}

void Selections::LoadSelections() {
    saving_ = false;
    ErrorPlace place{u"frmMAIN.LoadSelections"_s};
    program_.trap.run(place, Tell::Operator, [&] {
        if (!program_.folder.exists(program_.folder.modulesFile(u"SELECTIONS.TXT"))) return;
        const QStringList lines = program_.files.readLines(path());
        try {
            read(lines, place.line);
        } catch (const RunTimeError& error) {
            throw RunTimeError::withText(error.code(), error.text() + u": SELECTIONS.TXT"_s);
        }
    });
    saving_ = true;
}

void Selections::read(const QStringList& lines, int& lineNo) {
    const auto next = [&] {
        if (lineNo == lines.size()) throw RunTimeError(ErrorNumber::InputPastEndOfFile);
        return lines[lineNo++];
    };
    Control& period = form_.at(controls.cbQt);
    restorePosition(period, next());
    state_.variables.SetVar(u"@GAMEPERIOD", Val(period.text()));
    for (int i = 0; i < static_cast<int>(kEffectVariables.size()); ++i) {
        Control& box = form_.at(controls.cmbFADE, i);
        const QString line = next();
        if (line.startsWith(kOwnText)) {
            // Its variable is written as it was when the operator typed the text: by the change of the box.
            box.setText(line.mid(kOwnText.size()));
        } else {
            restorePosition(box, line);
            state_.variables.SetVar(kEffectVariables.at(i), box.text());
        }
    }
    for (const TeamControls& team : {kHomeControls, kAwayControls}) {
        for (int player = 0; player < kFive; ++player) {
            const double number = Val(next());
            form_.at(team.startFive, player).setText(numberText(number));
            state_.variables.SetVar(u"@S5%1%2"_s.arg(team.letter).arg(player + 1), number);
        }
    }
}

}  // namespace zelvor
