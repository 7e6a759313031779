#include "engine/card_table_reader.h"

#include <QHash>

#include "base/number.h"
#include "engine/arguments.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

class CardTableReader {
 public:
    CardTableReader(const QStringList& lines, CardTable& table, int& lineNo)
        : lines_(lines), table_(table), lineNo_(lineNo) {}

    void read() {
        while (lineNo_ < lines_.size()) {
            const Pieces fields(lines_[lineNo_++], u':');
            if (fields.count() < 2) continue;
            const auto reader = kReaders.constFind(fields[0].toString());
            if (reader != kReaders.constEnd()) (this->*reader.value())(fields[1]);
        }
    }

    static bool knows(const QString& keyword) { return kReaders.contains(keyword); }

 private:
    using Reader = void (CardTableReader::*)(QStringView value);
    static const QHash<QString, Reader> kReaders;

    void readFunctionKeys(QStringView value) {
        const Pieces keys(value, u',');
        for (int i = 0; i < keys.count(); ++i) {
            const Pieces parts(keys[i], u'|');
            table_.functionKey(wholeNumber16(parts[0])) = {parts[1].toString(), parts[2].toString()};
        }
    }

    void readTimedCards(QStringView value) {
        const Pieces cards(value, u',');
        for (int i = 0; i < cards.count(); ++i) {
            const Pieces parts(cards[i], u'|');
            table_.timedCards.push_back({parts[0].toString(), wholeNumber16(parts[1])});
        }
    }

    void readClearCard(QStringView value) { table_.clearCard = value.toString(); }
    void readShowPreview(QStringView value) { table_.showPreview = !saysNo(value); }
    void readShowControls(QStringView value) { table_.showControls = !saysNo(value); }
    static bool saysNo(QStringView value) { return value.compare(u"NO", Qt::CaseInsensitive) == 0; }

    void readSet(QStringView value) {
        const Pieces parts(value, u',');
        const int set = wholeNumber16(parts[0]);
        table_.entry(set, 0).caption = parts[1].toString();
        for (int row = 1; row <= CardTable::kCards; ++row) {
            if (lineNo_ == lines_.size()) throw RunTimeError(ErrorNumber::InputPastEndOfFile);
            readCard(lines_[lineNo_++], table_.entry(set, row));
        }
    }

    static void readCard(const QString& line, CardEntry& entry) {
        if (line.trimmed().isEmpty()) return;  // a place without a card
        const Pieces fields(line, u',');
        entry.caption = fields[0].toString();
        entry.script = fields[1].toString();
        entry.flag = fields.count() == 3 && fields[2] == u"1";
    }

    const QStringList& lines_;
    CardTable& table_;
    int& lineNo_;
};

const QHash<QString, CardTableReader::Reader> CardTableReader::kReaders{
    {u"FKEYS"_s, &CardTableReader::readFunctionKeys},        {u"TIMEDCARD"_s, &CardTableReader::readTimedCards},
    {u"CLEAR"_s, &CardTableReader::readClearCard},           {u"SHOWPREVIEW"_s, &CardTableReader::readShowPreview},
    {u"SHOWCONTROLS"_s, &CardTableReader::readShowControls}, {u"SETNO"_s, &CardTableReader::readSet},
};

}  // namespace

void readCardTable(const QStringList& lines, CardTable& table, int& lineNo) {
    CardTableReader(lines, table, lineNo).read();
}

bool isCardTableKeyword(const QString& line) {
    const qsizetype colon = line.indexOf(u':');
    return colon > 0 && CardTableReader::knows(line.left(colon));
}

}  // namespace zelvor
