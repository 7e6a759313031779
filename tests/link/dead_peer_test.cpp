#include <gtest/gtest.h>

#include <QProcess>

#include "studio.h"

using namespace Qt::StringLiterals;
using namespace zelvor;
using namespace zelvor::test;

namespace {

constexpr auto kInNamespace = "ZELVOR_TEST_IN_NAMESPACE";

bool succeeds(const QString& program, const QStringList& arguments) {
    return QProcess::execute(program, arguments) == 0;
}

}  // namespace

TEST(CasparLink, EndsWhenTheRouteIsGone) {
    if (!qEnvironmentVariableIsSet(kInNamespace)) {
        if (!succeeds(u"unshare"_s, {u"-rn"_s, u"sh"_s, u"-c"_s, u"ip link set lo up && iptables -L >/dev/null"_s}))
            GTEST_SKIP() << "no network namespace with a packet filter can be made here";
        qputenv(kInNamespace, "1");
        EXPECT_TRUE(succeeds(u"unshare"_s, {u"-rn"_s, QCoreApplication::applicationFilePath(),
                                            u"--gtest_filter=CasparLink.EndsWhenTheRouteIsGone"_s}));
        qunsetenv(kInNamespace);
        return;
    }
    ASSERT_TRUE(succeeds(u"ip"_s, {u"link"_s, u"set"_s, u"lo"_s, u"up"_s}));
    for (const bool idle : {false, true}) {
        Studio studio;
        Server server;
        studio.connectTo(LinkId::Main, server);
        const QStringList rule{u"OUTPUT"_s, u"-p"_s, u"tcp"_s, u"-j"_s, u"DROP"_s};
        ASSERT_TRUE(succeeds(u"iptables"_s, QStringList{u"-A"_s} + rule));
        int lost = 0;
        QObject::connect(&studio.links, &GraphicsLinks::lineLost, &studio.form, [&] { ++lost; });
        if (!idle) studio.links.sendLine(LinkId::Main, u"CG 1-20 STOP 1"_s, {});
        EXPECT_TRUE(studio.isIn(LinkId::Main, 9)) << "within seconds";
        EXPECT_EQ(studio.links.link(LinkId::Main).errorText(), u"timed out"_s);
        EXPECT_EQ(lost, idle ? 0 : 1);
        ASSERT_TRUE(succeeds(u"iptables"_s, QStringList{u"-D"_s} + rule));
        studio.connectTo(LinkId::Main, server);
        studio.links.sendLine(LinkId::Main, u"CLEAR 1"_s, {});
        EXPECT_TRUE(waitUntil([&] { return !server.bytes.isEmpty(); }));
        EXPECT_EQ(server.bytes, "CLEAR 1\r\n") << "nothing old comes after all";
    }
}
