#include "engine/proposal.h"

#include "base/translate.h"
#include "engine/auto_tags.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

using Outcome = CardEngine::Outcome;

// Why the card did not run; empty for one that ran or was ended from outside.
QString whyNot(Outcome outcome) {
    switch (outcome) {
        case Outcome::Failed:
            return translate("engine", "failed");
        case Outcome::NoScript:
            return translate("engine", "no such card");
        case Outcome::NoData:
            return translate("engine", "no data");
        default:
            return {};
    }
}

// The words stand below the caption and in the state, by which they are found again.
void say(Control& label, const QString& words) {
    const QString before = u"\r\n"_s + label.state();
    QString caption = label.text();
    if (!label.state().isEmpty() && caption.endsWith(before)) caption.chop(before.size());
    if (!words.isEmpty()) caption += u"\r\n"_s + words;
    label.setState(words);
    label.setText(caption);
}

}  // namespace

Proposal::Proposal(const Control& label) {
    const QString& record = label.tag();
    const Pieces fields(record, u'|');
    if (fields.count() < 4) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           label.displayName() + u" holds no id|used|card|tag: "_s + record);
    }
    id_ = fields[0].toString();
    card_ = fields[2].toString();
    tag_ = fields[3].toString();
}

bool Proposal::isOnAir(const QString& slotCard, const QString& slotTag) const {
    return !slotCard.isEmpty() && CardEngine::scriptName(card_).compare(slotCard, Qt::CaseInsensitive) == 0 &&
           tag_.compare(slotTag, Qt::CaseInsensitive) == 0;
}

void Proposal::fire(CardEngine& engine, const QString& card, Control& label, const Asker& asker) const {
    setAutoTags(engine.state().variables, tag_);
    const Outcome outcome = engine.SHOW_TVCARD(card, true, true, asker);
    // The card may have put another proposal here.
    const bool isStillHere = label.tag().startsWith(id_ + u'|');
    if (isStillHere) say(label, whyNot(outcome));
    if (outcome != Outcome::Ran) return;
    if (!engine.ports().database.execute(asker, u"update proposedcard set pc_used='Y' where pc_id="_s + id_)) return;
    label.setBackColour(colours::kUsedProposal);
}

}  // namespace zelvor
