#pragma once

#include <QObject>
#include <QString>

#include "base/program.h"
#include "engine/ports.h"
#include "form/form_model.h"
#include "link/caspar_link.h"
#include "link/caspar_log.h"
#include "link/line_list.h"
#include "link/reply_matcher.h"

namespace zelvor {

// The main and the remote link with what is kept of their traffic: the socket history, the responses of the main
// server, the log file. The one way to put a line on air. Connecting is the operator's (LinkConsole) or the
// program's, through link().
class GraphicsLinks : public QObject, public Graphics, public GraphicsNotes {
    Q_OBJECT

 public:
    // Turns of the event loop before a line that holds "PLAY".
    static constexpr int kTurnsBeforePlay = 50000;
    // Behind a busy feed the turns alone would last for many seconds.
    static constexpr qint64 kLongestPauseBeforePlay = 250;  // milliseconds

    // Logging is on while the form's chkLOGFILE is checked; startLog() and stopLog() open and close the file.
    GraphicsLinks(FormModel& form, Clock& clock, Program& program);

    // Line breaks in the command become blanks. Neither this nor the following raise errors.
    void sendLine(LinkId link, const QString& command, const Asker& asker) override;
    [[nodiscard]] int state(LinkId link) const override;
    [[nodiscard]] bool logging() const override;
    void writeLog(const QString& line) override;
    void appendHistory(std::initializer_list<QStringView> pieces) override;
    void clearHistory() override;
    void showLastTemplate(const QString& xml) override;

    // Gives both links a second at most to hand over what they have not sent yet: the program is ending.
    void finishSending();

    // Throws 61, 70, 75 or 76 when the log file cannot be opened; lblLOG says so as long as logging is on.
    void startLog();
    void stopLog();

    [[nodiscard]] CasparLink& link(LinkId link) { return link == LinkId::Main ? main_ : remote_; }
    [[nodiscard]] bool awaitsReply(LinkId link) const { return !repliesOf(link).matcher.awaited().empty(); }
    // Milliseconds for which the server has left what it was sent without a reply; 0 when nothing is waited for.
    [[nodiscard]] qint64 unansweredFor(LinkId link) const;
    // lstGASPARHISTORY: oldest line on top.
    [[nodiscard]] LineList& history() { return history_; }
    // lstGASPARRESPONSE: newest line on top.
    [[nodiscard]] LineList& responses() { return responses_; }

 Q_SIGNALS:
    // A line was put on a link, as it went out, without its line end.
    void lineSent(zelvor::LinkId link, const zelvor::ReplyMatcher::SentLine& line);
    // A line was not put on a link, or had not been taken by the server when the link failed.
    void lineLost(zelvor::LinkId link, const zelvor::ReplyMatcher::SentLine& line);
    // The server has answered a line.
    void lineAnswered(zelvor::LinkId link, const zelvor::ReplyMatcher::Answer& answer);

 private:
    // What is known of the replies of one server.
    struct Replies {
        ReplyMatcher matcher;
        qint64 lastHeard = 0;    // steady milliseconds
        bool isRefusal = false;  // one of the answers that have just arrived
    };

    void sendNow(LinkId link, const QString& line, const Asker& asker);
    void matchReplies(LinkId link);
    [[nodiscard]] const Replies& repliesOf(LinkId link) const {
        return link == LinkId::Main ? mainReplies_ : remoteReplies_;
    }
    [[nodiscard]] Replies& replies(LinkId link) { return link == LinkId::Main ? mainReplies_ : remoteReplies_; }
    void showLogWritten(bool written);
    void addResponse(const QString& text);
    // "hh:mm:ss", made once a second: a card adds dozens of lines to the history.
    const QString& timeOfDay();

    Clock& clock_;
    ErrorTrap& trap_;
    const Clearing& clearing_;
    Control& logSwitch_;
    Control& logStatus_;
    Control& lastTemplate_;
    CasparLog log_;
    LineList history_{LineList::Newest::Last};
    LineList responses_{LineList::Newest::First};
    CasparLink main_;
    CasparLink remote_;
    Replies mainReplies_;
    Replies remoteReplies_;
    qint64 lastLine_ = 0;
    qint64 shownSecond_ = -1;
    QString shownTime_;
};

}  // namespace zelvor
