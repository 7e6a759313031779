" Card scripts of Zelvor Cards. Written by tools/editor_syntax.cpp; change it there.
if exists("b:current_syntax")
  finish
endif
syntax case ignore
syntax match zelvorComment "^\s*#.*$"
syntax region zelvorPlaceholder start="{" end="}" oneline contains=zelvorPlaceholder
syntax match zelvorSeparator "[~;]"
syntax match zelvorCommand /\(^\s*\|\~"\)\@<=\(ADD2LABELARRAY\|ASKFIELD\|AUTOCLOCKCARD\|AUTOFEED\|AUTOTIMECARD\|BREAK\|BUTTONCOLOR\|BUTTONTEXT\|CALC\|CFILE\|CFILE8\|CHARCOUNT\|CLEARDATA\|CLEARDATAREMOTE\|CSPSEND\|CSPSENDREMOTE\|DELAY\|DISABLEPREVIEW\|ENDCARD\|EVAL\|EXECSQL\|EXECUTE\|FI\|FOREACHREC\|FUNCTIONCARD\|IF\|IFL\|INCLUDE\|ISCLOCK\|ISTIME\|LASTCARDONAIR\|LASTCARDTAG\|LOADFORM\|LOADTXT\|LOADTXTLINE\|LOOPPAGE\|MAKEXML\|MAKEXMLREMOTE\|NORTXOUT\|OFF\|OFFALL\|OFILE\|OFILE8\|ON\|PERCENT\|PERCENTMAX\|PROPOSE\|QUERY\|QUERY+\|REPLACE\|RETURNASK\|ROF\|ROUND\|RTX\|RTXS\|SCANPROPOSED\|SDATA\|SDATAREMOTE\|SETVAR\|SHOW2LABEL\|SHOW2TEXT\|SIMAGE\|SIMAGEREMOTE\|SPLIT\|SQL\|SQL2\|SQLU\|STOPCLOCK\|STOPTIME\|TAG2LABEL\|WFILE\|WFILE8\|WRITELOG\)\ze\s*\(\~\|"\|$\)/
highlight default link zelvorComment Comment
highlight default link zelvorCommand Statement
highlight default link zelvorPlaceholder Identifier
highlight default link zelvorSeparator Delimiter
let b:current_syntax = "zelvor"
