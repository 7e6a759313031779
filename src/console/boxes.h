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

    // Boxes of a card that no operator has fired do not take the keyboard. Its message waits for nobody and offers to
    // keep quiet about that card; further ones are dropped while it stands.
    void message(const QString& title, const QString& text, Severity severity = Severity::Information) override;
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
    void showNotice(const QString& title, const QString& text, Severity severity);

    const ShowState& state_;
    QPointer<QWidget> window_;
    QPointer<QWidget> used_;  // the window that the operator was in last
    std::deque<QPointer<QDialog>> open_;
    QPointer<QDialog> notice_;
    std::set<QString> quietCards_;
};

}  // namespace zelvor
