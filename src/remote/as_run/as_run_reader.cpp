#include "as_run/as_run_reader.h"

#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

AsRunCard begunCard(const QJsonObject& fired) {
    AsRunCard card;
    card.run = fired["run"_L1].toString();
    card.at = QDateTime::fromString(fired["at"_L1].toString(), Qt::ISODateWithMs);
    card.by = fired["by"_L1].toString();
    card.from = fired["from"_L1].toString();
    card.pack = fired["pack"_L1].toString();
    card.set = fired["set"_L1].toInt();
    card.row = fired["row"_L1].toInt();
    card.caption = fired["caption"_L1].toString();
    card.script = fired["script"_L1].toString();
    card.outcome = fired["outcome"_L1].toString();
    card.times = fired["times"_L1].toInt(1);
    return card;
}

void addTo(AsRunCard& card, const QString& event, const QJsonObject& happening) {
    const qint64 number = happening["number"_L1].toInteger();
    if (event == u"sent" || event == u"not sent") {
        card.lines.push_back({number,
                              happening["link"_L1].toString(),
                              happening["line"_L1].toString(),
                              happening["in"_L1].toString(),
                              {},
                              event == u"sent"});
    } else if (event == u"reply") {
        const auto line = std::ranges::find(card.lines, number, &AsRunCard::Line::number);
        if (line == card.lines.end()) return;
        line->reply = happening["reply"_L1].toString();
        if (line->reply == u"not taken") line->sent = false;
    } else if (event == u"answer") {
        card.answers += happening["text"_L1].toString(happening["answer"_L1].toString());
    } else if (event == u"ended") {
        card.outcome = happening["outcome"_L1].toString();
        card.sponsor = happening["sponsor"_L1].toString();
    } else if (event == u"left") {
        card.stood = happening["stood"_L1].toInteger();
    }
}

}  // namespace

bool AsRunCard::refused() const {
    return std::ranges::any_of(lines, &Line::refused);
}

std::vector<AsRunCard> readAsRun(QIODevice& record) {
    std::vector<AsRunCard> cards;
    QHash<QString, size_t> places;
    while (!record.atEnd()) {
        const QJsonObject happening = QJsonDocument::fromJson(record.readLine()).object();
        const QString event = happening["event"_L1].toString();
        const QString run = happening["run"_L1].toString();
        if (event == u"fired" || event == u"quiet") {
            if (!run.isEmpty()) places.insert(run, cards.size());
            cards.push_back(begunCard(happening));
        } else if (const auto place = places.constFind(run); place != places.constEnd()) {
            addTo(cards[*place], event, happening);
        }
    }
    std::ranges::stable_sort(cards, {}, &AsRunCard::at);
    return cards;
}

}  // namespace zelvor
