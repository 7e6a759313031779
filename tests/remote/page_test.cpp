#include <gtest/gtest.h>

#include "../rehearsal/browser.h"
#include "app_cards/ui_language.h"
#include "console/gallery.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {
namespace {

// The tablet's page in a browser, beside the console that it shows.
TEST(ControlPage, WorksTheConsoleByTouch) {
    rehearsal::Browser browser;
    ASSERT_TRUE(browser.start()) << browser.fault().toStdString();
    LineServer server;
    Gallery gallery;
    gallery.writePack({"Strap,strap.csp", "Asks,asks.csp"}, "FKEYS:1|Key|strap.csp\r\n");
    gallery.writeCard("strap", "ON~1\r\nCSPSEND~STRAP");
    gallery.writeCard("asks", "BREAK~Sure?\r\nCSPSEND~SURE");
    gallery.adjust = [](CardsApp::Options& options) {
        options.remoteControl.control = {{u"127.0.0.1"_s, 0}, QHostAddress::LocalHost, {}, {}, {}};
    };
    gallery.start();
    gallery.connectMain(server);
    gallery.at("lblHPLAYERS", 0).setText(u"7 Laskaris"_s);
    browser.open(u"http://127.0.0.1:%1/"_s.arg(gallery.app->remote().control()->port()));
    const auto shows = [&](const QString& script, const QString& text) {
        return waitUntil([&] { return browser.evaluate(script).contains(text); });
    };
    const auto press = [&](const QString& box, const QString& text) {
        return browser.evaluate(
            u"[...document.querySelectorAll('%1 button')].find(b => b.textContent.includes('%2')).click()"_s.arg(box,
                                                                                                                 text));
    };
    const QString all = u"document.body.innerText"_s;
    ASSERT_TRUE(shows(all, u"Strap"_s));
    press(u"#cards"_s, u"Strap"_s);
    EXPECT_TRUE(waitUntil([&] { return server.bytes.contains("STRAP"); }));
    EXPECT_TRUE(shows(u"document.querySelector('.card.on').innerText"_s, u"ON"_s));
    EXPECT_TRUE(shows(u"document.getElementById('onair').innerText"_s, u"ON AIR Strap"_s));
    press(u"#score-home"_s, u"+"_s);
    EXPECT_TRUE(waitUntil([&] { return gallery.at("mnSCOREA").text() == u"1"; }));
    gallery.at("mnSCOREB").setText(u"44"_s);  // the other one's deed
    EXPECT_TRUE(shows(u"document.getElementById('score-away').innerText"_s, u"44"_s));
    press(u"#five-home .five"_s, u"0"_s);
    press(u"#five-home .players"_s, u"Laskaris"_s);
    EXPECT_TRUE(waitUntil([&] { return gallery.at("txtS5H", 0).text() == u"7"; }));
    gallery.answer = [&](QDialog&) {
        EXPECT_TRUE(shows(u"document.querySelector('dialog[open]')?.innerText"_s, u"Sure?"_s));
        press(u"#answers"_s, u"Yes"_s);
    };
    press(u"#cards"_s, u"Asks"_s);
    EXPECT_TRUE(waitUntil([&] { return server.bytes.contains("SURE"); }));
    EXPECT_TRUE(shows(u"String(document.querySelector('dialog[open]'))"_s, u"null"_s));
    // On a phone nothing is cut off at the side, and every button has a name and room for a finger.
    EXPECT_EQ(
        browser.evaluate(
            u"document.documentElement.style.width='360px', document.documentElement.scrollWidth <= innerWidth"_s),
        u"true");
    EXPECT_EQ(browser.evaluate(
                  u"[...document.querySelectorAll('main button')].filter(b => !(b.ariaLabel || b.textContent) || "
                  "b.offsetHeight < 44).length"_s),
              u"0");
    press(u"header"_s, u"CLEAR"_s);
    EXPECT_TRUE(waitUntil([&] { return server.bytes.contains("CLEAR 1"); }));
}

// All it says but what stays as it is in every language: no word of Latin letters, nothing that was not put in.
TEST(ControlPage, SpeaksTheConsolesLanguage) {
    rehearsal::Browser browser;
    ASSERT_TRUE(browser.start()) << browser.fault().toStdString();
    const UiLanguage greek(u"el"_s);
    Gallery gallery;
    gallery.writePack({"Σκορ,score.csp", "Ερώτηση,asks.csp"});
    gallery.writeCard("asks", "BREAK~Σίγουρα;");
    gallery.writeCard("score", "ON~1");
    QByteArray token;
    gallery.adjust = [&](CardsApp::Options& options) {
        options.remoteControl.control = {{u"127.0.0.1"_s, 0}, QHostAddress::LocalHost, token, {}, {}};
    };
    for (const bool isLoggedIn : {false, true}) {
        token = isLoggedIn ? QByteArray() : "0123456789abcdef";
        gallery.start();
        gallery.at("lblHTEAM").setText({});
        gallery.at("lblHPLAYERS", 0).setText(u"7 Λάσκαρης"_s);
        if (isLoggedIn) gallery.click("cmbCARD", 0);
        browser.open(u"http://127.0.0.1:%1/"_s.arg(gallery.app->remote().control()->port()));
        QString said;
        const auto expectGreek = [&](const QString& part) {
            EXPECT_TRUE(waitUntil([&] {
                said = browser.evaluate(
                    u"document.documentElement.lang + [...document.querySelectorAll('body *')].map("
                    "e => '\\n' + (e.ariaLabel ?? '') + [...e.childNodes].map(n => n.nodeType === 3 ? n.data : '')).join('')"_s);
                return said.startsWith(u"el") && said.contains(part);
            })) << part.toStdString()
                << " in " << said.toStdString();
            const QRegularExpression strange(
                u"(?!(CLEAR|ON|AIR|Zelvor|Cards|Break|Second|Game|Players)\\b)\\b[A-Za-z]{2,}|[{}]"_s);
            EXPECT_EQ(strange.match(said, 2).captured(), QString()) << said.toStdString();
        };
        expectGreek(isLoggedIn ? u"Γηπεδούχοι ένα λιγότερο"_s : u"Ο κωδικός αυτής της κονσόλας"_s);
        if (!isLoggedIn) continue;
        expectGreek(u"η τελευταία"_s);
        gallery.answer = [&](QDialog& box) {
            expectGreek(u"Σίγουρα;"_s);
            box.reject();
        };
        gallery.click("cmbCARD", 1);
    }
}

}  // namespace
}  // namespace zelvor::test
