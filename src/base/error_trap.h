#pragma once

#include <QDeadlineTimer>
#include <QString>
#include <functional>
#include <map>

#include "base/asker.h"
#include "base/run_time_error.h"

namespace zelvor {

// Where an error was trapped.
struct ErrorPlace {
    QString procedure;  // "mGLOBAL.SHOW_TVCARD"
    int line = 0;       // the line of the script reached, as the run counts them; 0 before the first
    Asker asker = {};   // whose deed it was, and where in its card
};

// Wraps every named procedure: an error inside ends the procedure, is written to the error log and, where the
// operator is to be told, shown in one message.
class ErrorTrap {
 public:
    using Reporter = std::function<void(const ErrorPlace& place, const QString& message)>;
    // LogOnly is for timers and the like: the same error of the same procedure is then written once a second at most.
    enum class Tell { Operator, LogOnly };

    // logPath: the error log; it is appended to, and a log that cannot be written is done without.
    explicit ErrorTrap(QString logPath) : logPath_(std::move(logPath)) {}

    // Called with the whole message of each error the operator is to be told.
    void setReporter(Reporter reporter) { reporter_ = std::move(reporter); }

    // Called with the text of each warning that is written.
    void setWarned(std::function<void(const QString& text)> warned) { warned_ = std::move(warned); }

    // Writes a warning to the log: something that went on, but not as it should. The same one is written once a second
    // at most; false when it was left out for that.
    bool warn(const ErrorPlace& place, const QString& text) noexcept;

    // Runs the body; true when it ended without an error. `place` is read when an error has happened, so the body may
    // keep its line up to date. No exception leaves.
    template <class Body>
    bool run(const ErrorPlace& place, Tell tell, Body&& body) noexcept {
        try {
            std::forward<Body>(body)();
            return true;
        } catch (const RunTimeError& error) {
            handle(place, tell, error.number(), error.text());
        } catch (const std::exception& error) {
            handle(place, tell, kInternalError, QString::fromUtf8(error.what()));
        }
        return false;
    }

 private:
    // The number under which an unexpected C++ exception is shown.
    static constexpr int kInternalError = 51;

    void write(const ErrorPlace& place, const QString& kind, const QString& text);
    void handle(const ErrorPlace& place, Tell tell, int number, const QString& text) noexcept;

    [[nodiscard]] bool writtenJustNow(const QString& fault);

    QString logPath_;
    std::map<QString, QDeadlineTimer> justWritten_;
    Reporter reporter_;
    std::function<void(const QString&)> warned_;
};

// The message box's text: number, text, location and line, CR LF between.
QString errorMessage(const ErrorPlace& place, int number, const QString& text);

// The message box's title, "Error in player.csp, line 6"; empty outside of a card run.
QString errorTitle(const ErrorPlace& place);

// The error log of a program: "<executable>.log" in the executable's folder, or in the application folder where that
// cannot be written.
QString errorLogPath(const QString& executablePath, const QString& appFolder);

}  // namespace zelvor
