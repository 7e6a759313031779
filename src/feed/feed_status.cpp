#include "feed/feed_status.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

QString timeOfDay(const QDateTime& when) {
    return when.toString(u"HH:mm:ss"_s);
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
    binding_ = u"Bound to port "_s + QString::number(port);
    reason_.clear();
    show();
    showDetail();
}

void FeedStatus::notBound(const QString& reason) {
    binding_ = u"Not bound: "_s + reason;
    reason_ = reason;
    show();
    showDetail();
}

void FeedStatus::arrived() {
    lastHeard_ = clock_.now();
    lastHeardSteady_ = clock_.steadyMilliseconds();
    if (!timer_.isActive()) timer_.start();
    if (silent_) setSilent(false);
}

void FeedStatus::handled(GameFeed::Outcome outcome) {
    if (outcome == GameFeed::Outcome::Refused) {
        ++refused_;
    } else {
        ++handled_;
        paused_ = outcome == GameFeed::Outcome::Pause;
    }
    show();
}

void FeedStatus::check() {
    if (!silent_ && lastHeard_.isValid() && clock_.steadyMilliseconds() - lastHeardSteady_ >= kSilence) setSilent(true);
    showDetail();
}

void FeedStatus::setSilent(bool silent) {
    silent_ = silent;
    time_.setForeColour(silent ? std::optional(colours::kRed) : std::nullopt);
    show();
    showDetail();
}

FeedStatus::Status FeedStatus::status() const {
    using Role = Control::Role;
    if (binding_.isEmpty()) return {u"off"_s, Role::Off};
    if (!reason_.isEmpty()) return {u"not bound: "_s + reason_, Role::Bad};
    if (!lastHeard_.isValid()) return {u"bound, nothing heard"_s, Role::Waiting};
    if (silent_) return {u"silent since "_s + timeOfDay(lastHeard_), Role::Bad};
    const QString refused = refused_ > 0 ? QString(u", "_s + QString::number(refused_) + u" refused"_s) : QString();
    if (paused_) return {u"paused"_s + refused, Role::Waiting};
    const QString clock = state_.variables.text(u"@FULLTIMER");
    return {(clock.isEmpty() ? u"without a clock"_s : clock) + refused, Role::Good};
}

void FeedStatus::show() {
    const auto [words, role] = status();
    status_.setText(u"feed "_s + words);
    status_.setRole(role);
}

void FeedStatus::showDetail() {
    if (binding_.isEmpty()) {
        detail_.setText(u"Not bound"_s);
        return;
    }
    const QString last =
        lastHeard_.isValid() ? QString(u"last datagram "_s + timeOfDay(lastHeard_)) : u"nothing heard"_s;
    detail_.setText(binding_ + u", "_s + last + u", "_s + QString::number(handled_) + u" handled, "_s +
                    QString::number(refused_) + u" refused"_s);
}

}  // namespace zelvor
