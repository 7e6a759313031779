#include "link/graphics_links.h"

#include <algorithm>

#include "base/translate.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Goes from "P" to "P": lines are thousands of characters long, where a search for a word costs ten times one for a
// character.
bool holdsPlay(QStringView line) {
    for (qsizetype at = line.indexOf(u'P'); at >= 0; at = line.indexOf(u'P', at + 1)) {
        if (line.mid(at).startsWith(u"PLAY")) return true;
    }
    return false;
}

}  // namespace

GraphicsLinks::GraphicsLinks(FormModel& form, Clock& clock, Program& program)
    : clock_(clock),
      trap_(program.trap),
      clearing_(program.clearing),
      logSwitch_(form.at(controls.chkLOGFILE)),
      logStatus_(form.at(controls.lblLOG)),
      lastTemplate_(form.at(controls.lblLASTXML)),
      log_(program.folder, program.files) {
    // Only the main server's replies are shown; the remote one's are meant to be ignored.
    connect(&main_, &CasparLink::received, this, &GraphicsLinks::addResponse);
    for (const LinkId id : {LinkId::Main, LinkId::Remote}) matchReplies(id);
}

void GraphicsLinks::matchReplies(LinkId id) {
    connect(&link(id), &CasparLink::arrived, this, [this, id](const QByteArray& bytes) {
        replies(id).lastHeard = clock_.steadyMilliseconds();
        const std::vector<ReplyMatcher::Answer> answers = replies(id).matcher.read(bytes);
        replies(id).isRefusal = std::ranges::any_of(answers, &ReplyMatcher::Answer::refused);
        for (const ReplyMatcher::Answer& answer : answers) Q_EMIT lineAnswered(id, answer);
    });
    connect(&link(id), &CasparLink::stateChanged, this, [this, id](LinkState state) {
        if (state == LinkState::Connected) return;
        const auto unanswered = replies(id).matcher.forget();
        // A server that has closed may have taken them all; one that does not react has not.
        if (state != LinkState::Error) return;
        for (const ReplyMatcher::SentLine& sent : unanswered) Q_EMIT lineLost(id, sent);
    });
}

qint64 GraphicsLinks::unansweredFor(LinkId link) const {
    if (!awaitsReply(link)) return 0;
    const Replies& replies = repliesOf(link);
    const qint64 since = std::max(replies.matcher.awaited().front().at, replies.lastHeard);
    return clock_.steadyMilliseconds() - since;
}

void GraphicsLinks::sendLine(LinkId link, const QString& command, const Asker& asker) {
    trap_.run({u"frmMAIN.sendLine"_s}, ErrorTrap::Tell::LogOnly, [&] { sendNow(link, oneLine(command), asker); });
}

void GraphicsLinks::sendNow(LinkId id, const QString& line, const Asker& asker) {
    CasparLink& target = link(id);
    const bool pauses = isSendable(target.state()) && holdsPlay(line);
    const int clearings = clearing_.count();
    if (pauses && !clock_.turnEvents(kTurnsBeforePlay, kLongestPauseBeforePlay)) return;
    if (clearing_.count() != clearings) return;

    // The pause may have seen the link go, and so may the sending itself.
    const ReplyMatcher::SentLine sent{line, asker, clock_.steadyMilliseconds(), ++lastLine_};
    if (isSendable(target.state())) {
        replies(id).matcher.sent(sent);
        target.send(line);
    } else {
        Q_EMIT lineLost(id, sent);
    }
    const QString mark = id == LinkId::Main ? QString() : u"REMOTE "_s;
    if (!isSendable(target.state())) {
        writeLog(mark + u"Connection Error. STATE:"_s + QString::number(state(id)));
        return;
    }
    if (id == LinkId::Main) appendHistory({u" > "_s, line});
    writeLog(mark.isEmpty() ? line : QString(mark + u"> "_s + line));
    Q_EMIT lineSent(id, sent);
}

int GraphicsLinks::state(LinkId link) const {
    return static_cast<int>((link == LinkId::Main ? main_ : remote_).state());
}

bool GraphicsLinks::logging() const {
    return logSwitch_.checked();
}

void GraphicsLinks::writeLog(const QString& line) {
    if (!logging()) return;
    const bool written = trap_.run({u"frmMAIN.writeLog"_s}, ErrorTrap::Tell::LogOnly, [&] { log_.write(line); });
    showLogWritten(written && log_.isOpen());
}

void GraphicsLinks::appendHistory(std::initializer_list<QStringView> pieces) {
    history_.add(timeOfDay(), pieces);
}

void GraphicsLinks::clearHistory() {
    history_.clear();
}

void GraphicsLinks::showLastTemplate(const QString& xml) {
    lastTemplate_.setText(xml);
}

void GraphicsLinks::finishSending() {
    const QDeadlineTimer deadline(std::chrono::seconds(1));
    main_.finishSending(deadline);
    remote_.finishSending(deadline);
}

void GraphicsLinks::startLog() {
    showLogWritten(false);
    log_.start(clock_.now());
    showLogWritten(true);
}

void GraphicsLinks::stopLog() {
    logStatus_.setText({});
    log_.stop(clock_.now());
}

// The box stays ticked whether the file can be written or not: the words beside it tell.
void GraphicsLinks::showLogWritten(bool written) {
    logStatus_.setText(written ? translate("link", "writing") : translate("link", "cannot be written"));
    logStatus_.setRole(written ? Control::Role::Plain : Control::Role::Bad);
}

void GraphicsLinks::addResponse(const QString& text) {
    const bool alarm = mainReplies_.isRefusal || tellsOfError(text);
    const QString& now = timeOfDay();
    responses_.add(now, {u" "_s, text}, alarm);
    history_.add(now, {u" < "_s, text}, alarm);
}

const QString& GraphicsLinks::timeOfDay() {
    const qint64 second = clock_.secondsSinceEpoch();
    if (second != shownSecond_) {
        shownSecond_ = second;
        shownTime_ = clock_.now().toString(u"hh:mm:ss"_s);
    }
    return shownTime_;
}

}  // namespace zelvor
