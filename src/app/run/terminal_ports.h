#pragma once

#include <QStringList>
#include <QTextStream>
#include <functional>

#include "engine/ports.h"
#include "form/form_model.h"

namespace zelvor {

// The ports of a run without a display. What goes on air and what changes on the form is printed as it happens;
// message boxes and questions go to the error stream, their answers come from the command line.

class TerminalOperator : public Operator {
 public:
    TerminalOperator(QTextStream& err, bool yes) : err_(err), yes_(yes) {}

    void message(const Asker& asker, const QString& title, const QString& text, Severity severity) override;
    bool yesNo(const Asker& asker, const QString& title, const QString& text) override;
    std::optional<QString> input(const Asker& asker, const QString& title, const QString& prompt,
                                 const QString& proposed) override;

 private:
    void print(const QString& title, const QString& text, const QString& answer);

    QTextStream& err_;
    bool yes_;
};

class TerminalDesktop : public Desktop {
 public:
    explicit TerminalDesktop(QTextStream& out) : out_(out) {}

    void open(const QString& target) override;
    void loadForm(const Asker& asker, const QString& name) override;

 private:
    QTextStream& out_;
};

// "main > LINE" or "remote > LINE".
void printSentLine(QTextStream& out, LinkId link, const QString& command);

// "console > lblTime.Caption = 9:58", once for each change of the form.
void printFormChange(QTextStream& out, const Control& control, Control::Property property);

// CR and LF as \r and \n, nothing else escaped: a value in one line.
QString inOneLine(QString text);

}  // namespace zelvor
