#include "feed/feed_status.h"

#include <utility>

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

QString timeOfDay(const QDateTime& when) {
    return when.toString(u"HH:mm:ss"_s);
}

// The socket hears both kinds of addresses: one of the older kind comes dressed as the newer.
QString addressText(const QHostAddress& address) {
    bool isIpv4 = false;
    const quint32 ipv4 = address.toIPv4Address(&isIpv4);
    return isIpv4 ? QHostAddress(ipv4).toString() : address.toString();
}

}  // namespace

FeedStatus::FeedStatus(const ShowState& state, FormModel& form, Clock& clock)
    : state_(state),
      clock_(clock),
      status_(form.at(controls.lblFEED)),
      detail_(form.at(controls.lblFEEDDETAIL)),
      time_(form.at(controls.lblTime)) {
    timer_.setObjectName(u"tmrFEED"_s);
    timer_.setInterval(kCheckInterval);
    connect(&timer_, &QTimer::timeout, this, &FeedStatus::check);
    show();
    showDetail();
}

void FeedStatus::bound(quint16 port) {
    binding_ = translate("feed", "Bound to port %1").arg(port);
    reason_.clear();
    show();
    showDetail();
}

void FeedStatus::notBound(const QString& reason) {
    binding_ = translate("feed", "Not bound: %1").arg(reason);
    reason_ = reason;
    show();
    showDetail();
}

void FeedStatus::arrived(const QHostAddress& sender) {
    lastHeard_ = clock_.now();
    lastHeardSteady_ = clock_.steadyMilliseconds();
    sender_ = addressText(sender);
    if (!timer_.isActive()) timer_.start();
    if (silent_) setSilent(false);
}

void FeedStatus::waits(std::size_t count, qint64 since) {
    waiting_ = count;
    waitingSince_ = since;
    show();
}

void FeedStatus::cardBegins() {
    cardSince_ = clock_.steadyMilliseconds();
}

void FeedStatus::cardEnds() {
    cardSince_.reset();
    show();
}

void FeedStatus::handled(GameFeed::Outcome outcome) {
    if (outcome == GameFeed::Outcome::Refused) {
        ++refused_;
        lastRefused_ = clock_.steadyMilliseconds();
        if (!refusedSince_) refusedSince_ = lastRefused_;
    } else {
        ++handled_;
        paused_ = outcome == GameFeed::Outcome::Pause;
        refusedSince_.reset();
    }
    show();
}

void FeedStatus::check() {
    if (!silent_ && lastHeard_.isValid() && isPast(lastHeardSteady_, kSilence)) setSilent(true);
    show();
    showDetail();
}

bool FeedStatus::isPast(qint64 since, qint64 longest) const {
    return clock_.steadyMilliseconds() - since >= longest;
}

void FeedStatus::setSilent(bool silent) {
    silent_ = silent;
    show();
    showDetail();
}

FeedStatus::Status FeedStatus::status() const {
    using Role = Control::Role;
    if (binding_.isEmpty()) return {translate("feed", "off"), Role::Off};
    if (!reason_.isEmpty()) return {translate("feed", "not bound: %1").arg(reason_), Role::Bad};
    if (!lastHeard_.isValid()) return {translate("feed", "bound, nothing heard"), Role::Waiting};
    if (silent_) return {translate("feed", "silent since %1").arg(timeOfDay(lastHeard_)), Role::Bad};
    if (!isUnderstood()) return {translate("feed", "not understood, %1 refused").arg(refused_), Role::Bad};
    QString counts;
    const bool isLate = waiting_ > 0 && isPast(waitingSince_, kDelay);
    if (isLate) counts += translate("feed", ", %1 waiting").arg(waiting_);
    if (refused_ > 0) counts += translate("feed", ", %1 refused").arg(refused_);
    if (cardSince_ && isPast(*cardSince_, kDelay)) return {translate("feed", "held by a card") + counts, Role::Waiting};
    if (paused_) return {translate("feed", "paused") + counts, Role::Waiting};
    const QString clock = state_.variables.text(u"@FULLTIMER");
    return {(clock.isEmpty() ? translate("feed", "without a clock") : clock) + counts,
            isLate ? Role::Waiting : Role::Good};
}

void FeedStatus::show() {
    const auto [words, role] = status();
    status_.setText(translate("feed", "feed %1").arg(words));
    status_.setRole(role);
    const bool stands = silent_ || !isUnderstood();
    // Only then: cards may colour it, too.
    if (std::exchange(timeMarked_, stands) == stands) return;
    time_.setForeColour(stands ? std::optional(colours::kRed) : std::nullopt);
}

void FeedStatus::showDetail() {
    if (binding_.isEmpty()) {
        detail_.setText(translate("feed", "Not bound"));
        return;
    }
    const QString last = lastHeard_.isValid()
                             ? translate("feed", "last datagram %1 from %2").arg(timeOfDay(lastHeard_), sender_)
                             : translate("feed", "nothing heard");
    const QString counts = translate("feed", "%1 handled, %2 refused").arg(handled_).arg(refused_);
    detail_.setText(binding_ + u", "_s + counts + u'\n' + last);
}

}  // namespace zelvor
