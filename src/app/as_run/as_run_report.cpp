#include "app_as_run/as_run_report.h"

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

QString stoodText(qint64 milliseconds) {
    const qint64 seconds = milliseconds / 1000;
    return u"%1:%2.%3"_s.arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0')).arg(milliseconds % 1000 / 100);
}

QString askedText(const AsRunCard& card) {
    return card.from.isEmpty() ? card.by : card.by + u' ' + card.from;
}

// What is to be known beside the outcome.
QString endText(const AsRunCard& card) {
    QStringList words{card.outcome.isEmpty() ? u"broken off"_s : card.outcome};
    if (card.times > 1) words += u"%1 times, nothing sent"_s.arg(card.times);
    if (card.refused()) words += u"REFUSED"_s;
    if (card.stood) words += u"stood "_s + stoodText(*card.stood);
    if (!card.answers.isEmpty()) words += u"answers "_s + card.answers.join(u" | "_s);
    if (!card.sponsor.isEmpty()) words += u"sponsor "_s + card.sponsor;
    return words.join(u", "_s);
}

// Nothing in it begins a formula in a spreadsheet.
QString csvField(QString text) {
    constexpr QStringView kFormula = u"=+-@\t\r";
    if (!text.isEmpty() && kFormula.contains(text.front())) text.prepend(u'\'');
    const bool isPlain = std::ranges::none_of(text, [](QChar c) { return QStringView(u",\"\r\n").contains(c); });
    return isPlain ? text : u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

struct Sum {
    int times = 0;
    int refused = 0;
    qint64 stood = 0;
};

void printSums(QTextStream& out, const QString& title, const std::map<QString, Sum>& sums) {
    if (sums.empty()) return;
    out << '\n' << title << '\n';
    for (const auto& [name, sum] : sums) {
        out << "  " << name.leftJustified(36) << QString::number(sum.times).rightJustified(5) << " x  "
            << stoodText(sum.stood).rightJustified(9);
        if (sum.refused > 0) out << "  " << sum.refused << " refused";
        out << '\n';
    }
}

}  // namespace

QString asRunLines(const AsRunCard& card) {
    QStringList lines;
    for (const AsRunCard::Line& line : card.lines) {
        const QString reply = line.reply.isEmpty() ? (line.sent ? u"no reply"_s : u"not sent"_s) : line.reply;
        lines += line.link + u" > "_s + line.text + u" = "_s + reply;
    }
    return lines.join(u'\n');
}

void printAsRun(QTextStream& out, const std::vector<AsRunCard>& cards, bool lines) {
    for (const AsRunCard& card : cards) {
        const QString place = card.row > 0 ? u"%1/%2"_s.arg(card.set).arg(card.row) : QString();
        out << card.at.toString(u"HH:mm:ss.zzz"_s) << "  " << card.pack.leftJustified(4) << place.leftJustified(5)
            << card.caption.leftJustified(28) << ' ' << card.script.leftJustified(20) << ' '
            << askedText(card).leftJustified(10) << ' ' << endText(card) << '\n';
        if (!lines) continue;
        const QString below = asRunLines(card);
        for (const QStringView line : QStringView(below).split(u'\n', Qt::SkipEmptyParts))
            out << "    " << line << '\n';
    }
}

void printAsRunCsv(QTextStream& out, const std::vector<AsRunCard>& cards) {
    out << "at,pack,set,row,caption,script,by,from,answers,outcome,refused,stood_ms,sponsor,times\n";
    for (const AsRunCard& card : cards) {
        const QStringList fields{card.at.toString(Qt::ISODateWithMs),
                                 card.pack,
                                 card.row > 0 ? QString::number(card.set) : QString(),
                                 card.row > 0 ? QString::number(card.row) : QString(),
                                 card.caption,
                                 card.script,
                                 card.by,
                                 card.from,
                                 card.answers.join(u" | "_s),
                                 card.outcome,
                                 card.refused() ? u"1"_s : u"0"_s,
                                 card.stood ? QString::number(*card.stood) : QString(),
                                 card.sponsor,
                                 QString::number(card.times)};
        QStringList written;
        std::ranges::transform(fields, std::back_inserter(written), csvField);
        out << written.join(u',') << '\n';
    }
}

void printAsRunSums(QTextStream& out, const std::vector<AsRunCard>& cards) {
    std::map<QString, Sum> byCard;
    std::map<QString, Sum> bySponsor;
    const auto add = [](Sum& sum, const AsRunCard& card) {
        sum.times += card.times;
        sum.refused += card.refused() ? 1 : 0;
        sum.stood += card.stood.value_or(0);
    };
    for (const AsRunCard& card : cards) {
        add(byCard[card.caption], card);
        if (!card.sponsor.isEmpty()) add(bySponsor[card.sponsor], card);
    }
    printSums(out, u"By card"_s, byCard);
    printSums(out, u"By sponsor"_s, bySponsor);
}

}  // namespace zelvor
