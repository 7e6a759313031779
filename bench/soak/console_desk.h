#pragma once

#include <QAbstractButton>
#include <QDialog>
#include <QTemporaryDir>
#include <memory>

#include "app_cards/cards_app.h"
#include "soak_desk/demo_database.h"

namespace zelvor {

// The real console on a temporary copy of the demo, and the hands of its operator: clicks and keys
// go to the widgets, boxes are agreed to, pick lists answered row by row (now and then cancelled).
class ConsoleDesk : public QObject {
 public:
    // Copies the demo. Ends the program with a message when it cannot.
    explicit ConsoleDesk(const DemoDatabase& database);

    // A file below the application folder; empty when there is none.
    [[nodiscard]] QByteArray read(const QString& name) const;
    // Writes in place: who has the file open sees it.
    void write(const QString& name, const QByteArray& bytes) const;
    // Shows the console and runs its load sequence.
    void start();
    void connectMain(quint16 port);
    // From now on pick lists are answered; without this none may be opened.
    void answerPickLists() { picker_.start(); }

    [[nodiscard]] CardsApp& app() const { return *app_; }
    [[nodiscard]] Control& at(const char* name, int index = -1) const {
        return *app_->form().find(QString::fromLatin1(name), index);
    }
    // A press and a release in the middle of the widget.
    void click(const char* name, int index = -1, Qt::MouseButton button = Qt::LeftButton) const;
    // Paints the widget: a card button fires what was seen on it.
    void look(const char* name, int index) const { widget(name, index).repaint(); }
    void check(const char* name, bool checked) const;
    void press(Qt::Key key) const;
    void choose(const char* menuItem) const;

    // True while a box or pick list keeps the operator from the console.
    [[nodiscard]] static bool atAQuestion();
    // Boxes and lists that stand open, by their titles.
    [[nodiscard]] static QStringList openDialogs();

    [[nodiscard]] int picked() const { return picked_; }

    // Every box that was shown, as title|text.
    QStringList boxes;

 private:
    [[nodiscard]] QWidget& widget(const char* name, int index) const;
    void answerBox(QDialog& box);
    void answerPickList();

    QTemporaryDir folder_;
    std::unique_ptr<CardsApp> app_;
    QTimer picker_;
    int picked_ = 0;
};

// Memory of this program that is in use, VmRSS.
long residentKilobytes();
// Its open files, sockets and the like.
std::size_t openHandles();

}  // namespace zelvor
