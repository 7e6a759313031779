#pragma once

#include <QJsonObject>
#include <QObject>
#include <QTimer>
#include <functional>
#include <map>

#include "as_run/as_run_file.h"
#include "as_run/standing_graphics.h"
#include "engine/card_engine.h"
#include "link/graphics_links.h"

namespace zelvor {

// Writes down what was on air, as it happens: each card fired and by whom, its answers, its lines with their replies,
// how it ended, and when its graphics left. Every happening is a line of its own, so that nothing is lost with the
// program. Of a card that runs by itself its first line tells; runs that put nothing on air are counted, a line a
// minute.
class AsRunRecord : public QObject {
    Q_OBJECT

 public:
    // Whether anybody wants that link: what is not sent on one of no use is not missed.
    using IsUsed = std::function<bool(LinkId link)>;

    // All must outlive the record.
    AsRunRecord(CardEngine& engine, const GraphicsLinks& links, IsUsed isUsed, AsRunFile& file);
    AsRunRecord(const AsRunRecord&) = delete;
    AsRunRecord& operator=(const AsRunRecord&) = delete;
    ~AsRunRecord() override;

 private:
    struct Quiet {
        QJsonObject card;  // as its first run was fired
        int times = 0;
    };
    [[nodiscard]] QString now() const;
    void write(QJsonObject happening, const QString& event, qint64 run);
    void begin(const Asker& asker);
    void end(const Asker& asker, RunOutcome outcome);
    // The run is to be told of after all.
    void tellOf(qint64 run);
    void countQuiet(const QJsonObject& fired, const QString& outcome);
    void writeQuiet();
    void addAnswer(const Question& question, const QString& answer);
    void addLine(LinkId link, const ReplyMatcher::SentLine& sent, bool lost);
    void addReply(LinkId link, const ReplyMatcher::SentLine& sent, const QString& reply);

    CardEngine& engine_;
    IsUsed isUsed_;
    AsRunFile& file_;
    QString console_;  // begins the names of this console's runs
    StandingGraphics graphics_;
    qint64 lastLine_ = 0;                   // that is in the record
    std::map<qint64, QJsonObject> untold_;  // runs of cards that run by themselves, before their first line
    std::map<QString, Quiet> quiet_;        // by who fired the card, its script and outcome
    QTimer quietTimer_;
};

}  // namespace zelvor
