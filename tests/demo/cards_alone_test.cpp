// Every card of the demo fired alone from the terminal tool at a rehearsal server: nothing that an earlier card has set
// is needed, and the server refuses nothing.

#include <gtest/gtest.h>

#include "app_run/run_command.h"
#include "demo_folder.h"
#include "rehearsal/amcp_server.h"

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

    test::DemoFolder folder_;
    rehearsal::Stage stage_{2};
    rehearsal::TemplateFolder templates_{test::demoPath(u"templates"_s)};
    rehearsal::AmcpInterpreter interpreter_{stage_, templates_};
    rehearsal::Journal journal_;
    rehearsal::AmcpServer server_{interpreter_, journal_};
    QStringList replies_;
};

TEST_P(CardsAlone, RunFromTheTerminal) {
    const QString pack = QString::fromLatin1(GetParam());
    for (const QString& card : folder_.scripts(pack)) {
        QStringList arguments{u"--app-folder"_s, folder_.path(), u"--language"_s, pack, u"--main"_s, server_.address()};
        for (const QString& line : folder_.script(pack, card).split(u'\n')) {
            if (line.startsWith(u"ASKFIELD~"_s)) arguments += {u"--answer"_s, test::kChoices[line.mid(9).toInt()]};
        }
        stage_.clearChannel(1);
        replies_.clear();
        QString output;
        QString errors;
        QTextStream out(&output);
        QTextStream err(&errors);
        EXPECT_EQ(RunStatus::Ran, runCard(arguments + QStringList{card}, out, err)) << qPrintable(card);
        EXPECT_EQ("", errors.toStdString()) << qPrintable(card);
        EXPECT_FALSE(output.contains(u"NO DATA"_s)) << qPrintable(card);
        EXPECT_EQ(output.count(u"main > "_s), replies_.size()) << qPrintable(card);
        for (const QString& reply : replies_)
            EXPECT_TRUE(reply.startsWith(u"202"_s)) << qPrintable(card + u' ' + reply);
    }
}

INSTANTIATE_TEST_SUITE_P(Packs, CardsAlone, testing::Values("EN", "GR"),
                         [](const auto& pack) { return std::string(pack.param); });

}  // namespace
}  // namespace zelvor
