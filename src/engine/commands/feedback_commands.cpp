// What a card leaves behind for the operator and for other cards: labels, tags, the on-air table, proposals.

#include <QScopedValueRollback>

#include "base/number.h"
#include "engine/auto_tags.h"
#include "engine/card_run.h"
#include "engine/proposal.h"

using namespace Qt::StringLiterals;

namespace zelvor::commands {

namespace {

void LASTCARDTAG(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    const QStringView value = pieces[1];
    run.variables().SetVar(QString(u"LASTCARDTAG"_s + pieces[0]), value.toString());
    setAutoTags(run.variables(), value);
}

void LASTCARDONAIR(CardRun& run, const Arguments& args) {
    const Pieces slot(args.raw(), u'-');
    run.state().ONAIR_TABLE.at(wholeNumber32(slot[0]), wholeNumber32(slot[1])) = run.cardFile();
}

template <class Action>
void forEachOf(FormModel& form, QStringView name, Control::Kind kind, Action&& action) {
    for (Control* control : form.named(name.toString())) {
        if (control->kind() == kind) action(*control);
    }
}

void SHOW2TEXT(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    const bool indexed = pieces.count() > 2;
    const QString text = pieces[indexed ? 2 : 1].toString();
    const int index = indexed ? wholeNumber32(pieces[1]) : 0;
    forEachOf(run.form(), pieces[0], Control::Kind::TextBox, [&](Control& box) {
        if (!indexed || box.index() == index) box.setText(text);
    });
}

void SHOW2LABEL(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    const QString caption = pieces[1].toString();
    const auto colourOf = [&](int piece) { return pieces.count() > piece ? parseColour(pieces[piece]) : std::nullopt; };
    const std::optional<Colour> back = colourOf(2);
    const std::optional<Colour> fore = colourOf(3);
    forEachOf(run.form(), pieces[0], Control::Kind::Label, [&](Control& label) {
        label.setText(caption);
        if (pieces.count() > 2) label.setBackColour(back);
        if (pieces.count() > 3) label.setForeColour(fore);
    });
}

void TAG2LABEL(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    const QString tag = pieces[1].toString();
    forEachOf(run.form(), pieces[0], Control::Kind::Label, [&](Control& label) { label.setTag(tag); });
}

void ADD2LABELARRAY(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    const int index = wholeNumber32(pieces[1]);
    const QString caption = pieces[2].toString();
    const QString tag = pieces[3].toString();
    forEachOf(run.form(), pieces[0], Control::Kind::Label, [&](Control& label) {
        if (label.index() != index) return;
        label.setTag(tag);
        label.setText(caption);
    });
}

void PROPOSE(CardRun& run, const Arguments& args) {
    const Pieces pieces = args.pieces();
    Control& label = run.form().at(controls.lblPROPOSED, wholeNumber32(pieces[0]));
    const QStringView used = pieces[3];
    label.setTag(pieces[1].toString());
    label.setState({});
    label.setText(pieces[2].toString().replace(u"[VBCRLF]"_s, u"\r\n"_s));
    label.setBackColour(used == u"Y" ? colours::kAcceptedProposal : colours::kOpenProposal);
}

// The proposal's card as a slot holds it with the proposal's tag; empty when none does.
QString cardOnAir(CardRun& run, const Proposal& proposal) {
    constexpr int kSlots = 5;  // in both directions
    for (int row = 1; row <= kSlots; ++row) {
        for (int column = 1; column <= kSlots; ++column) {
            const QString& card = run.state().ONAIR_TABLE.at(row, column);
            if (proposal.isOnAir(card, run.variables().text(u"LASTCARDTAG%1-%2"_s.arg(row).arg(column)))) return card;
        }
    }
    return {};
}

void scanProposal(CardRun& run, Control& label) {
    const QString record = label.tag();
    const Pieces fields(record, u'|');
    if (fields.count() < 2 || fields[1] != u"N" || run.state().ask.ASK_OPEN != 0) return;
    const Proposal proposal(label);
    const QString card = cardOnAir(run, proposal);
    if (card.isEmpty()) return;
    proposal.fire(run.engine(), card, label, run.asker());
    run.goOn();
}

void SCANPROPOSED(CardRun& run, const Arguments&) {
    // A proposal stays open while its card runs: a card that scans itself would fire it again without end.
    if (run.state().scanningProposals) return;
    const QScopedValueRollback scanning(run.state().scanningProposals, true);
    for (Control* label : run.form().named(controls.lblPROPOSED)) scanProposal(run, *label);
}

using Argument = Command::Argument;
using Role = Command::Role;

constexpr std::array kFeedbackCommands{
    Command{u"LASTCARDTAG", LASTCARDTAG, Argument::Expanded, u"slot;key:answer##...",
            u"the tag of the card in a slot, and the automatic answers in it", roles(Role::Text, Role::Tag)},
    Command{u"LASTCARDONAIR", LASTCARDONAIR, Argument::Raw, u"row-column", u"this card is on air in that slot",
            roles(Role::Slot)},
    Command{u"SHOW2TEXT", SHOW2TEXT, Argument::Expanded, u"name;[index;]text", u"fills a text box of the form",
            roles(Role::TextBox)},
    Command{u"SHOW2LABEL", SHOW2LABEL, Argument::Expanded, u"name;caption;[back colour];[text colour]",
            u"captions and colours a label of the form",
            roles(Role::Label, Role::Text, Role::ColourValue, Role::ColourValue)},
    Command{u"TAG2LABEL", TAG2LABEL, Argument::Expanded, u"name;tag", u"tags a label of the form", roles(Role::Label)},
    Command{u"ADD2LABELARRAY", ADD2LABELARRAY, Argument::Expanded, u"name;index;caption;tag",
            u"captions and tags one label of an array", roles(Role::Label, Role::WholeNumber)},
    Command{u"PROPOSE", PROPOSE, Argument::Expanded, u"index;tag;caption;used",
            u"offers the operator a card; the tag is id|N|card|tag", roles(Role::Proposal)},
    Command{u"SCANPROPOSED", SCANPROPOSED, Argument::None, u"", u"fires the open proposals whose card is on air"},
};

}  // namespace

std::span<const Command> feedback() {
    return kFeedbackCommands;
}

}  // namespace zelvor::commands
