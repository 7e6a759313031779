#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "rehearsal/amcp_interpreter.h"
#include "rehearsal/amcp_tokenizer.h"

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

    QString answer(const QString& line) { return interpreter_.answer(line); }
    const Source& foreground(int channel, int layer) const { return stage_.layers(channel).at(layer).foreground; }
    // The calls made to a layer's template, e.g. "update(<a/>) play()".
    QString calls(int channel, int layer) const {
        static const QStringList kNames = {u"update"_s, u"play"_s, u"stop"_s, u"next"_s, u"remove"_s, u"invoke"_s};
        QStringList made;
        for (const TemplateCall& call : foreground(channel, layer).history.calls()) {
            made.append(u"%1(%2)"_s.arg(kNames[static_cast<int>(call.function)], call.argument));
        }
        return made.join(u' ');
    }

    Stage stage_{2};

 private:
    QTemporaryDir dir_;
    TemplateFolder folder_{dir_.path()};
    AmcpInterpreter interpreter_{stage_, folder_};
};

// One show in the order of the rows: each reply depends on what the rows before it put on air.
TEST_F(Protocol, RepliesLikeTheServer) {
    const std::vector<std::pair<const char*, const char*>> rows = {
        {"VERSION", "201 VERSION OK\r\n2.4.0 Zelvor Rehearsal " ZELVOR_VERSION "\r\n"},
        {"info", "200 INFO OK\r\n1 1080i5000 PLAYING\r\n2 1080i5000 PLAYING\r\n\r\n"},
        {"INFO 1", "201 INFO OK\r\n<channel><stage/></channel>\r\n"},
        {"INFO 3", "401 INFO ERROR\r\n"},
        {"PING", "PONG\r\n"},
        {"ping a \"b c\"", "PONG a b c\r\n"},
        {"REQ 7 PING x", "RES 7 PONG x\r\n"},
        {"REQ abc CG 1-20 STOP 1", "RES abc 403 CG STOP FAILED\r\n"},
        {"REQ 8", "RES 8 400 ERROR\r\nREQ 8\r\n"},
        // Channels, layers, parameters.
        {"CG 3-20 ADD 1 bug 1", "401 CG ERROR\r\n"},
        {"CLEAR 0", "401 CLEAR ERROR\r\n"},
        {"PLAY 1-x RED", "403 PLAY FAILED\r\n"},
        {"PLAY 1-10000 RED", "403 PLAY FAILED\r\n"},
        {"CG 1-20 ADD 1 bug", "402 CG ERROR\r\n"},
        {"CG 1-20 UPDATE 1", "402 CG ERROR\r\n"},
        {"MIXER 1-20 FILL 0 0", "402 MIXER ERROR\r\n"},
        // Templates: nothing there yet.
        {"CG 1-20 PLAY 1", "202 CG OK\r\n"},
        {"CG 1-20 STOP 1", "403 CG STOP FAILED\r\n"},
        {"CG 1-20 NEXT 1", "403 CG NEXT FAILED\r\n"},
        {"CG 1-20 UPDATE 1 \"<a/>\"", "403 CG UPDATE FAILED\r\n"},
        {"CG 1-20 REMOVE 1", "403 CG REMOVE FAILED\r\n"},
        {"CG 1-20 INVOKE 1 f", "403 CG INVOKE FAILED\r\n"},
        {"CG 1-20 CLEAR", "202 CG OK\r\n"},
        {"CG 1-20 ADD 1 nope 1", "404 CG ADD FAILED\r\n"},
        {"CG 1-20 ADD 1 ../bug 1", "404 CG ADD FAILED\r\n"},
        {"CG 1-20 ADD x bug 1", "403 CG ADD FAILED\r\n"},
        {"CG 1-20 ADD 1 bug 1 \"\"", "403 CG ADD FAILED\r\n"},
        {"CG 1-20 ADD 1 bug 1 stored", "404 CG ADD FAILED\r\n"},
        // Templates: one on air.
        {"cg 1-20 add 1 \"BUG\" 1 \"<a v=\\\"J\\\"/>\"", "202 CG OK\r\n"},
        {"CG 1-20 UPDATE 1 \"{\\\"a\\\":1}\"", "202 CG OK\r\n"},
        {"CG 1-20 UPDATE 1 stored", "404 CG UPDATE FAILED\r\n"},
        {"CG 1-20 NEXT 1", "202 CG OK\r\n"},
        {"CG 1-20 INVOKE 1 f", "202 CG OK\r\n"},
        {"CG 1-20 STOP x", "403 CG STOP FAILED\r\n"},
        {"CG 1-20 STOP 1", "202 CG OK\r\n"},
        {"CG 1-20 STOP 1", "202 CG OK\r\n"},
        {"CG 1-20 REMOVE 1", "202 CG OK\r\n"},
        {"CG 1-20 STOP 1", "403 CG STOP FAILED\r\n"},
        // Layers.
        {"PLAY 1-20", "202 PLAY OK\r\n"},
        {"PLAY 1-20 missing", "404 PLAY FAILED\r\n"},
        {"PLAY 1-20 #12345", "404 PLAY FAILED\r\n"},
        {"PLAY 1-20 #80FF0000 MIX 20", "202 PLAY OK\r\n"},
        {"CG 1-20 STOP 1", "403 CG STOP FAILED\r\n"},
        {"LOADBG 1-20 logo AUTO", "202 LOADBG OK\r\n"},
        {"LOAD 2-1 [HTML] bug", "202 LOAD OK\r\n"},
        {"PAUSE 1-20", "202 PAUSE OK\r\n"},
        {"INFO 1-20",
         "201 INFO OK\r\n<channel><stage><layer><number>20</number><paused>true</paused><foreground><producer>color"
         "</producer><name>#FF000080</name></foreground><background><producer>image</producer><name>logo.png</name>"
         "</background></layer></stage></channel>\r\n"},
        {"RESUME 1-20", "202 RESUME OK\r\n"},
        {"STOP 1-20", "202 STOP OK\r\n"},
        {"CLEAR 1-20", "202 CLEAR OK\r\n"},
        // The mixer.
        {"MIXER 1-20 OPACITY", "201 MIXER OK\r\n1\r\n"},
        {"MIXER 1-20 OPACITY 0.5 25 easeinsine", "202 MIXER OK\r\n"},
        {"MIXER 1-20 OPACITY", "201 MIXER OK\r\n0.5\r\n"},
        {"MIXER 1-20 OPACITY nan", "403 MIXER OPACITY FAILED\r\n"},
        {"MIXER 1-20 FILL 0.25 0 0.5 0.5", "202 MIXER OK\r\n"},
        {"MIXER 1-20 FILL", "201 MIXER OK\r\n0.25 0 0.5 0.5\r\n"},
        {"MIXER 1-20 VOLUME 0", "202 MIXER OK\r\n"},
        {"MIXER 1-20 BLEND screen", "202 MIXER OK\r\n"},
        {"MIXER 1-20 CLEAR", "202 MIXER OK\r\n"},
        {"MIXER 1-20 VOLUME", "201 MIXER OK\r\n1\r\n"},
        {"MIXER 1 CLEAR", "202 MIXER OK\r\n"},
    };
    for (const auto& [line, reply] : rows) {
        EXPECT_EQ(answer(QString::fromUtf8(line)).toStdString(), reply) << line;
    }
}

TEST_F(Protocol, RefusesWhatIsNotACommand) {
    for (const QString& line : {u"  "_s, u"NOPE 1-20 \"x\""_s, u"CG 1-20 NOPE 1"_s, u"CG 1-20"_s, u"CG"_s,
                                u"CG ADD 1 bug 1"_s, u"PLAY -1-20 RED"_s, u"PLAY 99999999999 RED"_s}) {
        EXPECT_EQ(answer(line).toStdString(), "400 ERROR\r\n" + line.toStdString() + "\r\n");
    }
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
    EXPECT_EQ(stage_.mixer({2, 6}).opacity, 0.25);
    EXPECT_EQ(stage_.mixer({2, 6}).frames, 12);
    answer(u"MIXER 2 CLEAR"_s);
    EXPECT_TRUE(stage_.layers(2).empty());
}

TEST_F(Protocol, DoesNotGrowWithoutEnd) {
    answer(u"CG 1-20 ADD 1 bug 1 \"<first/>\""_s);
    for (int i = 0; i < 1000; ++i) {
        answer(u"CG 1-20 UPDATE 1 \"<n%1/>\""_s.arg(i));
    }
    EXPECT_EQ(foreground(1, 20).history.calls().size(), CallHistory::kMaxCalls);
    EXPECT_TRUE(calls(1, 20).startsWith(u"update(<first/>) play() update(<n8"_s));
    EXPECT_TRUE(calls(1, 20).endsWith(u"update(<n999/>)"_s));

    const QString large(CallHistory::kMaxText / 3, u'x');
    for (int i = 0; i < 20; ++i) {
        answer(u"CG 1-20 UPDATE 1 \"<%1/>\""_s.arg(large));
    }
    EXPECT_LE(calls(1, 20).size(), CallHistory::kMaxText + 200);

    for (int layer = 100; layer < 500; ++layer) {
        answer(u"PLAY 1-%1 red"_s.arg(layer));
    }
    EXPECT_EQ(stage_.layers(1).size(), Stage::kMaxLayersInUse);
    EXPECT_EQ(answer(u"PLAY 1-600 red"_s), u"501 PLAY FAILED\r\n"_s);
    EXPECT_EQ(answer(u"MIXER 1-600 OPACITY 0"_s), u"501 MIXER OPACITY FAILED\r\n"_s);
    EXPECT_EQ(answer(u"CG 1-20 UPDATE 1 {}"_s), u"202 CG OK\r\n"_s);
}

}  // namespace
}  // namespace zelvor::rehearsal
