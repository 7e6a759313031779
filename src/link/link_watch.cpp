#include "link/link_watch.h"

#include "base/translate.h"
#include "form/follow.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const QString kConnectTag = u"connect"_s;

const LinkControls& controlsOf(LinkId id) {
    return id == LinkId::Main ? kMainLinkControls : kRemoteLinkControls;
}

// Timer names of the remote link end in this.
QString suffix(LinkId id) {
    return id == LinkId::Main ? QString() : u"REMOTE"_s;
}

bool isDown(LinkState state) {
    return state == LinkState::Closed || state == LinkState::PeerClosing || state == LinkState::Error;
}

}  // namespace

LinkWatch::LinkWatch(LinkId id, GraphicsLinks& links, FormModel& form, Clock& clock, ErrorTrap& trap)
    : links_(links),
      id_(id),
      link_(links.link(id)),
      clock_(clock),
      name_(id == LinkId::Main ? translate("link", "main %1") : translate("link", "remote %1")),
      address_(form.at(controlsOf(id).address)),
      port_(form.at(controlsOf(id).port)),
      button_(form.at(controlsOf(id).connect)),
      tab_(form.at(controls.cmdTAB, controlsOf(id).tab)),
      reconnect_(form.at(controlsOf(id).reconnect)),
      status_(form.at(controlsOf(id).status)) {
    const auto onTimer = [&](QTimer& timer, const QString& timerName, int interval, void (LinkWatch::*tick)()) {
        timer.setParent(this);
        timer.setObjectName(timerName);
        timer.setInterval(interval);
        const ErrorPlace place{u"frmMAIN."_s + timerName};
        connect(&timer, &QTimer::timeout, this,
                [this, &trap, place, tick] { trap.run(place, ErrorTrap::Tell::LogOnly, [&] { (this->*tick)(); }); });
    };
    onTimer(watchTimer_, u"tmrWS"_s + suffix(id), kWatchInterval, &LinkWatch::watch);
    onTimer(retryTimer_, u"tmrRETRY"_s + suffix(id), kRetryInterval, &LinkWatch::retry);
    connect(&link_, &CasparLink::stateChanged, this, &LinkWatch::followLink);
    connect(&links_, &GraphicsLinks::lineLost, this, [this](LinkId lost) {
        if (lost == id_ && isUsed()) countLostLine();
    });
    follow(port_, {Control::Property::Text}, this, [this] {
        const bool isPort = CasparLink::portNumber(port_.text()) != 0;
        port_.setState(isPort ? QString() : translate("link", "not a number from 1 to 65535"));
    });
    onChange(reconnect_, {Control::Property::Checked}, this, [this] { updateRetrying(); });
    showStatus();
}

bool LinkWatch::wanted() const {
    return button_.tag() != kConnectTag;
}

bool LinkWatch::isUsed() const {
    return wanted() || !address_.text().isEmpty();
}

bool LinkWatch::pressConnect() {
    const bool connects = !wanted();
    if (connects) {
        connectLink();
    } else {
        disconnectLink();
    }
    return connects;
}

void LinkWatch::connectLink() {
    host_ = address_.text();
    hostPort_ = port_.text();
    wasConnected_ = false;
    lostAt_.clear();
    reason_.clear();
    lostLines_ = 0;
    button_.setBackColour(colours::kGreen);
    button_.setText(u"Disconnect"_s);
    button_.setTag(u"disconnect"_s);
    watchTimer_.start();
    link_.connectTo(host_, hostPort_);
    showStatus();
}

void LinkWatch::disconnectLink() {
    // The button keeps its green colour: meant.
    button_.setText(u"Connect"_s);
    button_.setTag(kConnectTag);
    lostAt_.clear();
    lostLines_ = 0;
    link_.close();
    watchTimer_.stop();
    tab_.setBackColour(std::nullopt);
    updateRetrying();
    showStatus();
}

void LinkWatch::watch() {
    if (link_.state() == LinkState::Connected) {
        tab_.setBackColour(std::nullopt);
        watchAnswers();
    } else if (blink_ != 0) {
        tab_.setBackColour(std::nullopt);
        blink_ = 0;
    } else {
        tab_.setBackColour(colours::kRed);
        ++blink_;
    }
}

void LinkWatch::watchAnswers() {
    const qint64 waited = links_.unansweredFor(id_);
    const bool wasSilent = silentFor_ > 0;
    silentFor_ = waited >= kSilence ? waited : 0;
    const qint64 now = clock_.steadyMilliseconds();
    if (wasSilent && silentFor_ == 0) answersSince_ = now;
    if (now - answersSince_ > kRelief) answersSince_ = -1;
    showStatus();
}

void LinkWatch::retry() {
    if (link_.state() == LinkState::Connecting) {
        reason_ = translate("link", "no answer");
    } else if (!isDown(link_.state())) {
        return;
    }
    link_.connectTo(host_, hostPort_);
}

void LinkWatch::followLink(LinkState state) {
    if (state == LinkState::Connected) {
        const bool again = timesUp_++ > 0;
        upAgainAt_ = again ? clock_.now().toString(u"hh:mm"_s) : QString();
        lostAt_.clear();
        reason_.clear();
        lostLines_ = 0;
        Q_EMIT cameUp(timesUp_);
    } else if (isDown(state)) {
        silentFor_ = 0;
        answersSince_ = -1;
        refusal_.clear();
        // Of a lost link the loss is told, not the tries to get it back.
        if (wanted() && wasConnected_) lostAt_ = clock_.now().toString(u"hh:mm:ss"_s);
        if (wanted() && (wasConnected_ || lostAt_.isEmpty())) reason_ = link_.errorText();
    }
    wasConnected_ = state == LinkState::Connected;
    updateRetrying();
    showStatus();
}

void LinkWatch::countLostLine() {
    ++lostLines_;
    showStatus();
}

void LinkWatch::showRefusal(const QString& reply) {
    refusal_ = reply;
    showStatus();
}

void LinkWatch::forgetReconnect() {
    upAgainAt_.clear();
    showStatus();
}

void LinkWatch::updateRetrying() {
    const bool retries = reconnect_.checked() && wanted() && link_.state() != LinkState::Connected;
    if (retries == retryTimer_.isActive()) return;
    if (retries) {
        retryTimer_.start();
    } else {
        retryTimer_.stop();
    }
    showStatus();
}

void LinkWatch::showStatus() {
    const auto [words, role] = status();
    status_.setText(name_.arg(words));
    status_.setRole(role);
}

LinkWatch::Status LinkWatch::status() const {
    using Role = Control::Role;
    const QString target = host_ + u':' + hostPort_ + u' ';
    QString lines;
    if (lostLines_ == 1) lines = translate("link", ", 1 line lost");
    if (lostLines_ > 1) lines = translate("link", ", %1 lines lost").arg(lostLines_);
    if (!wanted()) return {translate("link", "not connected") + lines, lines.isEmpty() ? Role::Off : Role::Bad};
    if (link_.state() == LinkState::Connected) {
        const auto [words, role] = connectedStatus();
        return {target + words, role};
    }
    const QString again = retryTimer_.isActive() ? translate("link", ", trying again") : QString();
    if (!lostAt_.isEmpty())
        return {target + translate("link", "lost at %1: %2").arg(lostAt_, reason_) + lines + again, Role::Bad};
    if (!reason_.isEmpty())
        return {target + translate("link", "not connected (%1)").arg(reason_) + lines + again, Role::Bad};
    return {target + translate("link", "connecting") + lines, Role::Waiting};
}

LinkWatch::Status LinkWatch::connectedStatus() const {
    using Role = Control::Role;
    if (silentFor_ > 0)
        return {translate("link", "connected, no answer for %1 s").arg(silentFor_ / 1000), Role::Waiting};
    if (!refusal_.isEmpty()) return {translate("link", "connected, %1").arg(refusal_), Role::Bad};
    if (answersSince_ >= 0) return {translate("link", "connected, answers again"), Role::Good};
    if (!upAgainAt_.isEmpty()) {
        return {translate("link", "connected again at %1: what is on air must be fired again").arg(upAgainAt_),
                Role::Waiting};
    }
    return {translate("link", "connected"), Role::Good};
}

}  // namespace zelvor
