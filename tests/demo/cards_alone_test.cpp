// Every card of the demo fired alone from the terminal tool at a rehearsal server: nothing that an earlier card has set
// is needed, and the server refuses nothing.

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "app_check/check_command.h"
#include "app_run/run_command.h"
#include "demo_folder.h"
#include "rehearsal/amcp_server.h"
#include "support/told.h"

using namespace Qt::StringLiterals;

namespace zelvor {
namespace {

class CardsAlone : public testing::TestWithParam<const char*> {
 protected:
    void SetUp() override {
        ASSERT_TRUE(folder_.isMade());
        ASSERT_TRUE(server_.listen(QHostAddress::LocalHost, 0));
        QObject::connect(&journal_, &rehearsal::Journal::added, &journal_, [this](const auto& line) {
            if (line.kind == rehearsal::Journal::Kind::Sent) replies_ += line.text;
        });
    }

    // Fires the card with its pick lists answered.
    test::Told fire(const QString& card, const QStringList& more = {}) {
        QStringList arguments{u"--app-folder"_s, folder_.path(), u"--language"_s, pack_};
        for (const QString& line : folder_.script(pack_, card).split(u'\n')) {
            if (line.startsWith(u"ASKFIELD~"_s)) arguments += {u"--answer"_s, test::kChoices[line.mid(9).toInt()]};
        }
        return {runCard, arguments + more + QStringList{card}};
    }

    const QString pack_ = QString::fromLatin1(GetParam());
    test::DemoFolder folder_;
    rehearsal::Stage stage_{2};
    rehearsal::TemplateFolder templates_{test::demoPath(u"templates"_s)};
    rehearsal::AmcpInterpreter interpreter_{stage_, templates_};
    rehearsal::Journal journal_;
    rehearsal::AmcpServer server_{interpreter_, journal_};
    QStringList replies_;
};

TEST_P(CardsAlone, RunFromTheTerminal) {
    for (const QString& card : folder_.scripts(pack_)) {
        stage_.clearChannel(1);
        replies_.clear();
        const test::Told told = fire(card, {u"--main"_s, server_.address()});
        EXPECT_EQ(u"0"_s, QString::number(told.status) + told.err) << qPrintable(card);
        EXPECT_FALSE(told.out.contains(u"NO DATA"_s)) << qPrintable(card);
        EXPECT_EQ(told.out.count(u"main > "_s), replies_.size()) << qPrintable(card);
        for (const QString& reply : replies_)
            EXPECT_TRUE(reply.startsWith(u"202"_s)) << qPrintable(card + u' ' + reply);
    }
}

TEST_P(CardsAlone, EndWithTheStatusOfWhatWentWrong) {
    const std::pair<QByteArray, RunStatus> cases[] = {
        {"CSPSEND~CLEAR 1\n", RunStatus::Ran},
        {"CSPSEND~NONSENSE\nCSPSEND~CLEAR 1\n", RunStatus::NotReached},
        {"SQL~select nothing\n", RunStatus::Failed},
        {"CSPSEND~NONSENSE\nSQL~select nothing\n", RunStatus::Failed},
    };
    for (const auto& [lines, status] : cases) {
        QFile card(folder_.file(pack_, u"tried.csp"_s));
        ASSERT_TRUE(card.open(QIODevice::WriteOnly) && card.write(lines) > 0);
        card.close();
        const test::Told told = fire(u"tried.csp"_s, {u"--main"_s, server_.address()});
        EXPECT_EQ(static_cast<int>(status), told.status) << lines.data();
        EXPECT_EQ(lines.contains("NONSENSE"), told.err.contains(u"zelvor run: main: 400 ERROR"_s))
            << qPrintable(told.err);
    }
}

TEST_P(CardsAlone, MissWhatTheCheckerSaysIsMissing) {
    // Pick lists 5 and 6, an include, and a card of the table.
    QFile asks(folder_.file(pack_, u"ASKFIELDS.TXT"_s));
    ASSERT_TRUE(asks.open(QIODevice::ReadWrite));
    const QList<QByteArray> fields = asks.readAll().split('%');
    ASSERT_EQ(fields.size(), 7);
    ASSERT_TRUE(asks.resize(0) && asks.seek(0) && asks.write(fields.first(5).join('%')) > 0);
    asks.close();
    ASSERT_TRUE(QFile::remove(folder_.file(pack_, u"player_fields.inc"_s)));
    ASSERT_TRUE(QFile::remove(folder_.file(pack_, u"timeout.csp"_s)));

    const QString found = test::Told(runCheck, {u"--app-folder"_s, folder_.path(), pack_}).out;
    static const QRegularExpression kCard(
        u"card (\\S+) does not exist|(\\w+\\.csp):\\d+: error: .*"
        "(the include \\S+ does not exist|has no field)"_s);
    QSet<QString> named;
    for (auto matches = kCard.globalMatch(found); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        named.insert(match.captured(1) + match.captured(2));
    }
    EXPECT_EQ((QSet<QString>{u"timeout.csp"_s, u"player.csp"_s, u"player_next.csp"_s, u"duel.csp"_s}), named)
        << qPrintable(found);

    QSet<QString> failing;
    for (const QString& card : folder_.scripts(pack_) + QStringList{u"timeout.csp"_s}) {
        if (fire(card).status != 0) failing.insert(card);
    }
    EXPECT_EQ(named, failing) << qPrintable(QStringList(failing.values()).join(u' '));
}

INSTANTIATE_TEST_SUITE_P(Packs, CardsAlone, testing::Values("EN", "GR"),
                         [](const auto& pack) { return std::string(pack.param); });

}  // namespace
}  // namespace zelvor
