#pragma once

#include <QSet>
#include <QStringList>

#include "app_check/expression_check.h"
#include "app_check/pack_files.h"
#include "app_check/script_facts.h"
#include "engine/command_table.h"
#include "form/form_model.h"

namespace zelvor {

// The arguments of one command line.
struct GivenArguments {
    QStringList values;   // as the command takes them, kAnything where a placeholder stands
    QStringList written;  // as they are written
};

// What an argument's role asks of it: finds literals that surely end a card or do nothing, and notes the variables and
// cards that are named. What blocks and loops need of other lines is not its business.
class ArgumentCheck {
 public:
    // askFields: the fields that ASKFIELDS.TXT describes. All must outlive this.
    ArgumentCheck(PackFiles& files, const QSet<int>& askFields) : files_(files), askFields_(askFields) {}

    // The argument at that position, which must be given.
    void check(const Command& command, qsizetype at, const GivenArguments& arguments, const Place& place,
               ScriptFacts& facts);

 private:
    void checkName(const Command& command, qsizetype at, const GivenArguments& arguments, const Place& place,
                   ScriptFacts& facts);
    void checkReplaced(const GivenArguments& arguments, const Place& place, ScriptFacts& facts);
    void checkCard(const QString& card, const Place& place, ScriptFacts& facts);
    void checkProposal(const QString& record, const Place& place, ScriptFacts& facts);
    void checkAskField(const QString& number, const Place& place, ScriptFacts& facts) const;
    void checkControl(Control::Kind kind, bool element, const QStringList& arguments, const Place& place,
                      ScriptFacts& facts) const;

    PackFiles& files_;
    const QSet<int>& askFields_;
    FormModel form_;
    ExpressionCheck expressions_;
};

// Warns of an operator of a condition that does not exist, or does not do what it says.
void checkOperator(const QString& operation, const Place& place, Findings& findings);

// Whether nothing in the argument depends on a placeholder.
bool isKnown(const QString& argument);

}  // namespace zelvor
