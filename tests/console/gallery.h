#pragma once

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <memory>

#include "app_cards/cards_app.h"
#include "support/heard.h"

namespace zelvor::test {

// The whole console on an application folder of the test's own, driven through its window.
class Gallery {
 public:
    Gallery() { QDir(folder.path()).mkpath(QStringLiteral("MODULES/QRD_EN")); }

    // name: relative to MODULES.
    void write(const QString& name, const QByteArray& bytes) const {
        QFile file(folder.filePath(QStringLiteral("MODULES/") + name));
        if (file.open(QIODevice::WriteOnly)) file.write(bytes);
    }
    void writeCard(const QByteArray& name, const QByteArray& script) const {
        write(QStringLiteral("QRD_EN/%1.csp").arg(QString::fromLatin1(name)), script + "\r\n");
    }
    // A pack "EN": set 1 holds `cards`, the rest of its 21 lines are empty; set 2 a card "Second". Each card sends its
    // script's name in capitals until another script is written, and CLEAR "CLEAR 1".
    void writePack(const QByteArrayList& cards, const QByteArray& head = {}) const {
        write(QStringLiteral("PACKS.TXT"), "EN;Basketball\r\n");
        write(QStringLiteral("QRD_EN/CONNECTIONS.TXT"), "1==Test==Driver=SQLite3;Database=test.db\r\n");
        write(QStringLiteral("QRD_EN/ASKFIELDS.TXT"), {});
        write(QStringLiteral("QRD_EN/GetGame.csp"), "FUNCTIONCARD\r\nSETVAR~@HTLNAMEEN;Harbour City\r\n");
        QByteArrayList lines = cards;
        while (lines.size() < CardTable::kCards) lines += ",";
        QByteArrayList second(CardTable::kCards, ",");
        second[0] = "Second,second.csp";
        write(QStringLiteral("QRD_EN/CARDS.TXT"), head + "CLEAR:clear.csp\r\nSETNO:1,Game\r\n" + lines.join("\r\n") +
                                                      "\r\nSETNO:2,Players\r\n" + second.join("\r\n") + "\r\n");
        for (const QByteArray& card : cards + second.first(1)) {
            const QByteArray name = card.split(',').value(1).split('.').first();
            if (!name.isEmpty()) writeCard(name, "CSPSEND~" + name.toUpper());
        }
        writeCard("clear", "FUNCTIONCARD\r\nCSPSEND~CLEAR 1");
    }

    // Starts the console; every box is answered with "1" and Enter and remembered with its title and text.
    void start(const QString& commandLine = {}) {
        CardsApp::Options options{
            folder.path(), {}, folder.filePath(QStringLiteral("errors.log")), commandLine, feedPort};
        if (adjust) adjust(options);
        app = std::make_unique<CardsApp>(options);
        QObject::connect(&app->boxes(), &Boxes::opened, [this](QDialog* box) {
            const auto* text = box->findChild<QWidget*>(QStringLiteral("text"));
            shown +=
                box->windowTitle() + u'|' + text->property("text").toString() + text->property("plainText").toString();
            QTimer::singleShot(0, box, [this, box] { answer(*box); });
        });
        app->start();
    }

    template <class Widget>
    Widget* find(const char* name, int index = -1) const {
        for (Widget* widget : app->window().findChildren<Widget*>(QString::fromLatin1(name))) {
            if (widget->property("index").toInt() == index) return widget;
        }
        return nullptr;
    }
    // One of the program's windows.
    QWidget* form(const char* name) const {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1StringView(name)) return window;
        }
        return nullptr;
    }
    void click(const char* name, int index = -1) const {
        QCoreApplication::processEvents();  // a button fires the card that was painted on it
        QTest::mouseClick(find<QWidget>(name, index), Qt::LeftButton);
    }
    void press(Qt::Key key) const {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus != nullptr ? focus : &app->window(), key);
    }
    Control& at(const char* name, int index = -1) const { return *app->form().find(QString::fromLatin1(name), index); }

    void connectMain(quint16 port) const {
        at("txtGASPARPORT").setText(QString::number(port));
        click("cmdGASPARCONNECT");
        waitUntil([&] { return app->links().state(LinkId::Main) == Graphics::kConnected; });
    }
    void connectMain(const LineServer& server) const {
        connectMain(server.serverPort());
        waitUntil([&] { return server.peer != nullptr; });
    }

    QTemporaryDir folder;
    quint16 feedPort = 0;
    std::function<void(CardsApp::Options& options)> adjust;  // of the start
    QStringList shown;
    std::function<void(QDialog& box)> answer = [](QDialog& box) {
        if (auto* field = box.findChild<QLineEdit*>(QStringLiteral("answer"))) field->setText(QStringLiteral("1"));
        box.accept();
    };
    std::unique_ptr<CardsApp> app;
};

}  // namespace zelvor::test
