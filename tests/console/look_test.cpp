#include <gtest/gtest.h>

#include <QKeySequence>
#include <set>

#include <QFontMetrics>

#include "console/panels/history_panel.h"
#include "console/text_label.h"
#include "console/theme.h"
#include "gallery.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {

TEST(Theme, TextContrastsWithItsGround) {
    EXPECT_NEAR(theme::contrast(Qt::black, Qt::white), 21, 0.01);
    for (const theme::TextPair& pair : theme::textPairs()) {
        EXPECT_GE(theme::contrast(theme::colour(pair.text), theme::colour(pair.ground)), theme::kLeastContrast)
            << "text " << static_cast<int>(pair.text) << " on " << static_cast<int>(pair.ground);
    }
    // The colours that rules give to labels and buttons: as text on the label's ground, or as a ground themselves.
    for (const Colour colour : {colours::kWhite, colours::kGreen, colours::kRed}) {
        EXPECT_GE(theme::contrast(theme::colour(colour), theme::colour(theme::Role::Cell)), theme::kLeastContrast);
    }
    EXPECT_GE(theme::contrast(theme::colour(colours::kRed), theme::colour(theme::Role::AirFill)),
              theme::kLeastContrast);
    for (const Colour ground : {colours::kGreen, colours::kRed, colours::kUsedProposal, colours::kOpenProposal,
                                colours::kAcceptedProposal, colours::kScreenModeOn, colours::kScreenModeOff}) {
        const QColor shown = theme::colour(ground);
        EXPECT_GE(theme::contrast(theme::readableOn(shown), shown), theme::kLeastContrast) << ground;
    }
}

TEST(Theme, DigitsAreOfOneWidthAndGreekIsThere) {
    for (const bool bold : {false, true}) {
        const QFontMetrics metrics(theme::font(22, bold));
        for (const QChar digit : u"123456789"_s)
            EXPECT_EQ(metrics.horizontalAdvance(digit), metrics.horizontalAdvance(u'0'));
        EXPECT_TRUE(metrics.inFont(u'Ώ'));
    }
}

TEST(TextLabel, WhatDoesNotFitIsElidedAndStandsInTheToolTip) {
    TextLabel label({14});
    label.setHint(u"hint"_s);
    label.resize(400, 20);
    label.setText(u"Laskaris"_s);
    EXPECT_EQ(label.toolTip(), u"hint");
    label.resize(30, 20);
    label.show();
    EXPECT_EQ(label.toolTip(), u"Laskaris\nhint");
    label.resize(400, 20);
    label.setText(u"one\r\ntwo"_s);
    EXPECT_EQ(label.toolTip(), u"one\r\ntwo\nhint");
}

TEST(HistoryPanel, TemplateDataReadable) {
    EXPECT_EQ(readableXml(u"<a><b c=\"Ώ\"/><b/></a>"_s), u"<a>\n  <b c=\"Ώ\"/>\n  <b/>\n</a>");
    EXPECT_EQ(readableXml(u"<a c=\\\"1\\\">"_s), u"<a c=\\\"1\\\">");
}

TEST(Window, StatusLineTakesItsColourFromTheRoleAlone) {
    Gallery gallery;
    gallery.writePack({});
    gallery.start();
    using Role = Control::Role;
    for (const char* name : {"lblFEED", "lblLINKMAIN", "lblLINKREMOTE", "lblDATABASE"}) {
        gallery.at(name).setText(u"main failover:5250 not connected, lost"_s);
        const auto* label = gallery.find<TextLabel>(name);
        for (const auto& [role, colour] : {std::pair{Role::Good, theme::Role::Good},
                                           {Role::Waiting, theme::Role::Wait},
                                           {Role::Bad, theme::Role::Bad},
                                           {Role::Off, theme::Role::Muted}}) {
            gallery.at(name).setRole(role);
            EXPECT_EQ(label->textColour(), theme::colour(colour)) << name;
        }
    }
}

// Every control of the form is in the window once, under its name and number, and can be told by a screen reader.
TEST(Window, MirrorsEveryControl) {
    Gallery gallery;
    gallery.writePack({"Score,score.csp"});
    gallery.start();
    std::set<QKeySequence> keys{QKeySequence(u"Ctrl+K"_s), QKeySequence(u"F12"_s), QKeySequence(u"Ctrl+F11"_s)};
    const QStringList menuItems{u"mnSet169"_s, u"mnSet43"_s};
    for (const Control* control : gallery.app->form().all()) {
        if (menuItems.contains(control->name())) continue;
        const QByteArray name = control->name().toLatin1();
        const QWidget* widget = gallery.find<QWidget>(name.constData(), control->index());
        ASSERT_NE(widget, nullptr) << control->displayName().toStdString();
        EXPECT_FALSE(control->hint().isEmpty()) << name.constData();
        EXPECT_FALSE(widget->toolTip().isEmpty()) << name.constData();
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << name.constData();
        using Kind = Control::Kind;
        const bool isPressed = control->kind() == Kind::Button || control->kind() == Kind::CheckBox ||
                               control->kind() == Kind::OptionButton || name == "lblPROPOSED";
        if (!isPressed) continue;
        const QKeySequence key(control->key());
        EXPECT_TRUE(keys.insert(key).second) << name.constData() << " shares " << control->key().toStdString();
        EXPECT_NE(key[0].keyboardModifiers() & (Qt::ControlModifier | Qt::AltModifier), Qt::NoModifier)
            << name.constData() << " would be fired by a slip";
        EXPECT_TRUE(widget->toolTip().contains(u'(' + control->key() + u')')) << name.constData();
        EXPECT_TRUE(widget->focusPolicy() & Qt::TabFocus) << name.constData();
    }
}

// At 1280 x 800 and 150 % nothing but the panels' rest lies outside; the cards keep their width.
TEST(Window, FitsASmallScreen) {
    Gallery gallery;
    gallery.writePack({"Score,score.csp"});
    gallery.start();
    MainWindow& window = gallery.app->window();
    constexpr QSize kSmall{853, 510};
    window.resize(kSmall);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.size(), kSmall);
    for (const auto& [name, index] : {std::pair{"lblDATABASE", -1},
                                      {"GradientButtonAIR", -1},
                                      {"lblPROPOSED", 8},
                                      {"cmbCARD", 20},
                                      {"cmdTAB", 0}}) {
        const auto* widget = gallery.find<QWidget>(name, index);
        const QRect place(widget->mapTo(&window, QPoint()), widget->size());
        EXPECT_TRUE(window.rect().contains(place)) << name;
    }
    EXPECT_GE(gallery.find<QWidget>("cmbCARD", 0)->width(), 140);
    window.resize(1280, 780);
    QCoreApplication::processEvents();
    const auto* player = gallery.find<QWidget>("lblAPLAYERS", 23);
    EXPECT_TRUE(window.rect().contains({player->mapTo(&window, QPoint()), player->size()})) << "nothing scrolls";
}

}  // namespace zelvor::test
