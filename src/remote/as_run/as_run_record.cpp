#include "as_run/as_run_record.h"

#include "engine/on_air.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kQuietInterval = 60'000;  // milliseconds

// With the time zone: "2026-11-21T20:15:03.123+02:00".
QString momentText(const QDateTime& moment) {
    return moment.toOffsetFromUtc(moment.offsetFromUtc()).toString(Qt::ISODateWithMs);
}

QString whoAsked(const Asker& asker) {
    switch (asker.kind) {
        case Asker::Kind::StartUp:
            return u"start"_s;
        case Asker::Kind::TimedCard:
            return u"timer"_s;
        case Asker::Kind::ClockCard:
            return u"clock"_s;
        case Asker::Kind::TimeCard:
            return u"feed"_s;
        case Asker::Kind::Operator:
            break;
    }
    if (!asker.presser.from.isEmpty()) return u"remote"_s;
    return asker.presser.by.isEmpty() ? u"menu"_s : asker.presser.by;
}

}  // namespace

AsRunRecord::AsRunRecord(CardEngine& engine, const GraphicsLinks& links, IsUsed isUsed, AsRunFile& file)
    : engine_(engine), isUsed_(std::move(isUsed)), file_(file) {
    constexpr int kBase = 36;
    const QDateTime now = engine.ports().clock.now();
    console_ = QString::number(now.toMSecsSinceEpoch(), kBase) + u'.';
    quietTimer_.setSingleShot(true);
    quietTimer_.setInterval(kQuietInterval);
    connect(&quietTimer_, &QTimer::timeout, this, &AsRunRecord::writeQuiet);
    connect(&engine.runs(), &CardRuns::begun, this, &AsRunRecord::begin);
    connect(&engine.runs(), &CardRuns::ended, this, &AsRunRecord::end);
    connect(&engine.program().questions, &Questions::answered, this, &AsRunRecord::addAnswer);
    connect(&links, &GraphicsLinks::lineSent, this,
            [this](LinkId link, const ReplyMatcher::SentLine& sent) { addLine(link, sent, false); });
    connect(&links, &GraphicsLinks::lineLost, this,
            [this](LinkId link, const ReplyMatcher::SentLine& sent) { addLine(link, sent, true); });
    connect(&links, &GraphicsLinks::lineAnswered, this, [this](LinkId link, const ReplyMatcher::Answer& answer) {
        addReply(link, answer.to, answer.reply);
        if (answer.refused()) graphics_.refused(link, answer.to.line, answer.to.asker.run);
    });
}

AsRunRecord::~AsRunRecord() {
    writeQuiet();
}

QString AsRunRecord::now() const {
    return momentText(engine_.ports().clock.now());
}

void AsRunRecord::write(QJsonObject happening, const QString& event, qint64 run) {
    happening.insert(u"event"_s, event);
    if (!happening.contains("at"_L1)) happening.insert(u"at"_s, now());
    if (run != 0) happening.insert(u"run"_s, QString(console_ + QString::number(run)));
    file_.append(happening);
}

void AsRunRecord::begin(const Asker& asker) {
    ShowState& state = engine_.state();
    QJsonObject fired{{u"by"_s, whoAsked(asker)},
                      {u"pack"_s, state.language()},
                      {u"script"_s, CardEngine::scriptName(asker.card)},
                      {u"caption"_s, captionOf(state, asker.card)}};
    if (!asker.presser.from.isEmpty()) fired.insert(u"from"_s, asker.presser.from);
    if (asker.place) {
        const int row = asker.place->index + 1;
        fired.insert(u"set"_s, asker.place->set);
        fired.insert(u"row"_s, row);
        fired.insert(u"caption"_s, state.cards.entry(asker.place->set, row).shownCaption());
    }
    if (asker.isAttended()) return write(fired, u"fired"_s, asker.run);
    fired.insert(u"at"_s, now());
    untold_[asker.run] = fired;
}

void AsRunRecord::tellOf(qint64 run) {
    if (const auto untold = untold_.extract(run)) write(untold.mapped(), u"fired"_s, run);
}

void AsRunRecord::countQuiet(const QJsonObject& fired, const QString& outcome) {
    Quiet& quiet = quiet_[fired["by"_L1].toString() + u' ' + fired["script"_L1].toString() + u' ' + outcome];
    if (++quiet.times > 1) return;
    quiet.card = fired;
    quiet.card.insert(u"outcome"_s, outcome);
    if (!quietTimer_.isActive()) quietTimer_.start();
}

void AsRunRecord::writeQuiet() {
    for (auto& [card, quiet] : std::exchange(quiet_, {})) {
        quiet.card.insert(u"times"_s, quiet.times);
        quiet.card.insert(u"until"_s, now());
        write(quiet.card, u"quiet"_s, 0);
    }
}

void AsRunRecord::end(const Asker& asker, RunOutcome outcome) {
    if (const auto untold = untold_.extract(asker.run)) return countQuiet(untold.mapped(), outcomeText(outcome));
    QJsonObject ran{{u"outcome"_s, outcomeText(outcome)}};
    const QString sponsor = engine_.state().variables.text(u"@SPONSOR");
    if (!sponsor.isEmpty()) ran.insert(u"sponsor"_s, sponsor);
    write(ran, u"ended"_s, asker.run);
}

void AsRunRecord::addAnswer(const Question& question, const QString& answer) {
    if (engine_.program().closing.hasBegun()) return;  // it has ended, and nobody has answered
    QJsonObject given{{u"question"_s, question.kind == Question::Kind::List ? question.title : question.text},
                      {u"answer"_s, answer}};
    const int choice = question.choice(answer);
    if (choice >= 0) given.insert(u"text"_s, question.choices[static_cast<size_t>(choice)].text);
    tellOf(question.asker.run);
    write(given, u"answer"_s, question.asker.run);
}

void AsRunRecord::addLine(LinkId link, const ReplyMatcher::SentLine& sent, bool lost) {
    if (lost && !isUsed_(link)) return;
    // One that the server did not take before it went is in the record already.
    if (lost && sent.number <= lastLine_) return addReply(link, sent, u"not taken"_s);
    lastLine_ = sent.number;
    tellOf(sent.asker.run);
    QJsonObject line{{u"link"_s, link == LinkId::Main ? u"main"_s : u"remote"_s},
                     {u"line"_s, sent.line},
                     {u"number"_s, sent.number}};
    if (!sent.asker.at.card.isEmpty()) line.insert(u"in"_s, sent.asker.at.text());
    write(line, lost ? u"not sent"_s : u"sent"_s, sent.asker.run);
    if (lost) return;
    for (const StandingGraphics::Gone& gone : graphics_.sent(link, sent.line, sent.asker.run, sent.at))
        write({{u"stood"_s, gone.stood}}, u"left"_s, gone.run);
}

void AsRunRecord::addReply(LinkId link, const ReplyMatcher::SentLine& sent, const QString& reply) {
    write(
        {{u"link"_s, link == LinkId::Main ? u"main"_s : u"remote"_s}, {u"number"_s, sent.number}, {u"reply"_s, reply}},
        u"reply"_s, sent.asker.run);
}

}  // namespace zelvor
