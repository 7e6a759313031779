#include "link/link_watch.h"

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

LinkWatch::LinkWatch(LinkId id, CasparLink& link, FormModel& form, Clock& clock, ErrorTrap& trap)
    : link_(link),
      clock_(clock),
      name_(id == LinkId::Main ? u"main"_s : u"remote"_s),
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
    onChange(reconnect_, {Control::Property::Checked}, this, [this] { updateRetrying(); });
    showStatus();
}

bool LinkWatch::wanted() const {
    return button_.tag() != kConnectTag;
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
    link_.close();
    watchTimer_.stop();
    tab_.setBackColour(std::nullopt);
    updateRetrying();
    showStatus();
}

void LinkWatch::watch() {
    if (link_.state() == LinkState::Connected) {
        tab_.setBackColour(std::nullopt);
    } else if (blink_ != 0) {
        tab_.setBackColour(std::nullopt);
        blink_ = 0;
    } else {
        tab_.setBackColour(colours::kRed);
        ++blink_;
    }
}

void LinkWatch::retry() {
    if (isDown(link_.state()) || link_.state() == LinkState::Connecting) link_.connectTo(host_, hostPort_);
}

void LinkWatch::followLink(LinkState state) {
    if (state == LinkState::Connected) {
        lostAt_.clear();
    } else if (wasConnected_ && wanted()) {
        lostAt_ = clock_.now().toString(u"hh:mm:ss"_s);
    }
    wasConnected_ = state == LinkState::Connected;
    updateRetrying();
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
    status_.setText(name_ + u' ' + words);
    status_.setRole(role);
}

LinkWatch::Status LinkWatch::status() const {
    using Role = Control::Role;
    const QString target = host_ + u':' + hostPort_ + u' ';
    if (link_.state() == LinkState::Connected) return {target + u"connected"_s, Role::Good};
    if (!wanted()) return {u"not connected"_s, Role::Off};
    const QString again = retryTimer_.isActive() ? u", trying again"_s : QString();
    if (!lostAt_.isEmpty()) return {target + u"lost at "_s + lostAt_ + again, Role::Bad};
    if (!isDown(link_.state())) return {target + u"connecting"_s, Role::Waiting};
    const QString reason = link_.errorText().isEmpty() ? QString() : QString(u" ("_s + link_.errorText() + u')');
    return {target + u"not connected"_s + reason + again, Role::Bad};
}

}  // namespace zelvor
