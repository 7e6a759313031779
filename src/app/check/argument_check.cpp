#include "app_check/argument_check.h"

#include "app_check/literal_check.h"
#include "app_check/placeholder_scan.h"
#include "engine/condition.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

using Role = Command::Role;

void checkVariable(const QString& name, const Place& place, ScriptFacts& facts) {
    const bool readable = name.startsWith(u'@') || name.startsWith(kAnything);
    const bool tag = name.startsWith(u"AUTOTAG_") || name.startsWith(u"LASTCARDTAG");
    if (!readable && !tag) {
        facts.findings.warning(place, u"no placeholder can read \"%1\": it has no \"@\""_s.arg(name));
    }
    facts.sets.push_back({name, place});
}

void checkFilled(const Command& command, qsizetype at, const QString& text, const Place& place, Findings& findings) {
    if (!text.trimmed().isEmpty()) return;
    findings.error(place, u"%1 is given no %2"_s.arg(command.word, command.usage.split(u';')[at]));
}

}  // namespace

bool isKnown(const QString& argument) {
    return !argument.contains(kAnything);
}

void checkOperator(const QString& operation, const Place& place, Findings& findings) {
    if (!isKnown(operation)) return;
    if (!isConditionOperator(operation)) {
        findings.warning(place, u"\"%1\" is no operator: the condition is never true"_s.arg(operation));
    } else if (operation == u"!null") {
        findings.warning(place, u"\"!null\" is true when the text is empty, as \"null\" is; for the opposite use s!"_s);
    }
}

void ArgumentCheck::check(const Command& command, qsizetype at, const GivenArguments& arguments, const Place& place,
                          ScriptFacts& facts) {
    const Role role = command.roles[static_cast<size_t>(at)];
    const QString& argument = arguments.values[at];
    switch (role) {
        case Role::Variable:
            if (argument == u"@AUTOCARD") checkCard(arguments.values.value(1), place, facts);
            return checkVariable(argument, place, facts);
        case Role::VariableName:
        case Role::WrittenName:
        case Role::VariablePrefix:
        case Role::WrittenPrefix:
            return checkName(command, at, arguments, place, facts);
        case Role::ReplacedText:
            return checkReplaced(arguments, place, facts);
        case Role::AutoCard:
            facts.autoCards.push_back({argument, place});
            return checkCard(argument, place, facts);
        case Role::Card:
            return checkCard(argument, place, facts);
        case Role::Formula:
            return expressions_.checkFormula(argument, place, facts.findings);
        case Role::Expression:
            return expressions_.checkExpression(argument, place, facts.findings);
        case Role::Operand:
            return expressions_.checkOperand(argument, place, facts.findings);
        case Role::Path:
            if (argument.indexOf(u';') > 0) {
                facts.findings.warning(place, u"%1 reads its path up to the first \";\""_s.arg(command.word));
            }
            return checkFilled(command, at, argument.section(u';', 0, 0), place, facts.findings);
        case Role::Filled:
            return checkFilled(command, at, argument, place, facts.findings);
        case Role::Operation:
            return checkOperator(argument, place, facts.findings);
        case Role::AskField:
            return checkAskField(argument, place, facts);
        case Role::Label:
            // An element's number that is none is told where its own role is checked.
            return checkControl(Control::Kind::Label,
                                command.roles[1] == Role::WholeNumber && wholeNumberOf(arguments.values.value(1)),
                                arguments.values, place, facts);
        case Role::TextBox:
            return checkControl(Control::Kind::TextBox, arguments.values.size() > 2, arguments.values, place, facts);
        case Role::Field:
            return checkField(arguments.values, false, place, facts.findings);
        case Role::RemoteField:
            return checkField(arguments.values, true, place, facts.findings);
        case Role::Proposal:
            checkProposal(arguments.values.value(1), place, facts);
            [[fallthrough]];
        default:
            return checkLiteral(role, argument, place, facts.findings);
    }
}

// A name without its "@", which a prefix has an "_" behind.
void ArgumentCheck::checkName(const Command& command, qsizetype at, const GivenArguments& arguments, const Place& place,
                              ScriptFacts& facts) {
    const Role role = command.roles[static_cast<size_t>(at)];
    const bool asWritten = role == Role::WrittenName || role == Role::WrittenPrefix;
    const QString name = asWritten ? arguments.written.value(at) : arguments.values[at];
    if (name.startsWith(u'@')) facts.findings.warning(place, u"the \"@\" is added: this sets @"_s + name);
    if (asWritten && name.contains(u'{')) {
        facts.findings.warning(place, u"%1 does not replace placeholders in its name"_s.arg(command.word));
    }
    const bool prefix = role == Role::VariablePrefix || role == Role::WrittenPrefix;
    facts.sets.push_back({u'@' + name + (prefix ? QString(u'_') + kAnything : QString()), place});
}

// REPLACE names its variable in the text that it replaces in: {@NAME}.
void ArgumentCheck::checkReplaced(const GivenArguments& arguments, const Place& place, ScriptFacts& facts) {
    QString name = arguments.written[0];
    name.remove(u'{').remove(u'}');
    checkVariable(name, place, facts);
    const QString& text = arguments.values[0];
    const QString find = arguments.values.value(1);
    if (isKnown(text) && isKnown(find) && !text.contains(find)) {
        facts.findings.error(place,
                             u"REPLACE finds nothing in the text \"%1\"; its value is written {%2}"_s.arg(text, name));
    }
}

void ArgumentCheck::checkCard(const QString& card, const Place& place, ScriptFacts& facts) {
    facts.cards.push_back({card, place});
    if (isKnown(card) && !card.contains(u'{') && !card.isEmpty() && !files_.cardExists(card)) {
        facts.findings.error(place, u"the card %1 does not exist"_s.arg(card));
    }
}

// The record of a proposal. One without a card and a tag is refused when it is looked at: an empty label has none.
void ArgumentCheck::checkProposal(const QString& record, const Place& place, ScriptFacts& facts) {
    const auto separators = record.count(u'|');
    if (isKnown(record) && (separators == 1 || separators == 2)) {
        facts.findings.error(place, u"the proposal \"%1\" is not id|used|card|tag"_s.arg(record));
    }
    checkCard(record.section(u'|', 2, 2), place, facts);
}

void ArgumentCheck::checkAskField(const QString& number, const Place& place, ScriptFacts& facts) const {
    const QString first = number.section(u';', 0, 0);
    if (!isKnown(first)) return;
    const std::optional<int> field = wholeNumberOf(first);
    if (!field || !askFields_.contains(*field)) {
        facts.findings.error(place, u"ASKFIELDS.TXT has no field "_s + first);
    }
}

// element: whether the second argument is the number of one in an array.
void ArgumentCheck::checkControl(Control::Kind kind, bool element, const QStringList& arguments, const Place& place,
                                 ScriptFacts& facts) const {
    const QString& name = arguments[0];
    if (!isKnown(name)) return;
    const QString kindName = kind == Control::Kind::Label ? u"label"_s : u"text box"_s;
    bool found = false;
    for (const Control* control : form_.named(name)) found = found || control->kind() == kind;
    if (!found) {
        facts.findings.error(place, u"the form has no %1 %2"_s.arg(kindName, name));
        return;
    }
    if (!element || !isKnown(arguments[1])) return;
    const std::optional<int> index = wholeNumberOf(arguments[1]);
    if (!index || form_.find(name, *index) == nullptr) {
        facts.findings.error(place, u"the form has no %1 %2(%3)"_s.arg(kindName, name, arguments[1]));
    }
}

}  // namespace zelvor
