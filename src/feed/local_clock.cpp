#include "feed/local_clock.h"

#include "base/run_time_error.h"
#include "base/translate.h"
#include "form/follow.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

const QString kTimeOfDay = u"HH:mm:ss"_s;

// "20:30:00", "8:05:00" or "20:30"; invalid for anything else.
QTime readTimeOfDay(const QString& text) {
    const QString trimmed = text.trimmed();
    const QTime time = QTime::fromString(trimmed, u"H:m:s"_s);
    return time.isValid() ? time : QTime::fromString(trimmed, u"H:m"_s);
}

// The same; throws 13 for anything else.
QTime timeOfDay(const QString& text) {
    const QTime time = readTimeOfDay(text);
    if (!time.isValid()) throw RunTimeError(ErrorNumber::TypeMismatch, text);
    return time;
}

int secondsOfDay(QTime time) {
    return time.msecsSinceStartOfDay() / 1000;
}

}  // namespace

LocalClock::LocalClock(CardEngine& engine, UnattendedCards& cards)
    : QuietRules(engine.program().trap),
      engine_(engine),
      form_(engine.form()),
      card_(engine, cards, Asker::Kind::ClockCard, u"tmrCLOCKS_Timer"_s, [&switches = engine.state().switches] {
          return switches.IsClockCard ? std::optional(switches.AutoClockCard) : std::nullopt;
      }) {
    const Control& target = form_.at(controls.txtCOUNTDOWNTIME);
    follow(target, {Control::Property::Text}, this, [this, &target] {
        const bool isTime = readTimeOfDay(target.text()).isValid();
        form_.at(controls.txtCOUNTDOWNTIME).setState(isTime ? QString() : translate("feed", "not a time"));
    });
    timer_.setObjectName(u"tmrCLOCKS"_s);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &LocalClock::aim);
    // Queued, so that a second that passes while the clock card waits is noticed.
    connect(
        &timer_, &QTimer::timeout, this,
        [this] {
            if (timer_.isActive()) tick();
        },
        Qt::QueuedConnection);
}

void LocalClock::cmdCLOCKS() {
    Control& button = form_.at(controls.cmdCLOCKS);
    if (button.text() == u"Start") {
        button.setText(u"Stop"_s);
        aim();
    } else {
        button.setText(u"Start"_s);
        timer_.stop();
        card_.forget();
    }
}

void LocalClock::aim() {
    timer_.start(kInterval + kBehindSecond - engine_.ports().clock.now().time().msec());
}

void LocalClock::tick() {
    if (quietly(u"tmrCLOCKS_Timer"_s, [&] { write(); })) card_.fire();
}

void LocalClock::write() {
    VariableStore& variables = engine_.state().variables;
    const QTime now = engine_.ports().clock.now().time();
    const QString nowText = now.toString(kTimeOfDay);
    const bool counts = form_.at(controls.optTIMERS, 1).checked();
    if (counts || form_.at(controls.optTIMERS, 0).checked()) {
        const QString shown = counts ? countdown(now) : nowText;
        form_.at(controls.lblCLOCK).setText(shown);
        variables.SetVar(u"@CLOCKS", shown);
    }
    variables.SetVar(u"@LOCALTIME", nowText);
}

QString LocalClock::countdown(QTime now) const {
    const int left = secondsOfDay(timeOfDay(form_.at(controls.txtCOUNTDOWNTIME).text())) - secondsOfDay(now);
    // Past the target it goes on from 23:59:59: meant.
    return QTime(0, 0).addSecs(left).toString(kTimeOfDay);
}

}  // namespace zelvor
