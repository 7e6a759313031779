#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "rehearsal/amcp_interpreter.h"
#include "rehearsal/amcp_tokenizer.h"
#include "support/cases.h"

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {
namespace {

TEST(Tokenizer, GroupsAndEscapesAsServersDo) {
    const std::vector<std::pair<QString, QStringList>> rows = {
        {u""_s, {}},
        {u"CG  1-20 CLEAR "_s, {u"CG"_s, u"1-20"_s, u"CLEAR"_s}},
        {u"a\tb"_s, {u"a\tb"_s}},
        {uR"(ADD "a b" 'c d')"_s, {u"ADD"_s, u"a b"_s, u"'c"_s, u"d'"_s}},
        {uR"(a "" b)"_s, {u"a"_s, u""_s, u"b"_s}},
        {uR"(a"b c"d)"_s, {u"a"_s, u"b c"_s, u"d"_s}},
        {uR"("<d v=\"J\\n\n\"/>")"_s, {u"<d v=\"J\\n\n\"/>"_s}},
        {uR"(c:\temp\\x\"y)"_s, {u"c:emp\\x\"y"_s}},
        {uR"("never closed b)"_s, {u"never closed b"_s}},
        {u"ends in \\"_s, {u"ends"_s, u"in"_s}},
        {u"f(1, (2 3)) \"(\" x"_s, {u"f(1, (2 3))"_s, u"("_s, u"x"_s}},
        {u"a) b"_s, {u"a)"_s, u"b"_s}},
        {u"Γιώργος \"Παπα δόπουλος\""_s, {u"Γιώργος"_s, u"Παπα δόπουλος"_s}},
    };
    for (const auto& [line, tokens] : rows) EXPECT_EQ(tokenize(line), tokens) << qPrintable(line);
}

class Protocol : public testing::Test {
 protected:
    void SetUp() override {
        for (const QString& name : {u"bug.html"_s, u"logo.png"_s}) {
            QFile file(dir_.filePath(name));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }

    QString answer(const QString& line) { return interpreter_.answer(line, client_); }
    QString answerOther(const QString& line) { return interpreter_.answer(line, other_); }
    void otherLeaves() { interpreter_.leave(other_); }
    const Source& foreground(int channel, int layer) const { return stage_.layers(channel).at(layer).foreground; }
    // The calls made to a layer's template, e.g. "update(<a/>) play()".
    QString calls(int channel, int layer) const {
        static const QStringList kNames = {u"update"_s, u"play"_s, u"stop"_s, u"next"_s, u"remove"_s, u"invoke"_s};
        QStringList made;
        for (const TemplateCall& call : foreground(channel, layer).history.calls())
            made.append(u"%1(%2)"_s.arg(kNames[static_cast<int>(call.function)], call.argument));
        return made.join(u' ');
    }

    Stage stage_{2, *videoModeNamed(u"720p5000")};

 private:
    QTemporaryDir dir_;
    TemplateFolder folder_{dir_.path()};
    AmcpInterpreter interpreter_{stage_, folder_};
    AmcpClient client_{.id = 1};
    AmcpClient other_{.id = 2};
};

// What a real server answered, all in one show. "..." stands for a text of that server's own.
TEST_F(Protocol, RepliesLikeTheRealServer) {
    QFile file(QStringLiteral(REPLIES));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    int compared = 0;
    while (!file.atEnd()) {
        const QString row = QString::fromUtf8(file.readLine()).remove(u'\n');
        if (row.startsWith(u'#')) continue;
        const QString line = row.section(u'\t', 0, 0);
        QString wanted = row.section(u'\t', 1).replace("\\r"_L1, "\r"_L1).replace("\\n"_L1, "\n"_L1);
        QString reply = answer(line);
        if (wanted.endsWith("..."_L1)) {
            wanted.chop(3);
            EXPECT_GT(reply.size(), wanted.size()) << qPrintable(line);
            reply.truncate(wanted.size());
        }
        EXPECT_EQ(reply.toStdString(), wanted.toStdString()) << qPrintable(line);
        ++compared;
    }
    EXPECT_EQ(compared, 140);
}

// One show in the order of the lines, each "LINE -> REPLY": what is answered depends on what came before it.
TEST_F(Protocol, AnswersAShow) {
    const auto expect = [this](const auto&... cases) {
        test::forCases(
            [this](const QString& line, const QString& reply) {
                EXPECT_EQ(answer(line).toStdString(), reply.toStdString() + "\r\n") << qPrintable(line);
            },
            cases...);
    };
    expect("ping a \"b c\" -> PONG a b c", "REQ abc CG 1-20 STOP 1 -> RES abc 403 CG STOP FAILED",
           "PLAY 1-10000 #FF0000 -> 202 PLAY OK",
           "INFO 1-20 -> 201 INFO OK\r\n<channel><format>720p5000</format><stage/></channel>");
    // Templates: nothing there yet, then one on air.
    expect("CG 1-20 ADD 1 ../bug 1 -> 404 CG ADD FAILED", "CG 1-20 ADD 1 bug 1 \"\" -> 403 CG ADD FAILED",
           "CG 1-20 ADD 1 bug 1 stored -> 404 CG ADD FAILED",
           "DATA STORE Names \"<a v=\\\"K\\\"/>\" -> 202 DATA STORE OK", "DATA LIST -> 200 DATA LIST OK\r\nNames\r\n",
           "CG 1-21 ADD 1 bug 1 names -> 202 CG OK", "CG 1-21 CLEAR -> 202 CG OK",
           "cg 1-20 add 1 \"BUG\" 1 \"<a v=\\\"J\\\"/>\" -> 202 CG OK",
           "CG 1-20 UPDATE 1 \"{\\\"a\\\":1}\" -> 202 CG OK", "CG 1-20 UPDATE 1 stored -> 404 CG UPDATE FAILED",
           "CG 1-20 NEXT 1 -> 202 CG OK", "CG 1-20 INVOKE 1 f -> 202 CG OK", "CG 1-20 STOP x -> 501 CG STOP FAILED",
           "CG 1-20 STOP 1 -> 202 CG OK", "CG 1-20 STOP 1 -> 202 CG OK", "CG 1-20 REMOVE 1 -> 202 CG OK",
           "CG 1-20 STOP 1 -> 403 CG STOP FAILED");
    // Layers.
    expect(
        "PLAY 1-20 -> 202 PLAY OK", "PLAY 1-20 missing -> 404 PLAY FAILED", "PLAY 1-20 #12345 -> 404 PLAY FAILED",
        "PLAY 1-20 #80FF0000 MIX 20 -> 202 PLAY OK", "CG 1-20 STOP 1 -> 403 CG STOP FAILED",
        "LOADBG 1-20 logo AUTO -> 202 LOADBG OK", "LOAD 2-1 [HTML] bug -> 202 LOAD OK", "PAUSE 1-20 -> 202 PAUSE OK",
        "INFO 1-20 -> 201 INFO "
        "OK\r\n<channel><format>720p5000</format><stage><layer><number>20</number><paused>true</"
        "paused><foreground><producer>color</producer><name>#FF000080</name></foreground><background><producer>image</"
        "producer><name>logo.png</name></background></layer></stage></channel>",
        "RESUME 1-20 -> 202 RESUME OK", "STOP 1-20 -> 202 STOP OK", "CLEAR 1-20 -> 202 CLEAR OK");
    // The mixer.
    expect("MIXER 1-20 OPACITY 0.5 25 easeinsine -> 202 MIXER OK", "MIXER 1-20 OPACITY nan -> 501 MIXER OPACITY FAILED",
           "MIXER 1-20 OPACITY 0.25 DEFER -> 202 MIXER OK", "MIXER 1-20 OPACITY -> 201 MIXER OK\r\n0.5",
           "MIXER 1 COMMIT -> 202 MIXER OK", "MIXER 1-20 OPACITY -> 201 MIXER OK\r\n0.25",
           "MIXER 1-20 ANCHOR 0.25 1 -> 202 MIXER OK", "MIXER 1-20 ANCHOR -> 201 MIXER OK\r\n0.250000 1.000000",
           "MIXER 1-20 CHROMA 1 -> 202 MIXER OK", "MIXER 1-20 BLEND sepia -> 202 MIXER OK",
           "MIXER 1-20 BLEND -> 201 MIXER OK\r\nnormal", "MIXER 1 MASTERVOLUME 2 -> 202 MIXER OK",
           "MIXER 1 MASTERVOLUME -> 201 MIXER OK\r\n2", "MIXER 1 GRID 2 -> 202 MIXER OK",
           "MIXER 1-4 FILL -> 201 MIXER OK\r\n0.500000 0.500000 0.500000 0.500000", "MIXER 1 CLEAR -> 202 MIXER OK",
           "MIXER 1-20 ANCHOR -> 201 MIXER OK\r\n0.000000 0.000000");
    // Channels.
    expect("SET 2 MODE pal -> 202 SET MODE OK", "SET 2 MODE 13 -> 501 SET MODE FAILED",
           "INFO -> 200 INFO OK\r\n1 720p5000 PLAYING\r\n2 PAL PLAYING\r\n", "ADD 2-700 FILE a.mov -> 202 ADD OK",
           "INFO 2-9 -> 201 INFO OK\r\n<channel><format>PAL</format><output>FILE a.mov</output><stage/></channel>",
           "REMOVE 2-700 -> 202 REMOVE OK", "SWAP 1-1 3-1 -> 501 SWAP FAILED", "SWAP 1-1 2 -> 501 SWAP FAILED");
    // No commands.
    for (const QString& line : {u"  "_s, u"CG ADD 1 bug 1"_s, u"CG 1-20 ADD 1 bug"_s, u"COMMIT"_s, u"PLAY -1-20 RED"_s,
                                u"PLAY 99999999999 RED"_s})
        EXPECT_EQ(answer(line).toStdString(), "400 ERROR\r\n" + line.toStdString() + "\r\n");
}

TEST_F(Protocol, MakesTheTemplateCallsInOrder) {
    answer(u"CG 1 ADD 1 bug 0"_s);
    EXPECT_EQ(calls(1, 9999), u""_s);
    answer(u"CG 1-20 ADD 1 bug LABEL 1 \"<a v=\\\"J\\\"/>\""_s);
    EXPECT_EQ(calls(1, 20), u"update(<a v=\"J\"/>) play()"_s);
    answer(u"CG 1-20 STOP 1"_s);
    answer(u"CG 1-20 UPDATE 1 \"{}\""_s);
    answer(u"CG 1-20 INVOKE 1 roll"_s);
    answer(u"CG 1-20 INVOKE 1 \"roll(1, 2)\""_s);
    answer(u"CG 1-20 PLAY 1"_s);
    EXPECT_EQ(calls(1, 20),
              u"update(<a v=\"J\"/>) play() stop() update({}) invoke(roll()) invoke(roll(1, 2)) play()"_s);
    const quint64 before = foreground(1, 20).id;
    answer(u"CG 1-20 ADD 1 bug 1"_s);
    EXPECT_NE(foreground(1, 20).id, before);
    EXPECT_EQ(calls(1, 20), u"play()"_s);
}

TEST_F(Protocol, TakesTheBackgroundOnPlayAndKeepsTheMixerOverClear) {
    answer(u"PLAY 2-5 red"_s);
    answer(u"LOADBG 2-5 [HTML] bug"_s);
    EXPECT_EQ(foreground(2, 5).name, u"#FF0000FF"_s);
    answer(u"PLAY 2-5"_s);
    EXPECT_EQ(foreground(2, 5).name, u"bug.html"_s);
    EXPECT_EQ(calls(2, 5), u""_s);
    answer(u"PLAY 2-6 logo"_s);
    answer(u"MIXER 2-6 OPACITY 0.25 12"_s);
    answer(u"CLEAR 2"_s);
    EXPECT_EQ(stage_.layers(2).size(), 1U);
    EXPECT_EQ(stage_.mixer({2, 6}).value(u"OPACITY"), 0.25);
    EXPECT_EQ(stage_.mixer({2, 6}).frames, 12);
    answer(u"MIXER 2 CLEAR"_s);
    EXPECT_TRUE(stage_.layers(2).empty());
}

TEST_F(Protocol, SwapsLayersAndChannels) {
    answer(u"CG 1-20 ADD 1 bug 1"_s);
    answer(u"PLAY 2-5 red"_s);
    answer(u"MIXER 1-20 OPACITY 0.5"_s);
    answer(u"SWAP 1-20 2-5"_s);
    EXPECT_EQ(calls(2, 5), u"play()"_s);
    EXPECT_EQ(foreground(1, 20).name, u"#FF0000FF"_s);
    EXPECT_EQ(stage_.mixer({1, 20}).value(u"OPACITY"), 0.5) << "stays where it was";
    answer(u"SWAP 1 2 TRANSFORMS"_s);
    EXPECT_EQ(calls(1, 5), u"play()"_s);
    EXPECT_EQ(stage_.mixer({2, 20}).value(u"OPACITY"), 0.5);
    EXPECT_EQ(stage_.layers(1).size(), 1U) << "nothing is left behind";
}

TEST_F(Protocol, KeepsOthersOffALockedChannel) {
    EXPECT_EQ(answerOther(u"LOCK 1 ACQUIRE sesame"_s), u"202 LOCK ACQUIRE OK\r\n"_s);
    EXPECT_EQ(answer(u"PLAY 1-1 red"_s), u"503 PLAY FAILED\r\n"_s);
    EXPECT_EQ(answer(u"LOCK 1 ACQUIRE other"_s), u"503 LOCK ACQUIRE FAILED\r\n"_s);
    EXPECT_EQ(answer(u"PLAY 2-1 red"_s), u"202 PLAY OK\r\n"_s);
    EXPECT_EQ(answer(u"LOCK 1 ACQUIRE sesame"_s), u"202 LOCK ACQUIRE OK\r\n"_s);
    EXPECT_EQ(answer(u"PLAY 1-1 red"_s), u"202 PLAY OK\r\n"_s);
    answer(u"LOCK 1 RELEASE"_s);
    EXPECT_EQ(answer(u"CLEAR 1"_s), u"503 CLEAR FAILED\r\n"_s);
    otherLeaves();
    EXPECT_EQ(answer(u"CLEAR 1"_s), u"202 CLEAR OK\r\n"_s);
}

TEST_F(Protocol, CarriesOutABatchOnCommit) {
    for (const QString& line : {u"BEGIN"_s, u"PLAY 1-1 red"_s, u"REQ 7 PLAY 1-2 nope"_s})
        EXPECT_EQ(answer(line), QString());
    EXPECT_EQ(answer(u"NOPE"_s), u"400 ERROR\r\nNOPE\r\n"_s);
    EXPECT_TRUE(stage_.layers(1).empty());
    EXPECT_EQ(answer(u"REQ 8 COMMIT"_s), u"RES 7 404 PLAY FAILED\r\nRES 8 202 COMMIT OK\r\n"_s);
    EXPECT_EQ(stage_.layers(1).size(), 1U);
    answer(u"BEGIN"_s);
    answer(u"CLEAR 1"_s);
    answer(u"DISCARD"_s);
    EXPECT_EQ(stage_.layers(1).size(), 1U);
    answer(u"BEGIN"_s);
    for (std::size_t i = 0; i < AmcpClient::kMaxBatch; ++i) answer(u"PLAY 1-1 red"_s);
    EXPECT_EQ(answer(u"PLAY 1-1 red"_s), u"501 PLAY FAILED\r\n"_s);
}

TEST_F(Protocol, DoesNotGrowWithoutEnd) {
    answer(u"CG 1-20 ADD 1 bug 1 \"<first/>\""_s);
    for (int i = 0; i < 1000; ++i) answer(u"CG 1-20 UPDATE 1 \"<n%1/>\""_s.arg(i));
    EXPECT_EQ(foreground(1, 20).history.calls().size(), CallHistory::kMaxCalls);
    EXPECT_TRUE(calls(1, 20).startsWith(u"update(<first/>) play() update(<n8"_s));
    EXPECT_TRUE(calls(1, 20).endsWith(u"update(<n999/>)"_s));

    const QString large(CallHistory::kMaxText / 3, u'x');
    for (int i = 0; i < 20; ++i) answer(u"CG 1-20 UPDATE 1 \"<%1/>\""_s.arg(large));
    EXPECT_LE(calls(1, 20).size(), CallHistory::kMaxText + 200);

    for (int layer = 100; layer < 500; ++layer) answer(u"PLAY 1-%1 red"_s.arg(layer));
    EXPECT_EQ(stage_.layers(1).size(), Stage::kMaxLayersInUse);
    EXPECT_EQ(answer(u"PLAY 1-600 red"_s), u"501 PLAY FAILED\r\n"_s);
    EXPECT_EQ(answer(u"MIXER 1-600 OPACITY 0"_s), u"501 MIXER OPACITY FAILED\r\n"_s);
    EXPECT_EQ(answer(u"CG 1-20 UPDATE 1 {}"_s), u"202 CG OK\r\n"_s);
    EXPECT_EQ(answer(u"DATA STORE x %1"_s.arg(QString(StoredData::kMaxText, u'x'))), u"501 DATA STORE FAILED\r\n"_s);
}

}  // namespace
}  // namespace zelvor::rehearsal
