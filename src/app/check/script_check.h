#pragma once

#include <QHash>
#include <QSet>
#include <QStringList>
#include <optional>
#include <vector>

#include "app_check/findings.h"
#include "app_check/pack_files.h"
#include "app_check/placeholder_scan.h"
#include "app_check/variable_use.h"
#include "engine/card_script.h"
#include "expr/cls_formula.h"
#include "script/evaluator.h"

namespace zelvor {

// Checks the card scripts of a pack by the rows of the command table, without running them.
class ScriptCheck {
 public:
    // askFields: the fields that ASKFIELDS.TXT describes. All must outlive this.
    ScriptCheck(PackFiles& files, const QSet<int>& askFields, VariableUse& variables, Findings& findings);

    // One script with its includes.
    void check(const QString& path);

 private:
    // A line as the engine numbers them, and where it stands.
    struct Line {
        ScriptLine content;
        Place place;
        bool included = false;
    };
    // What is being checked: a line, or one of the two command lines of an IFL.
    struct Spot {
        const Place& place;
        int index;
        bool included;
        bool branch;
    };

    void read(const QString& path);
    void readInclude(const ScriptLine& line, const Place& place);
    void append(const QString& text, const Place& place, bool included);

    void checkLine(const ScriptLine& line, const Spot& spot);
    void checkCondition(const ScriptLine& line, const Spot& spot);
    void checkCommand(const ScriptLine& line, const Spot& spot);
    QString scanned(const ScriptLine& line, const Place& place);
    QString expanded(const QString& text, const Place& place);
    bool checkCount(const ScriptLine& line, const QString& argument, const Place& place);
    void checkArgument(Command::Role role, const QString& argument, const Spot& spot);
    void checkInclude(const ScriptLine& line, const Spot& spot);
    void checkFormula(const QString& formula, const Place& place);
    void checkExpression(const QString& expression, const Place& place);
    void checkOperand(const QString& operand, const Place& place);
    void checkOperator(const QString& operation, const Place& place);
    void checkAskField(const QString& number, const Place& place);
    void checkButton(const QString& number, const Place& place);
    void setVariable(const QString& name, const Place& place);
    void beginBlock(const QString& label, const Spot& spot);
    void endBlock(const QString& label, const Spot& spot);
    void beginLoop(const QString& name, const Spot& spot);
    void endLoop(const Spot& spot);

    PackFiles& files_;
    const QSet<int>& askFields_;
    VariableUse& variables_;
    Findings& findings_;
    expr::clsFormula formula_;
    script::Evaluator evaluator_;
    QStringList words_;

    // Of the script being checked.
    std::vector<Line> lines_;
    QHash<QString, int> lastBlockEnds_;  // the last "FI~label" line of each label
    QSet<QString> openedLabels_;
    std::optional<Place> openLoop_;
};

}  // namespace zelvor
