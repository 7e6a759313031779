#include <gtest/gtest.h>

#include <QAction>
#include <QFontMetrics>
#include <QKeySequence>
#include <QPaintEngine>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <algorithm>
#include <set>

#include "app_cards/ui_language.h"
#include "console/fitted_text.h"
#include "console/panels/history_panel.h"
#include "console/text_label.h"
#include "console/theme.h"
#include "gallery.h"

using namespace Qt::StringLiterals;

namespace zelvor::test {

// What a window writes, where and in which colour: a paint engine that takes nothing but text.
class TextRecorder : public QPaintEngine, public QImage {
 public:
    struct Written {
        QRect area;
        QColor ink;
        QString text;
    };

    explicit TextRecorder(QSize size) : QPaintEngine(AllFeatures), QImage(size, Format_RGB32) {}

    std::vector<Written> written;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    [[nodiscard]] Type type() const override { return User; }
    void drawTextItem(const QPointF& place, const QTextItem& item) override {
        const QRectF box(place.x(), place.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        const QRect whole = painter()->deviceTransform().mapRect(box).toRect();
        const QRect seen = systemClip().isEmpty() ? whole : whole & systemClip().boundingRect();
        // A row that is cut by the end of its list has little ground of its own.
        if (seen.height() * 2 < whole.height()) return;
        written.push_back({seen, painter()->pen().color(), item.text().trimmed()});
    }
    [[nodiscard]] QPaintEngine* paintEngine() const override { return const_cast<TextRecorder*>(this); }
};

// The colour that most of an area has: what stands around its letters.
QColor groundOf(const QImage& picture, const QRect& area) {
    QHash<QRgb, int> counts;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) ++counts[picture.pixel(x, y)];
    }
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return QColor(most.key());
}

// Texts of the window that cannot be read well, and how many there are at all.
QStringList illegible(QWidget& window, int& count) {
    TextRecorder recorder(window.size());
    QPainter painter(&recorder);
    window.render(&painter);
    painter.end();
    const QImage picture = window.grab().toImage();
    QStringList found;
    for (const TextRecorder::Written& each : recorder.written) {
        const QRect area = each.area & picture.rect();
        if (area.isEmpty() || each.text.isEmpty()) continue;
        ++count;
        const QColor ground = groundOf(picture, area);
        const double contrast = theme::contrast(each.ink, ground);
        if (contrast < theme::kLeastContrast || each.ink.alpha() < 255)
            found += u"%1: %2 on %3, %4"_s.arg(each.text, each.ink.name(), ground.name()).arg(contrast);
    }
    return found;
}

// Whatever is drawn, in every state that has colours of its own.
TEST(Theme, TextContrastsWithItsGround) {
    EXPECT_NEAR(theme::contrast(Qt::black, Qt::white), 21, 0.01);
    Gallery gallery;
    gallery.writePack({"Score,score.csp,1", "Empty,", "Coloured,score.csp"}, "FKEYS:1|Score|score.csp\r\n");
    gallery.writeCard("score", "ON~0\r\nBUTTONCOLOR~2;&H00FF00");
    gallery.start();
    MainWindow& window = gallery.app->window();
    window.resize(1400, 1000);
    gallery.click("cmbCARD", 0);
    gallery.click("GradientButtonS", 0);
    QTest::keyClick(&window, Qt::Key_K, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_F12);
    gallery.click("cmdVIEWGASPHISTORY");
    gallery.app->links().appendHistory({u"> a line"_s});
    constexpr std::array kColours{colours::kWhite, colours::kGreen, colours::kRed, rgb(0, 0, 128), rgb(200, 200, 0)};
    int player = 0;
    for (const Colour colour : kColours) {
        gallery.at("lblHPLAYERS", player).setText(u"23 Laskaris"_s);
        gallery.at("lblHPLAYERS", player++).setForeColour(colour);
    }
    gallery.at("lblHPLAYERS", player).setForeColour(rgb(250, 200, 3));
    EXPECT_EQ(gallery.find<TextLabel>("lblHPLAYERS", player)->textColour(), QColor(250, 200, 3));
    int proposal = 0;
    std::set<TextLabel::Mark> marks;
    for (const Colour colour : {colours::kOpenProposal, colours::kUsedProposal, colours::kAcceptedProposal}) {
        gallery.at("lblPROPOSED", ++proposal).setText(u"Karas\r\n11 points"_s);
        gallery.at("lblPROPOSED", proposal).setBackColour(colour);
        marks.insert(gallery.find<TextLabel>("lblPROPOSED", proposal)->mark());
    }
    EXPECT_EQ(marks.size(), 3) << "told apart without their colours";
    EXPECT_FALSE(marks.contains(TextLabel::Mark::None));
    using Role = Control::Role;
    for (const auto& [name, role, colour] : {std::tuple{"lblFEED", Role::Bad, theme::Role::Bad},
                                             {"lblSILENCED", Role::Waiting, theme::Role::Wait},
                                             {"lblDATABASE", Role::Good, theme::Role::Good},
                                             {"lblLINKREMOTE", Role::Off, theme::Role::Muted}}) {
        gallery.at(name).setText(u"main failover:5250 not connected, lost"_s);
        gallery.at(name).setRole(role);
        EXPECT_EQ(gallery.find<TextLabel>(name)->textColour(), theme::colour(colour)) << name << ", whatever it says";
    }
    gallery.at("lblONAIRTROUBLE").setText(u"refused"_s);
    for (const char* name : {"lblPREVIEW", "lblTESTSENDER"}) gallery.at(name).setVisible(true);
    for (const theme::Theme theme : {theme::Theme::Light, theme::Theme::HighContrast, theme::Theme::Dark}) {
        window.setTheme(theme);
        int texts = 0;
        const auto expectLegible = [&](QWidget* shown) {
            EXPECT_EQ(illegible(*shown, texts).join(u'\n').toStdString(), "")
                << theme::wordOf(theme).toStdString() << ", " << shown->objectName().toStdString();
        };
        for (int tab = 0; tab < CardConsole::kTabs; ++tab) {
            gallery.at("chkMANUAL").setChecked(tab > 0);
            gallery.click("cmdTAB", tab);
            expectLegible(&window);
        }
        gallery.click("cmdTAB", 0);
        for (QWidget* shown : {static_cast<QWidget*>(&window), gallery.form("frmFIND"), gallery.form("frmKEYS"),
                               gallery.form("frmGENERAL")})
            expectLegible(shown);
        EXPECT_GT(texts, 500);
    }
}

TEST(Theme, WrongTextIsMarkedForAsLong) {
    Gallery gallery;
    gallery.writePack({"Score,score.csp"});
    gallery.start();
    const auto* box = gallery.find<QLineEdit>("txtGASPARPORT");
    for (const QString& text : {u"5250"_s, u"x"_s, u"5251"_s, u"0"_s}) {
        const bool wrong = text.size() == 1;
        gallery.at("txtGASPARPORT").setText(text);
        const auto isShown = [](const QAction* sign) { return sign->isVisible() && !sign->icon().isNull(); };
        EXPECT_EQ(std::ranges::count_if(box->actions(), isShown), wrong ? 1 : 0) << text.toStdString();
        EXPECT_EQ(box->toolTip().contains(u"not a number"), wrong);
    }
}

// Around whatever the keyboard leads to, as many points as it is around change well visibly.
TEST(Theme, FocusIsSeenOnEveryControl) {
    constexpr double kSeen = 3;  // contrast
    Gallery gallery;
    gallery.writePack({"Score,score.csp"});
    gallery.start();
    MainWindow& window = gallery.app->window();
    window.resize(1280, 780);
    window.activateWindow();
    for (const theme::Theme theme : {theme::Theme::Light, theme::Theme::HighContrast, theme::Theme::Dark}) {
        window.setTheme(theme);
        QSet<const QWidget*> seen;
        for (int tab = 0; tab < CardConsole::kTabs; ++tab) {
            gallery.click("cmdTAB", tab);
            QCoreApplication::processEvents();
            for (QWidget* each : window.findChildren<QWidget*>()) {
                const bool isLedTo = each->isVisible() && each->isEnabled() && (each->focusPolicy() & Qt::TabFocus) &&
                                     each->focusProxy() == nullptr;
                if (!isLedTo || seen.contains(each)) continue;
                seen.insert(each);
                window.setFocus();
                const QImage before = each->grab().toImage();
                each->setFocus(Qt::TabFocusReason);
                ASSERT_TRUE(each->hasFocus()) << each->objectName().toStdString();
                const QImage after = each->grab().toImage();
                int changed = 0;
                for (int y = 0; y < after.height(); ++y) {
                    for (int x = 0; x < after.width(); ++x) {
                        const QColor was = before.pixelColor(x, y);
                        const QColor is = after.pixelColor(x, y);
                        if (was != is && theme::contrast(was, is) >= kSeen) ++changed;
                    }
                }
                EXPECT_GE(changed, 2 * (each->width() + each->height()) - 40)
                    << theme::wordOf(theme).toStdString() << " " << each->metaObject()->className() << " "
                    << each->objectName().toStdString();
            }
        }
        EXPECT_GT(seen.size(), 130);
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

TEST(FittedText, IsBrokenAndSmallerBeforeItIsElided) {
    const QString caption = u"Player lower third"_s;
    const QFont font = theme::font(15, true);
    // The room holds its widest line at the size that it must come to.
    const std::tuple<int, QString, int> cases[]{
        {28, caption, 15},
        {28, caption, 12},
        {60, u"Player|lower third"_s, 15},
        {28, u"Player|lower third"_s, 12},
        {20, u"Player lower…"_s, 11},
    };
    for (const auto& [height, lines, pixels] : cases) {
        const QFontMetrics metrics(theme::font(pixels, true));
        int widest = 0;
        for (const QString& line : lines.split(u'|')) widest = std::max(widest, metrics.horizontalAdvance(line));
        const FittedText text = fitted({caption}, font, {widest + 1, height});
        EXPECT_EQ(text.lines.join(u'|').toStdString(), lines.toStdString());
        EXPECT_EQ(text.font.pixelSize(), pixels) << lines.toStdString();
        EXPECT_LE(text.height(), std::max(height, metrics.height()));
    }
    // A proposal's lines: the one that is too wide is broken where there is room for a third.
    const QStringList proposal{u"Karas"_s, u"points rebounds"_s};
    const int wide = QFontMetrics(font).horizontalAdvance(proposal[1]);
    EXPECT_EQ(fitted(proposal, font, {qRound(wide * 0.65), 41}).lines.join(u'|'), u"Karas|points|rebounds");
    EXPECT_EQ(fitted(proposal, font, {qRound(wide * 0.65), 30}).lines.size(), 2);
    EXPECT_EQ(mostLines(font, 41), 3);
    EXPECT_LE(fitted({u"Karas"_s, u"11"_s, u"9"_s}, font, {wide, 41}).height(), 41) << "smaller where that is too low";
}

TEST(Boxes, ScrollWhatALabelWouldNotShowWhole) {
    Gallery gallery;
    gallery.start();
    const std::pair<QString, bool> cases[]{
        {u"Sure?\nYes\tor no"_s, false},           {QString(u"word "_s).repeated(120), false},
        {QString(u"word "_s).repeated(250), true}, {QString(u"line\n"_s).repeated(30), true},
        {QString(u'w').repeated(200), true},       {QString(u"select\ta, b "_s).repeated(5), true},
    };
    for (const auto& [text, scrolls] : cases) {
        bool isView = false;
        gallery.answer = [&, text = text](QDialog& box) {
            isView = box.findChild<QPlainTextEdit*>(u"text"_s) != nullptr;
            box.resize(box.minimumSizeHint());
            if (const auto* label = box.findChild<QLabel*>(u"text"_s)) {
                EXPECT_GE(label->height(), label->heightForWidth(label->width())) << text.left(20).toStdString();
            }
            box.reject();
        };
        gallery.app->boxes().yesNo({}, {}, text);
        EXPECT_EQ(isView, scrolls) << text.left(20).toStdString();
    }
}

TEST(HistoryPanel, TemplateDataIsReadableOrAsItIs) {
    EXPECT_EQ(readableXml(u"<a c=\\\"1\\\">"_s), u"<a c=\\\"1\\\">");
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
    gallery.at("cmbCASPARREMOTELIST").setPosition(2);
    EXPECT_TRUE(gallery.find<QLineEdit>("txtGASPARIPREMOTE")->isReadOnly());
}

// At 1280 x 800 and 150 % nothing but the panels' rest lies outside, below; the cards keep their width.
TEST(Window, FitsASmallScreen) {
    for (const QString& language : UiLanguage::all()) {
        const UiLanguage spoken(language);
        Gallery gallery;
        gallery.writePack({"Score,score.csp"});
        gallery.start();
        MainWindow& window = gallery.app->window();
        constexpr QSize kSmall{853, 510};
        window.resize(kSmall);
        gallery.at("Frame6").setVisible(true);
        const auto placeOf = [&](const QWidget* widget) {
            return QRect(widget->mapTo(&window, QPoint()), widget->size());
        };
        for (int tab = 0; tab < CardConsole::kTabs; ++tab) {
            gallery.click("cmdTAB", tab);
            QCoreApplication::processEvents();
            EXPECT_EQ(window.size(), kSmall);
            const auto* scrolled = gallery.find<QWidget>("cmdTAB", 0)->window()->findChildren<QScrollArea*>().last();
            for (const QWidget* each : window.findChildren<QWidget*>()) {
                if (!each->isVisible() || each->objectName().isEmpty()) continue;
                const QRect place = placeOf(each);
                const bool isOnTheRight = scrolled->isAncestorOf(each);
                const QRect room =
                    isOnTheRight ? QRect(placeOf(scrolled).topLeft(), QSize(scrolled->width(), 9999)) : window.rect();
                EXPECT_TRUE(room.contains(place))
                    << tab << each->objectName().toStdString() << each->property("index").toInt();
            }
        }
        EXPECT_GE(gallery.find<QWidget>("cmbCARD", 0)->width(), 140);
        window.resize(1280, 780);
        QCoreApplication::processEvents();
        EXPECT_TRUE(window.rect().contains(placeOf(gallery.find<QWidget>("lblAPLAYERS", 23)))) << "nothing scrolls";
    }
}

}  // namespace zelvor::test
