#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <map>
#include <set>

#include "base/program.h"
#include "engine/ports.h"

class QDialog;

namespace zelvor {

// The operator's message, yes/no and input boxes: top-level windows in the console's look. While one is open, timers
// and sockets go on. When CLEAR is pressed or the program closes, all end as if they had been cancelled.
class Boxes : public QObject, public Operator {
    Q_OBJECT

 public:
    explicit Boxes(Program& program) : program_(program) {}

    // The window that the boxes stand over, unless the operator is in another one.
    void setWindow(QWidget& window) { window_ = &window; }

    // Boxes of an asker who is not attended do not take the keyboard. Its message waits for nobody and offers to keep
    // quiet about that card; further ones are dropped while it stands.
    void message(const Asker& asker, const QString& title, const QString& text,
                 Severity severity = Severity::Information) override;
    // Cards that were loaded anew are told of again.
    void forgetQuietCards();
    bool yesNo(const Asker& asker, const QString& title, const QString& text) override;
    std::optional<QString> input(const Asker& asker, const QString& title, const QString& prompt,
                                 const QString& proposed) override;

 Q_SIGNALS:
    // What is said of the messages that were not shown; empty for none.
    void silenced(const QString& words);
    // A box is about to wait for its answer: a test may give it.
    void opened(QDialog* box);

 private:
    bool run(const Question& question, QDialog& box);
    QWidget* over(const Asker& asker);
    void countSilenced(const QString& card);
    void showNotice(const QString& card, const QString& title, const QString& text, Severity severity);

    Program& program_;
    QPointer<QWidget> window_;
    QPointer<QWidget> used_;  // the window that the operator was in last
    QPointer<QDialog> notice_;
    std::set<QString> quietCards_;
    std::map<QString, int> silenced_;  // messages not shown, by card
};

}  // namespace zelvor
