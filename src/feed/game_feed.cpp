#include "feed/game_feed.h"

#include "base/number.h"
#include "base/run_time_error.h"
#include "base/translate.h"
#include "engine/arguments.h"
#include "form/follow.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// The digits of a clock with the colon put in: 958 is "9:58", 5 is "0:05".
QString clockText(qint32 digits) {
    QString text = QString::number(qAbs(qint64{digits})).rightJustified(3, u'0');
    text.insert(text.size() - 2, u':');
    return digits < 0 ? u'-' + text : text;
}

// An empty box means 0.
qint32 thresholdOf(const QString& text) {
    return wholeNumber32(QString(u'0' + text));
}

bool isThreshold(const QString& text) {
    try {
        thresholdOf(text);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

}  // namespace

GameFeed::GameFeed(CardEngine& engine, UnattendedCards& cards)
    : QuietRules(engine.program().trap),
      engine_(engine),
      extraAfter_(engine.form().at(controls.chkEAFTER)),
      threshold_(engine.form().at(controls.txtEAFTER)),
      time_(engine.form().at(controls.lblTime)),
      extraTime_(engine.form().at(controls.lblETime)),
      cards_(cards) {
    follow(threshold_, {Control::Property::Text}, this, [this] {
        threshold_.setState(isThreshold(threshold_.text()) ? QString() : translate("feed", "not a number"));
    });
    connect(&cards, &UnattendedCards::mayBeginAgain, this, &GameFeed::cardMayRun);
}

GameFeed::Outcome GameFeed::handle(const QString& datagram) {
    if (datagram == u"pause") return Outcome::Pause;
    const bool done = quietly(u"wsT_DataArrival"_s, [&] { apply(datagram); });
    return done ? Outcome::Clock : Outcome::Refused;
}

void GameFeed::apply(const QString& datagram) {
    VariableStore& variables = engine_.state().variables;
    const Pieces fields(datagram, u't');
    const qint32 received = wholeNumber32(fields[1].toString().remove(u':'));
    qint32 game = received;
    qint32 extra = 0;
    QString extraText = clockText(0);
    if (!extraAfter_.checked()) {
        extraText = u" "_s;
        variables.SetVar(u"@SHOWEXTRATIME", 0);
        variables.SetVar(u"@EXTRATIMEONAIR", 0);
    } else {
        const qint32 threshold = thresholdOf(threshold_.text());
        if (game == threshold) {
            variables.SetVar(u"@SHOWEXTRATIME", 1);
        } else if (game < threshold) {
            variables.SetVar(u"@SHOWEXTRATIME", 0);
            variables.SetVar(u"@EXTRATIMEONAIR", 0);
        } else {
            // Digits are subtracted, not seconds, and a feed that skips the threshold leaves @SHOWEXTRATIME: meant.
            extra = game - threshold;
            extraText = clockText(extra);
            game = threshold;
        }
    }
    const QString gameText = clockText(game);
    variables.SetVar(u"@FULLTIMER", clockText(received));
    variables.SetVar(u"@TIMEREXTRA", extraText);
    variables.SetVar(u"@TIMEREXTRANUMBER", extra);
    variables.SetVar(u"@TIMER", gameText);
    variables.SetVar(u"@TIMERNUMBER", game);
    time_.setText(gameText);
    extraTime_.setText(extraText);
}

void GameFeed::runTimeCard() {
    const CardSwitches& switches = engine_.state().switches;
    if (!switches.IsTimeCard) return;
    // By value: the card may arm another one.
    const QString card = switches.AutoTimeCard;
    cards_.run(card, Asker::Kind::TimeCard);
}

}  // namespace zelvor
