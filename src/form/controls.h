#pragma once

#include <span>

#include "form/control_row.h"

namespace zelvor {

// Every control of the main form (frmMAIN), a row each: what is not here does not exist.
struct ControlTable {
    using Kind = ControlKind;
    using Role = ControlRole;

    // Cards and the on-air line.
    ControlRow cmbCARD{Kind::Button,
                       u"cmbCARD",
                       u"Card button %1: fires the card",
                       {},
                       {0, 20},
                       u"Alt+A|Alt+B|Alt+C|Alt+D|Alt+E|Alt+F|Alt+G|Alt+H|Alt+I|Alt+J|Alt+K|Alt+L|Alt+M|"
                       u"Alt+N|Alt+O|Alt+P|Alt+R|Alt+S|Alt+T|Alt+U|Alt+V"};
    ControlRow cmdCARDBOX{Kind::Button,
                          u"cmdCARDBOX",
                          u"Fires card %1 and asks, whatever player is tagged",
                          {.text = u"L"},
                          {0, 20},
                          u"Alt+Shift+A|Alt+Shift+B|Alt+Shift+C|Alt+Shift+D|Alt+Shift+E|Alt+Shift+F|"
                          u"Alt+Shift+G|Alt+Shift+H|Alt+Shift+I|Alt+Shift+J|Alt+Shift+K|Alt+Shift+L|"
                          u"Alt+Shift+M|Alt+Shift+N|Alt+Shift+O|Alt+Shift+P|Alt+Shift+R|Alt+Shift+S|"
                          u"Alt+Shift+T|Alt+Shift+U|Alt+Shift+V"};
    ControlRow GradientButtonS{
        Kind::Button, u"GradientButtonS", u"Shows card set %1", {}, {0, 4}, u"Ctrl+1|Ctrl+2|Ctrl+3|Ctrl+4|Ctrl+5"};
    ControlRow GradientButtonAIR{Kind::Button, u"GradientButtonAIR", u"Clears the screen", {.text = u"CLEAR"},
                                 {},           u"Ctrl+Shift+Del"};
    ControlRow lblONAIR{Kind::Label, u"lblONAIR", u"What is on air"};
    ControlRow lblONAIRLAMP{Kind::Label, u"lblONAIRLAMP", u"On-air lamp: green clear, red on air"};
    ControlRow lblONAIRCARD{Kind::Label, u"lblONAIRCARD", u"The card on air"};
    ControlRow lblONAIRTROUBLE{Kind::Label, u"lblONAIRTROUBLE",
                               u"The card whose line was refused or not sent, and why"};
    ControlRow chkONAIRLOCK{
        Kind::CheckBox, u"chkONAIRLOCK", u"Lock: cards no longer change the on-air line", {.text = u"Lock"}, {},
        u"Ctrl+Shift+O"};
    ControlRow lblPREVIEW{
        Kind::Label, u"lblPREVIEW", u"This is the preview instance", {.text = u"PREVIEW", .visible = false}};
    ControlRow lblTESTSENDER{Kind::Label,
                             u"lblTESTSENDER",
                             u"The test sender loads the main graphics server: STOP is on the Clocks tab",
                             {.text = u"TEST SENDER ON", .visible = false}};
    ControlRow lblFKEY{Kind::Label, u"lblFKEY", u"Function key %1", {.text = u"F1|F2|F3|F4|F5"}, {0, 4}};
    ControlRow lblFKEYTITLE{Kind::Label, u"lblFKEYTITLE", u"What function key %1 fires", {}, {0, 4}, u"F1|F2|F3|F4|F5"};
    ControlRow cmdTAB{Kind::Button,
                      u"cmdTAB",
                      u"Shows this panel",
                      {.text = u"Scores|Start 5|Effect|Network|Caspar|Clocks"},
                      {0, 5},
                      u"Alt+1|Alt+2|Alt+3|Alt+4|Alt+5|Alt+6"};
    ControlRow Frame1{Kind::Panel, u"Frame1", u"Scores", {.text = u"Scores", .visible = false}};
    ControlRow Frame2{Kind::Panel, u"Frame2", u"Starting fives", {.text = u"Start 5", .visible = false}};
    ControlRow Frame3{Kind::Panel, u"Frame3", u"Effect speeds", {.text = u"Effect", .visible = false}};
    ControlRow Frame4{Kind::Panel, u"Frame4", u"Remote graphics server", {.text = u"Network", .visible = false}};
    ControlRow Frame5{Kind::Panel, u"Frame5", u"Main graphics server", {.text = u"Caspar", .visible = false}};
    ControlRow Frame6{Kind::Panel, u"Frame6", u"Starting elevens", {.text = u"Start 11", .visible = false}};
    ControlRow Frame7{Kind::Panel, u"Frame7", u"Clocks", {.text = u"Clocks", .visible = false}};
    ControlRow fraGASPHISTORY{Kind::Panel, u"fraGASPHISTORY", u"Socket history", {.visible = false}};
    ControlRow picHideControls{Kind::Panel, u"picHideControls", u"This pack hides the controls", {.visible = false}};
    ControlRow cmdINVOKE{Kind::Button,        u"cmdINVOKE", u"Runs the pack's invoke card",
                         {.text = u"Invoke"}, {},           u"Ctrl+I"};
    ControlRow cmdAUTO5ADA{
        Kind::Button, u"cmdAUTO5ADA", u"Runs the pack's automatic starting five", {.text = u"Auto five"},
        {},           u"Ctrl+F"};
    ControlRow cmdAUTOCARD{Kind::Button,
                           u"cmdAUTOCARD",
                           u"Runs the card that the last cards have named, for the entry picked last",
                           {.text = u"Auto card", .enabled = false},
                           {},
                           u"Ctrl+U"};
    ControlRow cmdCLEARTAG{Kind::Button, u"cmdCLEARTAG", u"Clears the tagged player", {.text = u"Clear tag"},
                           {},           u"Ctrl+T"};
    ControlRow cmdMenu{Kind::Button, u"cmdMenu", u"Opens the main menu", {.text = u"Main"}, {}, u"Ctrl+M"};

    // Links and the status line.
    ControlRow txtGASPARIP{
        Kind::TextBox, u"txtGASPARIP", u"Address of the main graphics server; Enter connects", {.text = u"127.0.0.1"}};
    ControlRow txtGASPARPORT{
        Kind::TextBox, u"txtGASPARPORT", u"Port of the main graphics server; Enter connects", {.text = u"5250"}};
    ControlRow cmdGASPARCONNECT{Kind::Button,
                                u"cmdGASPARCONNECT",
                                u"Connects or disconnects the main graphics server",
                                {.text = u"Connect", .tag = u"connect"},
                                {},
                                u"Ctrl+Shift+M"};
    ControlRow chkRECONNECT{
        Kind::CheckBox, u"chkRECONNECT", u"Tries a lost main link again every 2 seconds", {.text = u"Reconnect"}, {},
        u"Ctrl+Shift+A"};
    ControlRow txtGASPARIPREMOTE{Kind::TextBox, u"txtGASPARIPREMOTE",
                                 u"Address of the remote graphics server; Enter connects"};
    ControlRow txtGASPARPORTREMOTE{Kind::TextBox,
                                   u"txtGASPARPORTREMOTE",
                                   u"Port of the remote graphics server; Enter connects",
                                   {.text = u"5250"}};
    ControlRow cmdGASPARCONNECTREMOTE{Kind::Button,
                                      u"cmdGASPARCONNECTREMOTE",
                                      u"Connects or disconnects the remote graphics server",
                                      {.text = u"Connect", .tag = u"connect"},
                                      {},
                                      u"Ctrl+Shift+R"};
    ControlRow chkRECONNECTREMOTE{Kind::CheckBox,
                                  u"chkRECONNECTREMOTE",
                                  u"Tries a lost remote link again every 2 seconds",
                                  {.text = u"Reconnect"},
                                  {},
                                  u"Ctrl+Shift+B"};
    ControlRow lblLINKMAIN{Kind::Label, u"lblLINKMAIN", u"Main graphics link", {.role = Role::Off}};
    ControlRow lblLINKREMOTE{Kind::Label, u"lblLINKREMOTE", u"Remote graphics link", {.role = Role::Off}};
    ControlRow lblFEED{Kind::Label, u"lblFEED", u"Game feed", {.role = Role::Off}};
    ControlRow lblDATABASE{Kind::Label, u"lblDATABASE", u"Database", {.role = Role::Off}};
    ControlRow lblSILENCED{
        Kind::Label, u"lblSILENCED", u"Messages of cards that were not shown", {.role = Role::Waiting}};
    ControlRow lblBACKOFF{
        Kind::Label, u"lblBACKOFF", u"A card that runs by itself and is left out for a while", {.role = Role::Waiting}};
    ControlRow lblNOTE{Kind::Label, u"lblNOTE", u"What happened to the last press"};
    ControlRow cmbCASPARREMOTELIST{Kind::List, u"cmbCASPARREMOTELIST", u"A remote server's preset address", {}, {},
                                   u"Ctrl+R"};
    ControlRow cmdVIEWGASPHISTORY{
        Kind::Button, u"cmdVIEWGASPHISTORY", u"Shows the socket history", {.text = u"History"}, {}, u"Ctrl+H"};
    ControlRow cmdGASPHISTCLOSE{Kind::Button, u"cmdGASPHISTCLOSE", u"Hides the socket history", {.text = u"Close"},
                                {},           u"Ctrl+Shift+H"};
    ControlRow cmdLASTXML{Kind::Button,
                          u"cmdLASTXML",
                          u"Changes between the history and the last template data",
                          {.text = u"Show Last XML"},
                          {},
                          u"Ctrl+L"};
    ControlRow lblLASTXML{Kind::Label, u"lblLASTXML", u"The last template data"};
    ControlRow txtMANUALCASPAR{Kind::TextBox,
                               u"txtMANUALCASPAR",
                               u"A command line for the main server; Enter sends, Up recalls earlier ones",
                               {},
                               {},
                               u"Ctrl+E"};
    ControlRow cmdMANUALSEND{Kind::Button, u"cmdMANUALSEND", u"Sends the command line", {.text = u"Send"},
                             {},           u"Ctrl+Shift+E"};
    ControlRow chkLOGFILE{
        Kind::CheckBox, u"chkLOGFILE", u"Writes everything sent to CASPAROUT.TXT", {.text = u"Log caspar"}, {},
        u"Ctrl+Shift+L"};
    ControlRow lblLOG{Kind::Label, u"lblLOG", u"Whether CASPAROUT.TXT is written"};
    ControlRow lstGASPARHISTORY{Kind::Panel, u"lstGASPARHISTORY",
                                u"Lines sent and received, oldest on top; a click copies the line"};
    ControlRow lstGASPARRESPONSE{Kind::Panel, u"lstGASPARRESPONSE", u"Replies of the main server, newest on top"};

    // Clocks and scores: side A is the home team.
    ControlRow chkEAFTER{Kind::CheckBox,           u"chkEAFTER", u"Clock values past the threshold count as extra time",
                         {.text = u"Extra after"}, {},           u"Ctrl+Shift+X"};
    ControlRow txtEAFTER{Kind::TextBox,
                         u"txtEAFTER",
                         u"Threshold of the extra time, the clock's digits without the colon",
                         {.text = u"4500"}};
    ControlRow lblFEEDDETAIL{Kind::Label, u"lblFEEDDETAIL",
                             u"Where the game feed is heard, when it was last, and how many datagrams came"};
    ControlRow lblTime{Kind::Label, u"lblTime", u"Game time"};
    ControlRow lblETime{Kind::Label, u"lblETime", u"Extra time"};
    ControlRow lblCLOCK{Kind::Label, u"lblCLOCK", u"Local clock", {.text = u"00:00:00"}};
    ControlRow optTIMERS{Kind::OptionButton,
                         u"optTIMERS",
                         u"What the local clock shows",
                         {.text = u"Simple clock|Countdown", .checked = true},
                         {0, 1},
                         u"Ctrl+Shift+I|Ctrl+Shift+D"};
    ControlRow txtCOUNTDOWNTIME{Kind::TextBox, u"txtCOUNTDOWNTIME", u"HH:MM:SS  (max 23:59:59)", {.text = u"00:00:00"}};
    ControlRow cmdCLOCKS{Kind::Button,       u"cmdCLOCKS", u"Starts or stops the local clock",
                         {.text = u"Start"}, {},           u"Ctrl+Shift+K"};
    ControlRow Command1{Kind::Button,       u"Command1", u"Starts or stops the test sender",
                        {.text = u"START"}, {},          u"Ctrl+Shift+T"};
    ControlRow lblScoreA{Kind::Label, u"lblScoreA", u"Home score in use", {.text = u"0"}};
    ControlRow lblAutoScoreA{
        Kind::Label, u"lblAutoScoreA", u"Home score as it comes in", {.text = u"0", .foreColour = colours::kGreen}};
    ControlRow mnSCOREA{Kind::TextBox, u"mnSCOREA", u"Manual home score", {.text = u"0"}};
    ControlRow lblScoreB{Kind::Label, u"lblScoreB", u"Away score in use", {.text = u"0"}};
    ControlRow lblAutoScoreB{
        Kind::Label, u"lblAutoScoreB", u"Away score as it comes in", {.text = u"0", .foreColour = colours::kGreen}};
    ControlRow mnSCOREB{Kind::TextBox, u"mnSCOREB", u"Manual away score", {.text = u"0"}};
    ControlRow cmdMANSCORE{Kind::Button,
                           u"cmdMANSCORE",
                           u"Steps the manual home score up|Steps the manual home score down|Steps the manual away "
                           u"score up|Steps the manual away score down",
                           {.text = u"+|−|+|−"},
                           {0, 3},
                           u"Ctrl+Up|Ctrl+Down|Ctrl+Shift+Up|Ctrl+Shift+Down"};
    ControlRow chkMANUAL{Kind::CheckBox,
                         u"chkMANUAL",
                         u"Uses the manual score instead of the one that comes in",
                         {.text = u"Manual Score"},
                         {},
                         u"Ctrl+Shift+S"};
    ControlRow Label1{Kind::Label,
                      u"Label1",
                      u"Scores as they come in: red while the manual score is used",
                      {.text = u"Auto score", .foreColour = colours::kGreen}};
    ControlRow lblLIVEBLINK{
        Kind::Label, u"lblLIVEBLINK", u"Blinks while the score comes in by itself", {.text = u"LIVE"}};
    ControlRow txtEXTRATIME{Kind::TextBox, u"txtEXTRATIME", u"Extra time as cards show it"};

    // Settings.
    ControlRow cmdSCREENMODE{Kind::Button,          u"cmdSCREENMODE", u"Screen mode: green is on",
                             {.text = u"4:3|16:9"}, {0, 1},           u"Ctrl+Shift+F|Ctrl+Shift+W"};
    ControlRow mnSet169{Kind::CheckBox, u"mnSet169", u"Screen mode 16:9", {.text = u"Mode 16:9", .checked = true}};
    ControlRow mnSet43{Kind::CheckBox, u"mnSet43", u"Screen mode 4:3", {.text = u"Mode 4:3"}};
    ControlRow cmbLANG{Kind::List, u"cmbLANG", u"Card language: choosing it loads that pack's cards",
                       {},         {},         u"Ctrl+G"};
    ControlRow cmbFADE{Kind::List,
                       u"cmbFADE",
                       u"Fade in: 1 to 100, Off or Fast|Fade out: 1 to 100, Off or Fast|Roll speed: 1 to 100, Off or "
                       u"Fast|Wipe: 1 to 100, Off or Fast",
                       {},
                       {0, 3}};
    ControlRow cbQt{Kind::List, u"cbQt", u"Period of the game", {}, {}, u"Ctrl+D"};

    // Players and proposals: side H is the home team.
    ControlRow txtS5A{Kind::TextBox, u"txtS5A", u"Away starting five, player %1", {.text = u"0"}, {0, 4}};
    ControlRow txtS11A{Kind::TextBox, u"txtS11A", u"Away starting eleven, player %1", {.text = u"0"}, {0, 10}};
    ControlRow lblAPLAYERS{
        Kind::Label, u"lblAPLAYERS", u"Away player %1: left button tags, right button tags as the other",
        {},          {0, 23},        u"Ctrl+Shift+P"};
    ControlRow lblATEAM{Kind::Label, u"lblATEAM", u"Away team"};
    ControlRow txtS5H{Kind::TextBox, u"txtS5H", u"Home starting five, player %1", {.text = u"0"}, {0, 4}};
    ControlRow txtS11H{Kind::TextBox, u"txtS11H", u"Home starting eleven, player %1", {.text = u"0"}, {0, 10}};
    ControlRow lblHPLAYERS{
        Kind::Label, u"lblHPLAYERS", u"Home player %1: left button tags, right button tags as the other",
        {},          {0, 23},        u"Ctrl+P"};
    ControlRow lblHTEAM{Kind::Label, u"lblHTEAM", u"Home team"};
    ControlRow lblPROPOSED{Kind::Label,
                           u"lblPROPOSED",
                           u"Proposal %1: a click takes it",
                           {},
                           {1, 8},
                           u"Ctrl+Alt+1|Ctrl+Alt+2|Ctrl+Alt+3|Ctrl+Alt+4|Ctrl+Alt+5|Ctrl+Alt+6|Ctrl+Alt+7|"
                           u"Ctrl+Alt+8"};
};

inline constexpr ControlTable controls{};

// The rows of the table, in its order.
[[nodiscard]] std::span<const ControlRow> allControls();

// What belongs to one of the two teams.
struct TeamControls {
    QChar letter;       // in the names of its players' controls and variables
    QChar scoreLetter;  // in those of its scores
    const ControlRow& team;
    const ControlRow& players;
    const ControlRow& startFive;
    const ControlRow& startEleven;
    const ControlRow& score;
    const ControlRow& autoScore;
    const ControlRow& manualScore;
};
inline constexpr TeamControls kHomeControls{u'H',
                                            u'A',
                                            controls.lblHTEAM,
                                            controls.lblHPLAYERS,
                                            controls.txtS5H,
                                            controls.txtS11H,
                                            controls.lblScoreA,
                                            controls.lblAutoScoreA,
                                            controls.mnSCOREA};
inline constexpr TeamControls kAwayControls{u'A',
                                            u'B',
                                            controls.lblATEAM,
                                            controls.lblAPLAYERS,
                                            controls.txtS5A,
                                            controls.txtS11A,
                                            controls.lblScoreB,
                                            controls.lblAutoScoreB,
                                            controls.mnSCOREB};

// What belongs to one of the two graphics links.
struct LinkControls {
    const ControlRow& address;
    const ControlRow& port;
    const ControlRow& connect;
    const ControlRow& reconnect;
    const ControlRow& status;
    int tab;  // the number of its panel's tab
};
inline constexpr LinkControls kMainLinkControls{controls.txtGASPARIP,      controls.txtGASPARPORT,
                                                controls.cmdGASPARCONNECT, controls.chkRECONNECT,
                                                controls.lblLINKMAIN,      4};
inline constexpr LinkControls kRemoteLinkControls{controls.txtGASPARIPREMOTE,      controls.txtGASPARPORTREMOTE,
                                                  controls.cmdGASPARCONNECTREMOTE, controls.chkRECONNECTREMOTE,
                                                  controls.lblLINKREMOTE,          3};

}  // namespace zelvor
