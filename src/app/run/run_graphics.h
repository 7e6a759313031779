#pragma once

#include <QTextStream>

#include "app_run/run_options.h"
#include "link/graphics_links.h"

namespace zelvor {

// The links of a terminal run: a link whose server is named is real, any other counts as connected and its lines are
// only printed.
class RunGraphics : public Graphics, public GraphicsNotes {
 public:
    RunGraphics(GraphicsLinks& links, const RunOptions& options, QTextStream& out, QTextStream& err);

    // Connects the named links; false after saying which could not be reached.
    bool connectNamed(Clock& clock);
    // Waits until everything was sent and answered, or a link has gone.
    void finishSending(Clock& clock);
    // Whether every line was sent and none refused; what was not has been said.
    [[nodiscard]] bool allTaken() const { return allTaken_; }

    void sendLine(LinkId link, const QString& command, const Asker& asker) override;
    [[nodiscard]] int state(LinkId link) const override;
    [[nodiscard]] bool logging() const override { return links_.logging(); }
    void writeLog(const QString& line) override { links_.writeLog(line); }
    void appendHistory(std::initializer_list<QStringView> pieces) override { links_.appendHistory(pieces); }
    void clearHistory() override { links_.clearHistory(); }
    // The console's own view of what the lines hold anyway.
    void showLastTemplate(const QString&) override {}

 private:
    void complain(LinkId link, const QString& what, const QString& line);
    [[nodiscard]] const std::optional<HostPort>& address(LinkId link) const;

    GraphicsLinks& links_;
    const RunOptions& options_;
    QTextStream& out_;
    QTextStream& err_;
    bool allTaken_ = true;
};

}  // namespace zelvor
