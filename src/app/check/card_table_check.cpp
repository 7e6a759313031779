#include "app_check/card_table_check.h"

#include <algorithm>

#include "base/run_time_error.h"
#include "engine/card_table_reader.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

class CardTableCheck {
 public:
    CardTableCheck(const QString& path, PackFiles& files, Findings& findings)
        : path_(path), files_(files), findings_(findings), lines_(files.lines(path)) {}

    std::vector<NamePlace> check() {
        for (qsizetype at = 0; at < lines_.size();) {
            if (isCardTableKeyword(lines_[at])) {
                at += checkEntry(at);
                continue;
            }
            const QString line = lines_[at].trimmed();
            if (!line.isEmpty() && !line.startsWith(u'#')) {
                findings_.warning(place(at), u"the line belongs to no set and is not read"_s);
            }
            ++at;
        }
        return cards_;
    }

 private:
    [[nodiscard]] Place place(qsizetype index) const { return files_.place(path_, static_cast<int>(index) + 1); }

    // Checks what the keyword line at that index begins; gives the number of its lines.
    qsizetype checkEntry(qsizetype at) {
        const bool isSet = lines_[at].startsWith(u"SETNO:");
        const qsizetype cards = isSet ? cardsBehind(at) : 0;
        QStringList entry = lines_.mid(at, 1 + cards);
        if (isSet && cards < CardTable::kCards) {
            findings_.error(place(at), u"the set has %1 cards instead of %2"_s.arg(cards).arg(CardTable::kCards));
            // The cards that are there are checked all the same.
            entry.resize(1 + CardTable::kCards);
        }
        CardTable table;
        int lineNo = 0;
        try {
            readCardTable(entry, table, lineNo);
        } catch (const RunTimeError& error) {
            findings_.error(place(at + lineNo - 1), faultText(entry[0], error, lineNo > 1));
        }
        checkCards(table, at);
        return 1 + cards;
    }

    // The card lines behind a SETNO, up to the next keyword.
    [[nodiscard]] qsizetype cardsBehind(qsizetype set) const {
        qsizetype cards = 0;
        while (cards < CardTable::kCards && set + cards + 1 < lines_.size() &&
               !isCardTableKeyword(lines_[set + cards + 1])) {
            ++cards;
        }
        return cards;
    }

    // keywordLine: the entry's first; isCard: the fault is in a card line below it.
    static QString faultText(const QString& keywordLine, const RunTimeError& error, bool isCard) {
        if (isCard) return u"a card needs caption,script"_s;
        QString form = error.text();
        if (keywordLine.startsWith(u"FKEYS:")) form += u": entries are n|title|script, n from 0 to 12"_s;
        if (keywordLine.startsWith(u"TIMEDCARD:")) form += u": entries are card|tenths of a second"_s;
        if (keywordLine.startsWith(u"SETNO:")) form += u": set,title, the set from 0 to 5"_s;
        return form;
    }

    void checkCards(const CardTable& table, qsizetype at) {
        for (const FunctionKey& key : table.functionKeys) checkCard(key.script, at);
        for (const TimedCard& timed : table.timedCards) {
            checkCard(timed.card, at);
            if (timed.interval <= 0) {
                findings_.warning(
                    place(at),
                    u"the timed card %1 never fires: its interval is %2"_s.arg(timed.card).arg(timed.interval));
            }
        }
        checkCard(table.clearCard, at);
        for (const CardTable::Set& set : table.sets) {
            for (size_t row = 1; row < set.size(); ++row) checkCard(set[row].script, at + static_cast<qsizetype>(row));
        }
    }

    void checkCard(const QString& card, qsizetype at) {
        if (card.isEmpty()) return;
        cards_.push_back({card, place(at)});
        if (!files_.cardExists(card)) {
            findings_.error(place(at), u"the card %1 does not exist"_s.arg(card));
        }
    }

    QString path_;
    PackFiles& files_;
    Findings& findings_;
    const QStringList& lines_;
    std::vector<NamePlace> cards_;
};

}  // namespace

std::vector<NamePlace> checkCardTable(PackFiles& files, Findings& findings) {
    const QString path = files.path(u"CARDS.TXT");
    try {
        return CardTableCheck(path, files, findings).check();
    } catch (const RunTimeError& error) {
        findings.error(files.place(path), error.text());
        return {};
    }
}

}  // namespace zelvor
