#include <gtest/gtest.h>

#include <QComboBox>
#include <QScrollArea>

#include "console/card_button.h"
#include "console/touch.h"
#include "gallery.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {

// A console for fingers, pressed by Qt's own touch events, as the platform brings them: to the window.
class TouchTest : public testing::Test {
 protected:
    TouchTest() {
        gallery.adjust = [](CardsApp::Options& options) { options.touch = true; };
        gallery.writePack({"Score,score.csp", "Player,player.csp"});
        gallery.start();
        gallery.connectMain(peer);
        const QRect room = QGuiApplication::screens().constLast()->availableGeometry();
        gallery.app->window().setGeometry(room.adjusted(10, 10, -10, -10));
    }
    ~TouchTest() override { theme::setFingerSize(*qApp, 0); }

    void goDown(QWidget* widget, QPoint place) {
        QCoreApplication::processEvents();
        for (QWidget* around = widget; around != nullptr; around = around->parentWidget()) {
            if (auto* area = qobject_cast<QScrollArea*>(around)) area->ensureWidgetVisible(widget);
        }
        event().press(0, at(widget, place));
    }
    void goDown(QWidget* widget) { goDown(widget, widget->rect().center()); }
    void lift(QWidget* widget) { event().release(0, at(widget, widget->rect().center())); }
    void tap(QWidget* widget) {
        goDown(widget);
        lift(widget);
    }
    QTest::QTouchEventSequence event() { return QTest::touchEvent(gallery.app->window().windowHandle(), finger.get()); }
    QPoint at(QWidget* widget, QPoint place) { return widget->mapTo(&gallery.app->window(), place); }

    LineServer peer;
    Gallery gallery;
    const std::unique_ptr<QPointingDevice> finger{QTest::createTouchDevice()};
};

TEST_F(TouchTest, FingersPressAsTheMouseDoes) {
    auto* card = gallery.find<CardButton>("cmbCARD", 0);
    for (QWidget* widget : {static_cast<QWidget*>(card), static_cast<QWidget*>(card),
                            gallery.find<QWidget>("cmbCARD", 1), gallery.find<QWidget>("GradientButtonAIR")})
        tap(widget);
    EXPECT_TRUE(heard(peer, {u"SCORE"_s, u"PLAYER"_s, u"CLEAR 1"_s})) << "a double tap is one press";
    // A long press is the right button's deed, in place of the left one's.
    int asked = 0;
    QObject::connect(&card->small(), &QAbstractButton::clicked, card, [&asked] { ++asked; });
    goDown(card);
    EXPECT_TRUE(waitUntil([&] { return asked == 1; }));
    lift(card);
    EXPECT_TRUE(heard(peer, {u"SCORE"_s}));
    goDown(card);
    event().move(0, at(card, {1, 300}));
    lift(card);
    EXPECT_EQ(peer.takeLines(), QStringList()) << "the finger has slid away";
}

// Labels act when the mouse goes down; under a finger only when it is clear which press it is.
TEST_F(TouchTest, PlayersAndProposalsArePressedAsWell) {
    auto& player = gallery.at("lblHPLAYERS", 4);
    player.setText(u"7 Laskaris"_s);
    player.setTag(u"P:7"_s);
    gallery.at("lblPROPOSED", 2).setTag(u"5|N|player.csp|P:12"_s);
    gallery.at("lblPROPOSED", 2).setText(u"Karas"_s);
    auto* label = gallery.find<QWidget>("lblHPLAYERS", 4);
    goDown(label);
    EXPECT_NE(player.foreColour(), colours::kGreen);
    lift(label);
    EXPECT_EQ(player.foreColour(), colours::kGreen);
    tap(gallery.find<QWidget>("cmdCLEARTAG"));
    EXPECT_NE(player.foreColour(), colours::kGreen);
    goDown(label);
    EXPECT_TRUE(waitUntil([&] { return player.foreColour() == colours::kRed; }));
    lift(label);
    EXPECT_EQ(player.foreColour(), colours::kRed) << "lifting the finger presses nothing more";
    EXPECT_EQ(gallery.app->state().variables.text(u"AUTOTAG_O"), u"7");
    tap(gallery.find<QWidget>("lblPROPOSED", 2));
    EXPECT_TRUE(heard(peer, {u"PLAYER"_s}));
}

TEST_F(TouchTest, WhatIsPressedIsLargeEnough) {
    MainWindow& window = gallery.app->window();
    const int least = Touch::leastPixels(*window.screen());
    EXPECT_NEAR(least / window.screen()->physicalDotsPerInch() * 25.4, 9, 0.5);
    for (int tab = 0; tab < CardConsole::kTabs; ++tab) {
        gallery.click("cmdTAB", tab);
        QCoreApplication::processEvents();
        for (const QWidget* each : window.findChildren<QWidget*>()) {
            const bool isMet = qobject_cast<const QAbstractButton*>(each) != nullptr ||
                               qobject_cast<const QComboBox*>(each) != nullptr || each->focusPolicy() == Qt::TabFocus;
            if (!isMet || !each->isVisible() || qobject_cast<QLineEdit*>(each->parent()) != nullptr) continue;
            EXPECT_GE(std::min(each->width(), each->height()), least) << each->objectName().toStdString();
            EXPECT_TRUE(each->parentWidget()->rect().contains(each->geometry())) << each->objectName().toStdString();
        }
    }
}

}  // namespace zelvor::test
