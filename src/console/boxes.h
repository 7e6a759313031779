#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <deque>
#include <set>

#include "engine/ports.h"
#include "engine/show_state.h"

class QDialog;

namespace zelvor {

// The operator's message, yes/no and input boxes: top-level windows in the console's look. While one is open, timers
// and sockets go on; all end at once when the program closes.
class Boxes : public QObject, public Operator {
    Q_OBJECT

 public:
    explicit Boxes(const ShowState& state) : state_(state) {}

    // The window that the boxes stand over, unless the operator is in another one.
    void setWindow(QWidget& window) { window_ = &window; }

    // A message of a card that no operator has fired is shown without waiting and without taking the keyboard; further
    // ones are dropped while it stands.
    void message(const QString& title, const QString& text, Severity severity = Severity::Information) override;
    // An error of a card; one that no operator has fired offers to keep quiet about that card.
    void cardError(const QString& card, const QString& text);
    // Cards that were loaded anew are told of again.
    void forgetQuietCards() { quietCards_.clear(); }
    bool yesNo(const QString& title, const QString& text) override;
    std::optional<QString> input(const QString& title, const QString& prompt, const QString& proposed) override;

    // Ends every open box as if it had been cancelled.
    void closeAll();

 Q_SIGNALS:
    // A box is about to wait for its answer: a test may give it.
    void opened(QDialog* box);

 private:
    bool run(QDialog& box);
    QWidget* over();
    // The notice that is shown, null when it is dropped.
    QDialog* showNotice(const QString& title, const QString& text, Severity severity);

    const ShowState& state_;
    QPointer<QWidget> window_;
    QPointer<QWidget> used_;  // the window that the operator was in last
    std::deque<QPointer<QDialog>> open_;
    QPointer<QDialog> notice_;
    std::set<QString> quietCards_;
};

}  // namespace zelvor
