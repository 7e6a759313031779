#include "general_rules/selections.h"

#include "base/number.h"
#include "engine/defaults.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

using Tell = ErrorTrap::Tell;

constexpr int kFive = 5;

bool isKept(const Control& control) {
    return control.name() == u"cbQt" || control.name() == u"cmbFADE" || control.name() == u"txtS5H" ||
           control.name() == u"txtS5A";
}

// The place of the box's text in its list, -1 for a text of its own ("Off").
int positionOf(const Control& box) {
    const QList<Control::Item>& items = box.items();
    for (int position = 0; position < items.size(); ++position) {
        if (items[position].text == box.text()) return position;
    }
    return -1;
}

}  // namespace

Selections::Selections(CardEngine& engine, ErrorTrap& trap)
    : engine_(engine), trap_(trap), state_(engine.state()), form_(engine.form()) {
    connect(&form_, &FormModel::changed, this, [this](const Control* control, Control::Property property) {
        if (saving_ && property == Control::Property::Text && isKept(*control)) SaveSelections();
    });
}

QString Selections::path() const {
    return engine_.folder().resolve(engine_.folder().modulesFile(u"SELECTIONS.TXT"));
}

void Selections::SaveSelections() {
    trap_.run({u"frmMAIN.SaveSelections"_s}, Tell::Operator, [&] {
        QString text;
        const auto addLine = [&text](const QString& line) { text += line + u"\r\n"_s; };
        addLine(QString::number(positionOf(form_.at(u"cbQt"_s))));
        for (const Control* box : form_.named(u"cmbFADE"_s)) addLine(QString::number(positionOf(*box)));
        for (const QString& side : {u"txtS5H"_s, u"txtS5A"_s}) {
            for (const Control* box : form_.named(side)) addLine(box->text());
        }
        replaceFile(path(), engine_.files().encode(text));
    });
}

void Selections::LoadSelections() {
    saving_ = false;
    trap_.run({u"frmMAIN.LoadSelections"_s}, Tell::Operator, [&] {
        if (!engine_.folder().exists(engine_.folder().modulesFile(u"SELECTIONS.TXT"))) return;
        read(engine_.files().readLines(path()));
    });
    saving_ = true;
}

void Selections::read(const QStringList& lines) {
    qsizetype at = 0;
    const auto next = [&] {
        if (at == lines.size()) throw RunTimeError(ErrorNumber::InputPastEndOfFile, u"SELECTIONS.TXT"_s);
        return lines[at++];
    };
    // A text that was no item of its list was saved as no position: the box keeps its default.
    const auto setPosition = [](Control& box, int position) {
        if (position >= 0 || position < -1) box.setPosition(position);
    };
    Control& period = form_.at(u"cbQt"_s);
    setPosition(period, wholeNumber16(next()));
    state_.variables.SetVar(u"@GAMEPERIOD", Val(period.text()));
    for (int i = 0; i < static_cast<int>(kEffectVariables.size()); ++i) {
        Control& box = form_.at(u"cmbFADE"_s, i);
        setPosition(box, wholeNumber16(next()));
        state_.variables.SetVar(kEffectVariables.at(i), box.text());
    }
    for (const QString& side : {u"H"_s, u"A"_s}) {
        for (int player = 0; player < kFive; ++player) {
            const double number = Val(next());
            form_.at(u"txtS5"_s + side, player).setText(numberText(number));
            state_.variables.SetVar(u"@S5%1%2"_s.arg(side).arg(player + 1), number);
        }
    }
}

}  // namespace zelvor
