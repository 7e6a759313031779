#pragma once

#include <QHash>
#include <QSet>
#include <QStringList>
#include <optional>

#include "app_check/argument_check.h"
#include "app_check/script_lines.h"

namespace zelvor {

// Checks a card script by the rows of the command table, without running it.
class ScriptCheck {
 public:
    // askFields: the fields that ASKFIELDS.TXT describes. Both must outlive this.
    ScriptCheck(PackFiles& files, const QSet<int>& askFields);

    // One script with its includes.
    ScriptFacts check(const QString& path);

 private:
    // What is being checked: a line, or one of the two command lines of an IFL.
    struct Spot {
        const Place& place;
        int index;
        bool included;
        bool branch;
    };

    void noteCommands(const ScriptLine& line);
    void checkLine(const ScriptLine& line, const Spot& spot);
    void checkCondition(const ScriptLine& line, const Spot& spot);
    void checkCommand(const ScriptLine& line, const Spot& spot);
    QString scanned(const ScriptLine& line, const Place& place);
    QString expanded(const QString& text, const Place& place);
    bool checkCount(const ScriptLine& line, const QString& argument, const Place& place);
    bool checkFlow(Command::Role role, const QString& argument, bool given, const Spot& spot);
    void noteWaiting(const Command& command, const QString& argument, const Place& place);
    void checkInclude(const ScriptLine& line, const Spot& spot);
    void beginBlock(const QString& label, const Spot& spot);
    void endBlock(const QString& label, const Spot& spot);
    void beginLoop(const QString& name, const Spot& spot);
    void endLoop(const Spot& spot);

    PackFiles& files_;
    ArgumentCheck arguments_;
    QStringList words_;

    // Of the script being checked.
    ScriptFacts facts_;
    QSet<QStringView> commands_;         // that stand in a line or under a condition
    QHash<QString, int> lastBlockEnds_;  // the last "FI~label" line of each label
    QSet<QString> openedLabels_;
    std::optional<Place> openLoop_;
    bool loopBegun_ = false;
};

}  // namespace zelvor
