#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <initializer_list>
#include <limits>
#include <optional>
#include <vector>

#include "base/asker.h"
#include "base/value.h"

namespace zelvor {

// What the card engine needs of the world around it, each a few functions in the words of the trade. The console, the
// terminal tool and the tests give it theirs.

// The person at the desk. asker: whose card or deed it is that speaks; what nobody at the desk has asked for does not
// take the keyboard.
class Operator {
 public:
    enum class Severity { Information, Warning, Critical };

    virtual ~Operator() = default;
    // A message box with one OK button. An empty title stands for the program's name.
    virtual void message(const Asker& asker, const QString& title, const QString& text,
                         Severity severity = Severity::Information) = 0;
    // A box with Yes and No; true for Yes. Closing the program answers No.
    virtual bool yesNo(const Asker& asker, const QString& title, const QString& text) = 0;
    // An input box; nullopt when it was cancelled.
    virtual std::optional<QString> input(const Asker& asker, const QString& title, const QString& prompt,
                                         const QString& proposed) = 0;
};

// The pick list of the ask field in the ask state; reads and writes that state alone.
class AskDialog {
 public:
    virtual ~AskDialog() = default;
    // Shows the list for ASK_FIELD until it is answered: ASK_RESULT is the key chosen, or ASK_CANCELLED is -1.
    virtual void show(const Asker& asker) = 0;
};

enum class LinkId { Main, Remote };

// The two connections to the graphics servers.
class Graphics {
 public:
    // Socket states in which a line is sent.
    static constexpr int kOpen = 1;
    static constexpr int kConnected = 7;

    virtual ~Graphics() = default;
    // Sends one command line, or logs that it could not. Before a line that holds "PLAY" the event loop turns.
    // asker: whose card it is that is marked when the line is refused or not sent; none without a card.
    virtual void sendLine(LinkId link, const QString& command, const Asker& asker) = 0;
    [[nodiscard]] virtual int state(LinkId link) const = 0;
};

// What is noted down beside the lines that are sent: the history list, the log file, the last template data.
class GraphicsNotes {
 public:
    virtual ~GraphicsNotes() = default;
    [[nodiscard]] virtual bool logging() const = 0;
    // Writes a line to the log file; nothing when logging is off.
    virtual void writeLog(const QString& line) = 0;
    // Adds "hh:mm:ss" and the pieces behind it to the history list, as one line.
    virtual void appendHistory(std::initializer_list<QStringView> pieces) = 0;
    virtual void clearHistory() = 0;
    // The view of the last template data.
    virtual void showLastTemplate(const QString& xml) = 0;
};

// A query's rows with the names of their columns, for callers that look columns up by name.
struct NamedRows {
    QStringList columns;
    std::vector<std::vector<Value>> rows;
};

// The two database connections. CONN_GREEK differs from CONN_UTF8 in the character set it asks for. While a statement
// runs the event loop turns, but no card begins. A statement that is given up (CLEAR, a press while a card that runs by
// itself waits, the program's end) gives 0, false, nullopt without a word; the run that waited for it is over.
class Database {
 public:
    virtual ~Database() = default;
    // Runs a query on CONN_UTF8 (CONN_GREEK for RUN_QUERY2) into QUERY_RESULT and @RECORDCOUNT. The record count, 0
    // when there was none or the query failed, which is shown to the operator here.
    virtual int RUN_QUERY(const Asker& asker, const QString& sql) = 0;
    virtual int RUN_QUERY2(const Asker& asker, const QString& sql) = 0;
    // Runs a statement on CONN_UTF8 and ignores its result. Throws RunTimeError with the driver's text.
    virtual bool execute(const Asker& asker, const QString& sql) = 0;
    // Reads a query's rows on CONN_GREEK. Throws RunTimeError with the driver's text.
    virtual std::optional<NamedRows> readGreek(const Asker& asker, const QString& sql) = 0;
};

// What lies outside of the program's windows, and the program's other forms.
class Desktop {
 public:
    virtual ~Desktop() = default;
    // Asks the operating system to open a file, folder or address. Throws 53 when it cannot.
    virtual void open(const QString& target) = 0;
    // Shows a form of the system by its name, not modally. An unknown name throws 9.
    virtual void loadForm(const Asker& asker, const QString& name) = 0;
};

// Time, and turns of the event loop.
class Clock {
 public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual QDateTime now() const = 0;
    // now() without the date's and the time zone's cost.
    [[nodiscard]] virtual qint64 secondsSinceEpoch() const { return now().toSecsSinceEpoch(); }
    // Milliseconds from some moment on, whatever is done to the wall clock meanwhile: for measuring.
    [[nodiscard]] virtual qint64 steadyMilliseconds() const { return now().toMSecsSinceEpoch(); }
    static constexpr qint64 kAsLongAsItTakes = std::numeric_limits<qint64>::max();
    // Handles pending events that many times, for that many milliseconds at most. False as soon as the program is
    // closing: the caller ends at once.
    virtual bool turnEvents(int turns, qint64 longest = kAsLongAsItTakes) = 0;
    // Handles events until one comes or a few milliseconds have passed; false as turnEvents().
    virtual bool waitBriefly() = 0;
};

struct Ports {
    Operator& operatorDesk;
    AskDialog& askDialog;
    Graphics& graphics;
    GraphicsNotes& notes;
    Database& database;
    Desktop& desktop;
    Clock& clock;
};

}  // namespace zelvor
