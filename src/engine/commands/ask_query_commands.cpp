// Pick lists, queries and the program's forms.

#include "base/number.h"
#include "engine/card_run.h"
#include "engine/forms.h"

using namespace Qt::StringLiterals;

namespace zelvor::commands {

namespace {

void RETURNASK(CardRun& run, const Arguments& args) {
    run.state().ask.ASK_RESULT = numberText(Val(args.text()));
}

void ASKFIELD(CardRun& run, const Arguments& args) {
    AskState& ask = run.state().ask;
    const qint16 field = wholeNumber16(args.pieces()[0]);
    if (run.autoRun()) {
        ask.ASK_FIELD = field;
        const QString answer = run.variables().GetVar(QString(u"AUTOTAG_"_s + ask.field(field).autoTag)).text();
        run.variables().SetVar(u"@RETURNKEY", answer);
        return;
    }
    ask.ASK_PREVIOUS = ask.ASK_RESULT;
    ask.ASK_RESULT = u"0"_s;
    ask.ASK_FIELD = field;
    ask.ASK_CANCELLED = 0;
    run.ports().askDialog.show(run.asker());
    run.goOn();
    if (ask.ASK_CANCELLED == AskState::kYes) {
        run.abandon();
    } else {
        run.variables().SetVar(u"@RETURNKEY", ask.ASK_RESULT);
    }
}

void QUERY(CardRun& run, const Arguments& args) {
    run.state().QUERY_TEXT = args.raw();
}

void QUERY_PLUS(CardRun& run, const Arguments& args) {
    run.state().QUERY_TEXT += args.raw();
}

// No rows, or a query that failed, end the card.
void goOnWith(CardRun& run, int recordCount) {
    run.goOn();
    if (recordCount == 0) run.endWithoutData();
}

void EXECSQL(CardRun& run, const Arguments&) {
    goOnWith(run, run.ports().database.RUN_QUERY(run.asker(), run.expand(run.state().QUERY_TEXT)));
}

void SQL(CardRun& run, const Arguments& args) {
    goOnWith(run, run.ports().database.RUN_QUERY(run.asker(), args.text()));
}

void SQL2(CardRun& run, const Arguments& args) {
    goOnWith(run, run.ports().database.RUN_QUERY2(run.asker(), args.text()));
}

void SQLU(CardRun& run, const Arguments& args) {
    run.ports().database.execute(run.asker(), args.text());
    run.goOn();
}

// A mark for whoever reads the script.
void marker(CardRun&, const Arguments&) {}

void LOADFORM(CardRun& run, const Arguments& args) {
    const QString form = formNamed(args.raw());
    if (form.isEmpty()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange, u"form "_s + args.raw().trimmed());
    run.ports().desktop.loadForm(run.asker(), form);
}

using Argument = Command::Argument;
using Role = Command::Role;

constexpr std::array kAskQueryCommands{
    Command{u"RETURNASK", RETURNASK, Argument::Expanded, u"number", u"sets the answer of the last pick list"},
    Command{u"ASKFIELD", ASKFIELD, Argument::Expanded, u"field",
            u"opens a pick list; its answer becomes @RETURNKEY, Cancel ends the card",
            roles(Role::AskField, Role::Waits)},
    Command{u"QUERY", QUERY, Argument::Raw, u"text", u"begins the text of a query; EXECSQL runs it",
            roles(Role::Query)},
    Command{u"QUERY+", QUERY_PLUS, Argument::Raw, u"text", u"adds to the text of the query", roles(Role::Query)},
    Command{u"EXECSQL", EXECSQL, Argument::None, u"", u"runs the query of QUERY; no rows end the card",
            roles(Role::Text, Role::WaitsForDatabase)},
    Command{u"SQL", SQL, Argument::Expanded, u"statement", u"runs a query; no rows end the card",
            roles(Role::Filled, Role::WaitsForDatabase)},
    Command{u"SQL2", SQL2, Argument::Expanded, u"statement", u"the same on the Greek connection",
            roles(Role::Filled, Role::WaitsForDatabase)},
    Command{u"SQLU", SQLU, Argument::Expanded, u"statement", u"runs a statement that gives no rows",
            roles(Role::Filled, Role::WaitsForDatabase)},
    Command{u"RTX", marker, Argument::None, u"[text]", u"a mark without effect"},
    Command{u"RTXS", marker, Argument::None, u"[text]", u"a mark without effect"},
    Command{u"LOADFORM", LOADFORM, Argument::Raw, u"name", u"shows frmMAIN or frmGENERAL", roles(Role::Form)},
};

}  // namespace

std::span<const Command> askAndQuery() {
    return kAskQueryCommands;
}

}  // namespace zelvor::commands
