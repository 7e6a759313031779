#include "console/panels/card_grid.h"

#include <QGridLayout>

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {
constexpr int kCardRows = 7;
}

CardGrid::CardGrid(const Mirrors& mirrors, CardConsole& console) : console_(console), form_(mirrors.form()) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(2);
    for (int i = 0; i < CardConsole::kCardButtons; ++i) {
        buttons_.at(i) = mirrors.cardButton(i);
        connect(buttons_.at(i), &CardButton::painted, this, [&console, i] { console.cardSeen(i); });
        for (const ConsoleButton* button :
             std::initializer_list<const ConsoleButton*>{buttons_.at(i), &buttons_.at(i)->small()})
            connect(button, &ConsoleButton::goesDown, this, [&console, i] { console.cardGoesDown(i); });
        // Cards count down the columns, as the F-keys do in the packs.
        grid->addWidget(buttons_.at(i), i % kCardRows, i / kCardRows);
        grid->setColumnStretch(i / kCardRows, 1);
        grid->setRowStretch(i % kCardRows, 1);
    }
    connect(&console, &CardConsole::cardsChanged, this, &CardGrid::showFaces);
    connect(&form_, &FormModel::changed, this, [this](const Control* control) {
        if (control->is(controls.cmbCARD)) showFaces();
    });
    showFaces();
}

void CardGrid::showLetters(bool shown) {
    for (int i = 0; i < CardConsole::kCardButtons; ++i) {
        // The last of "Alt+A".
        buttons_.at(i)->setLetter(shown ? form_.at(controls.cmbCARD, i).key().right(1) : QString());
    }
}

void CardGrid::showFaces() {
    for (int i = 0; i < CardConsole::kCardButtons; ++i) {
        const CardEntry& card = console_.card(i);
        CardButton::Face face;
        face.on = form_.at(controls.cmbCARD, i).state() == u"ON";
        face.quiet = card.script.isEmpty() && card.shownCaption().isEmpty();
        face.flagged = card.flag;
        face.lastFired = console_.isLastFired(i);
        face.trouble = console_.troubleOf(i);
        face.key = console_.keyOf(i);
        face.fault = card.fault;
        buttons_.at(i)->setFace(face);
        const QString hint = form_.at(controls.cmbCARD, i).tip();
        buttons_.at(i)->setHint(face.trouble.isEmpty() ? hint : hint + u"\n"_s + face.trouble);
        QString name =
            translate("console", "Card %1: %2")
                .arg(QString::number(i + 1), face.quiet ? translate("console", "empty") : card.shownCaption());
        if (const QString state = buttons_.at(i)->stateLine(); !state.isEmpty()) name += u", "_s + state;
        if (!face.trouble.isEmpty()) name += u", "_s + face.trouble;
        buttons_.at(i)->setAccessibleName(name);
    }
}

}  // namespace zelvor
