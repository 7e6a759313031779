// Writes the syntax files of editors from the command table:
//   editor_syntax editors            writes them
//   editor_syntax --check editors    writes nothing, and fails when they are not up to date

#include <QString>
#include <QStringList>
#include <array>
#include <cstdio>

#include "engine/command_table.h"
#include "written_page.h"

using namespace Qt::StringLiterals;

namespace {

QStringList words() {
    QStringList all{u"IFL"_s};
    for (const zelvor::Command* command : zelvor::allCommands()) all += command->word.toString();
    all.sort();
    return all;
}

QString vim() {
    QString text =
        uR"(" Card scripts of Zelvor Cards. Written by tools/editor_syntax.cpp; change it there.
if exists("b:current_syntax")
  finish
endif
syntax case ignore
syntax match zelvorComment "^\s*#.*$"
syntax region zelvorPlaceholder start="{" end="}" oneline contains=zelvorPlaceholder
syntax match zelvorSeparator "[~;]"
)"_s;
    // At the start of a line, or of a line of IFL.
    text += u"syntax match zelvorCommand /\\(^\\s*\\|\\~\"\\)\\@<=\\("_s + words().join(u"\\|"_s) +
            u"\\)\\ze\\s*\\(\\~\\|\"\\|$\\)/\n"_s;
    return text +
           uR"(highlight default link zelvorComment Comment
highlight default link zelvorCommand Statement
highlight default link zelvorPlaceholder Identifier
highlight default link zelvorSeparator Delimiter
let b:current_syntax = "zelvor"
)"_s;
}

QString kate() {
    QString items;
    for (const QString& word : words()) items += u"      <item>"_s + word + u"</item>\n"_s;
    return uR"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE language>
<!-- Written by tools/editor_syntax.cpp; change it there. -->
<language name="Zelvor card script" section="Scripts" version="1" kateversion="5.0" extensions="*.csp;*.inc" casesensitive="0">
  <highlighting>
    <list name="commands">
)"_s + items +
           uR"(    </list>
    <contexts>
      <context name="Line" attribute="Text" lineEndContext="#stay">
        <RegExpr attribute="Comment" context="Comment" String="^\s*#" column="0"/>
        <keyword attribute="Command" context="#stay" String="commands" firstNonSpace="true"/>
        <Detect2Chars attribute="Separator" context="Branch" char="~" char1="&quot;"/>
        <IncludeRules context="Text"/>
      </context>
      <context name="Branch" attribute="Text" lineEndContext="#pop" fallthroughContext="#pop">
        <keyword attribute="Command" context="#pop" String="commands"/>
      </context>
      <context name="Text" attribute="Text" lineEndContext="#stay">
        <DetectChar attribute="Placeholder" context="Placeholder" char="{"/>
        <AnyChar attribute="Separator" context="#stay" String="~;"/>
      </context>
      <context name="Placeholder" attribute="Placeholder" lineEndContext="#pop">
        <DetectChar attribute="Placeholder" context="Placeholder" char="{"/>
        <DetectChar attribute="Placeholder" context="#pop" char="}"/>
      </context>
      <context name="Comment" attribute="Comment" lineEndContext="#pop"/>
    </contexts>
    <itemDatas>
      <itemData name="Text" defStyleNum="dsNormal"/>
      <itemData name="Comment" defStyleNum="dsComment"/>
      <itemData name="Command" defStyleNum="dsKeyword"/>
      <itemData name="Placeholder" defStyleNum="dsVariable"/>
      <itemData name="Separator" defStyleNum="dsOperator"/>
    </itemDatas>
  </highlighting>
  <general>
    <keywords casesensitive="0" additionalDeliminator="~" weakDeliminator="+"/>
    <comments><comment name="singleLine" start="#"/></comments>
  </general>
</language>
)"_s;
}

QString textMate() {
    const QString any = words().join(u'|').replace(u"+"_s, u"\\\\+"_s);
    const QString text =
        uR"-({
  "comment": "Written by tools/editor_syntax.cpp; change it there.",
  "name": "Zelvor card script",
  "scopeName": "source.zelvor",
  "patterns": [
    { "name": "comment.line.number-sign.zelvor", "match": "^\\s*#.*$" },
    { "name": "keyword.control.zelvor", "match": "(?i)(?:^\\s*|(?<=~\"))(?:WORDS)(?=\\s*(?:~|\"|$))" },
    { "include": "#placeholder" },
    { "name": "punctuation.separator.zelvor", "match": "[~;]" }
  ],
  "repository": {
    "placeholder": {
      "name": "variable.other.zelvor", "begin": "\\{", "end": "\\}|$", "patterns": [{ "include": "#placeholder" }]
    }
  }
}
)-"_s;
    return QString(text).replace(u"WORDS"_s, any);
}

}  // namespace

int main(int argc, char* argv[]) {
    const bool checkOnly = argc == 3 && std::string(argv[1]) == "--check";
    if (argc != 2 && !checkOnly) {
        std::fputs("usage: editor_syntax [--check] FOLDER\n", stderr);
        return 2;
    }
    const std::string folder = argv[argc - 1];
    struct File {
        const char* name;
        QString text;
    };
    const std::array files{File{"/vim/syntax/zelvor.vim", vim()}, File{"/kate/zelvor.xml", kate()},
                           File{"/vscode/syntaxes/zelvor.tmLanguage.json", textMate()}};
    bool ok = true;
    for (const File& file : files) {
        ok = holdsOrWrites(folder + file.name, file.text.toStdString(), checkOnly, "editor_syntax editors") && ok;
    }
    return ok ? 0 : 1;
}
