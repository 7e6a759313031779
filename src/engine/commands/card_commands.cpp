// Card buttons and the switches that other parts of the console read.

#include "base/number.h"
#include "engine/card_run.h"

using namespace Qt::StringLiterals;

namespace zelvor::commands {

namespace {

// The button's number, from 0; its card entry is one more.
int buttonNumber(QStringView text) {
    const int number = wholeNumber32(text);
    if (number < 0 || number >= CardTable::kCards) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, text.toString());
    }
    return number;
}

void BUTTONTEXT(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    const int button = buttonNumber(pieces[0]);
    const QString text = pieces[1].toString();
    run.form().at(controls.cmbCARD, button).setText(text);
    run.state().cards.entry(run.state().currentSet, button + 1).text = text;
}

void BUTTONCOLOR(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    run.form().at(controls.cmbCARD, buttonNumber(pieces[0])).setBackColour(parseColour(pieces[1]));
}

void switchCard(CardRun& run, int button, bool on) {
    run.state().cards.entry(run.state().currentSet, button + 1).on = on;
    Control& control = run.form().at(controls.cmbCARD, button);
    control.setBackColour(std::nullopt);
    control.setState(on ? u"ON"_s : u"OFF"_s);
}

void ON(CardRun& run, const Arguments& args) {
    if (!run.keepStates()) switchCard(run, buttonNumber(args.text()), true);
}

void OFF(CardRun& run, const Arguments& args) {
    if (!run.keepStates()) switchCard(run, buttonNumber(args.text()), false);
}

void OFFALL(CardRun& run, const Arguments&) {
    if (run.keepStates()) return;
    for (int button = 0; button < CardTable::kCards; ++button) switchCard(run, button, false);
}

bool saysYes(const Arguments& args) {
    return args.text().compare(u"YES"_s, Qt::CaseInsensitive) == 0;
}

void AUTOTIMECARD(CardRun& run, const Arguments& args) {
    run.state().switches.AutoTimeCard = args.raw();
}
void AUTOCLOCKCARD(CardRun& run, const Arguments& args) {
    run.state().switches.AutoClockCard = args.raw();
}
void ISTIME(CardRun& run, const Arguments& args) {
    run.state().switches.IsTimeCard = saysYes(args);
}
void ISCLOCK(CardRun& run, const Arguments& args) {
    run.state().switches.IsClockCard = saysYes(args);
}
void STOPTIME(CardRun& run, const Arguments&) {
    run.state().switches.IsTimeCard = false;
}
void STOPCLOCK(CardRun& run, const Arguments&) {
    run.state().switches.IsClockCard = false;
}

void DISABLEPREVIEW(CardRun& run, const Arguments& args) {
    if (saysYes(args)) run.state().switches.PreviewDisabled = true;
}

void AUTOFEED(CardRun&, const Arguments& args) {
    // Nothing reads the number; one that does not fit is still the error that packs know.
    wholeNumber16(Val(args.text()));
}

void EXECUTE(CardRun& run, const Arguments& args) {
    run.ports().desktop.open(args.raw());
}

using Argument = Command::Argument;
using Role = Command::Role;

constexpr std::array kCardCommands{
    Command{u"BUTTONTEXT", BUTTONTEXT, Argument::Expanded, u"button;text", u"labels a card button, counted from 0",
            roles(Role::Button)},
    Command{u"BUTTONCOLOR", BUTTONCOLOR, Argument::Expanded, u"button;colour",
            u"colours a card button: a number 0xBBGGRR or an English name", roles(Role::Button, Role::ColourValue)},
    Command{u"ON", ON, Argument::Expanded, u"button", u"marks a card as on", roles(Role::Button)},
    Command{u"OFF", OFF, Argument::Expanded, u"button", u"marks a card as off", roles(Role::Button)},
    Command{u"OFFALL", OFFALL, Argument::None, u"", u"marks every card of the set as off"},
    Command{u"AUTOTIMECARD", AUTOTIMECARD, Argument::Raw, u"card", u"the card run with every message of the game clock",
            roles(Role::AutoCard)},
    Command{u"AUTOCLOCKCARD", AUTOCLOCKCARD, Argument::Raw, u"card",
            u"the card run with every second of the local clock", roles(Role::AutoCard)},
    Command{u"ISTIME", ISTIME, Argument::Expanded, u"YES|NO", u"switches the time card"},
    Command{u"ISCLOCK", ISCLOCK, Argument::Expanded, u"YES|NO", u"switches the clock card"},
    Command{u"STOPTIME", STOPTIME, Argument::None, u"", u"switches the time card off"},
    Command{u"STOPCLOCK", STOPCLOCK, Argument::None, u"", u"switches the clock card off"},
    Command{u"DISABLEPREVIEW", DISABLEPREVIEW, Argument::Expanded, u"YES",
            u"dims the preview mark until the next card"},
    Command{u"AUTOFEED", AUTOFEED, Argument::Expanded, u"number", u"the run's feed number", roles(Role::FeedNumber)},
    Command{u"EXECUTE", EXECUTE, Argument::Raw, u"target", u"opens a file, folder or address on the desktop"},
};

}  // namespace

std::span<const Command> cards() {
    return kCardCommands;
}

}  // namespace zelvor::commands
