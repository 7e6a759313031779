// Writes the reference page of the card commands from the command table and the card scripts that the tests run:
//   command_reference docs/commands.md tests/cards            writes the page
//   command_reference --check docs/commands.md tests/cards    writes nothing, and fails when it is not up to date
// An example begins in a script behind the line "# example > WORD [WORD...]" and ends at the next such line. A command
// without an example is a failure.

#include <QDir>
#include <QFile>
#include <QHash>
#include <QTextStream>
#include <array>
#include <cstdio>

#include "engine/command_table.h"
#include "written_page.h"

using namespace Qt::StringLiterals;

namespace {

using zelvor::Command;

const QString kIntroduction =
    uR"(# Commands of card scripts

Every command of the card language, group by group, with an example that the tests run. This page is written by
`tools/command_reference.cpp` from the command table and from `tests/cards`; change it there.

A script is a text file of lines `COMMAND~arguments`. The command word may be in upper or lower case and is ended by
`~`; the arguments end at a second `~`. Several arguments are separated by `;`. Blanks around a line and tabs in it do
not count. A line whose word is no command does nothing: so `#` begins a comment.

Placeholders, `{@NAME}` for a variable and `{row|column}` for a cell of the query result, are replaced before the
command sees its arguments, unless its entry says that they stay. An argument text that begins with `%` stays as it is.

In the examples `# main >` and `# remote >` show what is put on air, `# var >` what a variable holds afterwards,
`# console >` what changes on the console, `# says >` what the operator is asked. `# args >` are further arguments of
`zelvor run`.
)"_s;

const QString kOperators =
    uR"(
Conditions of `IFL` and `IF` have the form `left;operator;right`:

| Operator | True when |
| --- | --- |
| `=` `<>` `<` `>` `<=` `>=` | so as numbers. A text counts as the number it begins with: `12abc` is 12, `abc` is 0 |
| `s=` `s!` | the texts are equal, are different; upper and lower case differ |
| `in` `!in` | left occurs, does not occur in right |
| `null` | left is empty |
| `!null` | left is empty, too: write `left;s!;` to test for something |

Operators are written in lower case, without blanks. An unknown one is never true.
)"_s;

struct Group {
    QString title;
    QString notes;
    std::span<const Command> rows;
};

// The one command that is no row of the table: it stands for another line.
const std::array kLineCondition{
    Command{u"IFL", nullptr, Command::Argument::Expanded, u"left;operator;right~\"then line\"[~\"else line\"]",
            u"runs one of two lines, written between double quotes; they hold none themselves"}};

std::vector<Group> groups() {
    using namespace zelvor::commands;
    return {
        {u"Flow"_s, kOperators, flow()},
        {u"Lines under a condition"_s, {}, kLineCondition},
        {u"Variables"_s, {}, variables()},
        {u"Calculations"_s,
         u"\n`EVAL` is described in [script-expressions.md](script-expressions.md), `CALC` in [formulas.md](formulas.md).\n"_s,
         calculations()},
        {u"Card buttons, clock cards, desktop"_s,
         u"\nButtons are counted from 0 and belong to the set that is shown.\n"_s, cards()},
        {u"Template data"_s,
         u"\nA value may be `value|size`, `value|size|offset` or `value#attribute#text`. The remote commands need all "
         u"three "
         "pieces where there is a `|`, take one character of animation, and let a field's name hold `-` and `*`.\n"_s,
         templateData()},
        {u"Graphics"_s,
         u"\nEvery `'` in a line becomes `\"`. On the main link `!!POC!!` becomes the channel: 1, in the preview "
         u"instance "
         "2. A line that cannot be sent is lost; the log file says so.\n"_s,
         graphics()},
        {u"Text files"_s,
         u"\nPaths may be written with `\\` or `/`; a relative one begins in the application folder.\n"_s, textFiles()},
        {u"What the operator sees, proposals"_s,
         u"\nControls are named as on the form: `lblHTEAM`, `txtS5H`, `lblHPLAYERS`. A name that does not exist is "
         "ignored.\n"_s,
         feedback()},
        {u"Questions and queries"_s,
         u"\nThe rows of a query are `{1|0}`, `{1|1}` ... `{2|0}` ...: rows from 1, columns from 0. A query "
         "without rows or with an error ends the card and shows NO DATA. `EXECSQL` replaces the placeholders of its "
         "text.\n"_s,
         askAndQuery()},
    };
}

struct Example {
    QString firstWord;
    QString script;
};

QHash<QString, Example> readExamples(const QString& folder) {
    QHash<QString, Example> examples;
    for (const QString& name : QDir(folder).entryList({u"*.csp"_s}, QDir::Files, QDir::Name)) {
        QFile file(folder + u'/' + name);
        if (!file.open(QIODevice::ReadOnly)) continue;
        QStringList words;
        for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
            if (line.startsWith(u"# example > ")) {
                words = line.mid(12).split(u' ');
                for (const QString& word : words) examples[word] = {words[0], {}};
            } else {
                for (const QString& word : words) examples[word].script += line + u'\n';
            }
        }
    }
    return examples;
}

void addCommand(QTextStream& page, const Command& command, const QHash<QString, Example>& examples) {
    const QString word = command.word.toString();
    page << "\n### " << word << "\n\n    " << word;
    if (!command.usage.isEmpty()) page << '~' << command.usage;
    QString effect = command.summary.toString();
    effect[0] = effect[0].toUpper();
    page << "\n\n" << effect << '.';
    if (command.argument != Command::Argument::Expanded && !command.usage.isEmpty())
        page << " Placeholders in its argument stay.";
    page << '\n';
    const Example example = examples.value(word);
    if (example.script.isEmpty()) return;
    if (example.firstWord != word) {
        page << "\nExample: under [" << example.firstWord << "](#" << example.firstWord.toLower().remove(u'+')
             << ").\n";
        return;
    }
    page << "\n```\n" << example.script << "```\n";
}

}  // namespace

int main(int argc, char* argv[]) {
    const bool checkOnly = argc == 4 && std::string_view(argv[1]) == "--check";
    if (argc != 3 && !checkOnly) {
        std::fprintf(stderr, "usage: command_reference [--check] FILE SCRIPTS_FOLDER\n");
        return 2;
    }
    const QHash<QString, Example> examples = readExamples(QFile::decodeName(argv[argc - 1]));
    bool whole = true;
    QString text;
    QTextStream page(&text);
    page << kIntroduction;
    for (const Group& group : groups()) {
        page << "\n## " << group.title << '\n' << group.notes;
        for (const Command& command : group.rows) {
            addCommand(page, command, examples);
            if (!examples.value(command.word.toString()).script.isEmpty()) continue;
            std::fprintf(stderr, "no script has an example of %s\n", qPrintable(command.word.toString()));
            whole = false;
        }
    }
    page.flush();
    const bool upToDate = holdsOrWrites(argv[argc - 2], text.toStdString(), checkOnly, "command_reference");
    return upToDate && whole ? 0 : 1;
}
