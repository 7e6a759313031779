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
                       QT_TRANSLATE_NOOP("form", "Card button %1: fires the card"),
                       {},
                       {0, 20},
                       u"Alt+A|Alt+B|Alt+C|Alt+D|Alt+E|Alt+F|Alt+G|Alt+H|Alt+I|Alt+J|Alt+K|Alt+L|Alt+M|"
                       u"Alt+N|Alt+O|Alt+P|Alt+R|Alt+S|Alt+T|Alt+U|Alt+V"};
    ControlRow cmdCARDBOX{Kind::Button,
                          u"cmdCARDBOX",
                          QT_TRANSLATE_NOOP("form", "Fires card %1 and asks, whatever player is tagged"),
                          {.text = "L"},
                          {0, 20},
                          u"Alt+Shift+A|Alt+Shift+B|Alt+Shift+C|Alt+Shift+D|Alt+Shift+E|Alt+Shift+F|"
                          u"Alt+Shift+G|Alt+Shift+H|Alt+Shift+I|Alt+Shift+J|Alt+Shift+K|Alt+Shift+L|"
                          u"Alt+Shift+M|Alt+Shift+N|Alt+Shift+O|Alt+Shift+P|Alt+Shift+R|Alt+Shift+S|"
                          u"Alt+Shift+T|Alt+Shift+U|Alt+Shift+V"};
    ControlRow GradientButtonS{Kind::Button,
                               u"GradientButtonS",
                               QT_TRANSLATE_NOOP("form", "Shows card set %1"),
                               {},
                               {0, 4},
                               u"Ctrl+1|Ctrl+2|Ctrl+3|Ctrl+4|Ctrl+5"};
    ControlRow GradientButtonAIR{
        Kind::Button, u"GradientButtonAIR", QT_TRANSLATE_NOOP("form", "Clears the screen"), {.text = "CLEAR"},
        {},           u"Ctrl+Shift+Del"};
    ControlRow lblONAIR{Kind::Label, u"lblONAIR", QT_TRANSLATE_NOOP("form", "What is on air")};
    ControlRow lblONAIRLAMP{Kind::Label, u"lblONAIRLAMP",
                            QT_TRANSLATE_NOOP("form", "On-air lamp: green clear, red on air")};
    ControlRow lblONAIRCARD{Kind::Label, u"lblONAIRCARD", QT_TRANSLATE_NOOP("form", "The card on air")};
    ControlRow lblONAIRTROUBLE{Kind::Label, u"lblONAIRTROUBLE",
                               QT_TRANSLATE_NOOP("form", "The card whose line was refused or not sent, and why")};
    ControlRow chkONAIRLOCK{Kind::CheckBox,
                            u"chkONAIRLOCK",
                            QT_TRANSLATE_NOOP("form", "Lock: cards no longer change the on-air line"),
                            {.text = QT_TRANSLATE_NOOP("caption", "Lock")},
                            {},
                            u"Ctrl+Shift+O"};
    ControlRow lblPREVIEW{Kind::Label,
                          u"lblPREVIEW",
                          QT_TRANSLATE_NOOP("form", "This is the preview instance"),
                          {.text = QT_TRANSLATE_NOOP("caption", "PREVIEW"), .visible = false}};
    ControlRow lblTESTSENDER{
        Kind::Label,
        u"lblTESTSENDER",
        QT_TRANSLATE_NOOP("form", "The test sender loads the main graphics server: STOP is on the Clocks tab"),
        {.text = QT_TRANSLATE_NOOP("caption", "TEST SENDER ON"), .visible = false}};
    ControlRow lblFKEY{
        Kind::Label, u"lblFKEY", QT_TRANSLATE_NOOP("form", "Function key %1"), {.text = "F1|F2|F3|F4|F5"}, {0, 4}};
    ControlRow lblFKEYTITLE{Kind::Label, u"lblFKEYTITLE", QT_TRANSLATE_NOOP("form", "What function key %1 fires"),
                            {},          {0, 4},          u"F1|F2|F3|F4|F5"};
    ControlRow cmdTAB{Kind::Button,
                      u"cmdTAB",
                      QT_TRANSLATE_NOOP("form", "Shows this panel"),
                      {.text = "Scores|Start 5|Effect|Network|Caspar|Clocks"},
                      {0, 5},
                      u"Alt+1|Alt+2|Alt+3|Alt+4|Alt+5|Alt+6"};
    ControlRow Frame1{
        Kind::Panel, u"Frame1", QT_TRANSLATE_NOOP("form", "Scores"), {.text = "Scores", .visible = false}};
    ControlRow Frame2{
        Kind::Panel, u"Frame2", QT_TRANSLATE_NOOP("form", "Starting fives"), {.text = "Start 5", .visible = false}};
    ControlRow Frame3{
        Kind::Panel, u"Frame3", QT_TRANSLATE_NOOP("form", "Effect speeds"), {.text = "Effect", .visible = false}};
    ControlRow Frame4{Kind::Panel,
                      u"Frame4",
                      QT_TRANSLATE_NOOP("form", "Remote graphics server"),
                      {.text = "Network", .visible = false}};
    ControlRow Frame5{Kind::Panel,
                      u"Frame5",
                      QT_TRANSLATE_NOOP("form", "Main graphics server"),
                      {.text = "Caspar", .visible = false}};
    ControlRow Frame6{
        Kind::Panel, u"Frame6", QT_TRANSLATE_NOOP("form", "Starting elevens"), {.text = "Start 11", .visible = false}};
    ControlRow Frame7{
        Kind::Panel, u"Frame7", QT_TRANSLATE_NOOP("form", "Clocks"), {.text = "Clocks", .visible = false}};
    ControlRow fraGASPHISTORY{
        Kind::Panel, u"fraGASPHISTORY", QT_TRANSLATE_NOOP("form", "Socket history"), {.visible = false}};
    ControlRow picHideControls{
        Kind::Panel, u"picHideControls", QT_TRANSLATE_NOOP("form", "This pack hides the controls"), {.visible = false}};
    ControlRow cmdINVOKE{Kind::Button,
                         u"cmdINVOKE",
                         QT_TRANSLATE_NOOP("form", "Runs the pack's invoke card"),
                         {.text = QT_TRANSLATE_NOOP("caption", "Invoke")},
                         {},
                         u"Ctrl+I"};
    ControlRow cmdAUTO5ADA{Kind::Button,
                           u"cmdAUTO5ADA",
                           QT_TRANSLATE_NOOP("form", "Runs the pack's automatic starting five"),
                           {.text = QT_TRANSLATE_NOOP("caption", "Auto five")},
                           {},
                           u"Ctrl+F"};
    ControlRow cmdAUTOCARD{
        Kind::Button,
        u"cmdAUTOCARD",
        QT_TRANSLATE_NOOP("form", "Runs the card that the last cards have named, for the entry picked last"),
        {.text = QT_TRANSLATE_NOOP("caption", "Auto card"), .enabled = false},
        {},
        u"Ctrl+U"};
    ControlRow cmdCLEARTAG{Kind::Button,
                           u"cmdCLEARTAG",
                           QT_TRANSLATE_NOOP("form", "Clears the tagged player"),
                           {.text = QT_TRANSLATE_NOOP("caption", "Clear tag")},
                           {},
                           u"Ctrl+T"};
    ControlRow cmdMenu{Kind::Button,     u"cmdMenu", QT_TRANSLATE_NOOP("form", "Opens the main menu"),
                       {.text = "Main"}, {},         u"Ctrl+M"};

    // Links and the status line.
    ControlRow txtGASPARIP{Kind::TextBox,
                           u"txtGASPARIP",
                           QT_TRANSLATE_NOOP("form", "Address of the main graphics server; Enter connects"),
                           {.text = "127.0.0.1"}};
    ControlRow txtGASPARPORT{Kind::TextBox,
                             u"txtGASPARPORT",
                             QT_TRANSLATE_NOOP("form", "Port of the main graphics server; Enter connects"),
                             {.text = "5250"}};
    ControlRow cmdGASPARCONNECT{Kind::Button,
                                u"cmdGASPARCONNECT",
                                QT_TRANSLATE_NOOP("form", "Connects or disconnects the main graphics server"),
                                {.text = "Connect", .tag = u"connect"},
                                {},
                                u"Ctrl+Shift+M"};
    ControlRow chkRECONNECT{Kind::CheckBox,
                            u"chkRECONNECT",
                            QT_TRANSLATE_NOOP("form", "Tries a lost main link again every 2 seconds"),
                            {.text = QT_TRANSLATE_NOOP("caption", "Reconnect")},
                            {},
                            u"Ctrl+Shift+A"};
    ControlRow txtGASPARIPREMOTE{Kind::TextBox, u"txtGASPARIPREMOTE",
                                 QT_TRANSLATE_NOOP("form", "Address of the remote graphics server; Enter connects")};
    ControlRow txtGASPARPORTREMOTE{Kind::TextBox,
                                   u"txtGASPARPORTREMOTE",
                                   QT_TRANSLATE_NOOP("form", "Port of the remote graphics server; Enter connects"),
                                   {.text = "5250"}};
    ControlRow cmdGASPARCONNECTREMOTE{Kind::Button,
                                      u"cmdGASPARCONNECTREMOTE",
                                      QT_TRANSLATE_NOOP("form", "Connects or disconnects the remote graphics server"),
                                      {.text = "Connect", .tag = u"connect"},
                                      {},
                                      u"Ctrl+Shift+R"};
    ControlRow chkRECONNECTREMOTE{Kind::CheckBox,
                                  u"chkRECONNECTREMOTE",
                                  QT_TRANSLATE_NOOP("form", "Tries a lost remote link again every 2 seconds"),
                                  {.text = QT_TRANSLATE_NOOP("caption", "Reconnect")},
                                  {},
                                  u"Ctrl+Shift+B"};
    ControlRow lblLINKMAIN{
        Kind::Label, u"lblLINKMAIN", QT_TRANSLATE_NOOP("form", "Main graphics link"), {.role = Role::Off}};
    ControlRow lblLINKREMOTE{
        Kind::Label, u"lblLINKREMOTE", QT_TRANSLATE_NOOP("form", "Remote graphics link"), {.role = Role::Off}};
    ControlRow lblFEED{Kind::Label, u"lblFEED", QT_TRANSLATE_NOOP("form", "Game feed"), {.role = Role::Off}};
    ControlRow lblDATABASE{Kind::Label, u"lblDATABASE", QT_TRANSLATE_NOOP("form", "Database"), {.role = Role::Off}};
    ControlRow lblSILENCED{Kind::Label,
                           u"lblSILENCED",
                           QT_TRANSLATE_NOOP("form", "Messages of cards that were not shown"),
                           {.role = Role::Waiting}};
    ControlRow lblBACKOFF{Kind::Label,
                          u"lblBACKOFF",
                          QT_TRANSLATE_NOOP("form", "A card that runs by itself and is left out for a while"),
                          {.role = Role::Waiting}};
    ControlRow lblNOTE{Kind::Label, u"lblNOTE", QT_TRANSLATE_NOOP("form", "What happened to the last press")};
    ControlRow cmbCASPARREMOTELIST{
        Kind::List, u"cmbCASPARREMOTELIST", QT_TRANSLATE_NOOP("form", "A remote server's preset address"), {}, {},
        u"Ctrl+R"};
    ControlRow cmdVIEWGASPHISTORY{Kind::Button,
                                  u"cmdVIEWGASPHISTORY",
                                  QT_TRANSLATE_NOOP("form", "Shows the socket history"),
                                  {.text = QT_TRANSLATE_NOOP("caption", "History")},
                                  {},
                                  u"Ctrl+H"};
    ControlRow cmdGASPHISTCLOSE{Kind::Button,
                                u"cmdGASPHISTCLOSE",
                                QT_TRANSLATE_NOOP("form", "Hides the socket history"),
                                {.text = QT_TRANSLATE_NOOP("caption", "Close")},
                                {},
                                u"Ctrl+Shift+H"};
    ControlRow cmdLASTXML{Kind::Button,
                          u"cmdLASTXML",
                          QT_TRANSLATE_NOOP("form", "Changes between the history and the last template data"),
                          {.text = "Show Last XML"},
                          {},
                          u"Ctrl+L"};
    ControlRow chkLASTXMLRAW{Kind::CheckBox,
                             u"chkLASTXMLRAW",
                             QT_TRANSLATE_NOOP("form", "Shows the template data as it was sent"),
                             {.text = QT_TRANSLATE_NOOP("caption", "As sent")},
                             {},
                             u"Ctrl+Shift+V"};
    ControlRow lblLASTXML{Kind::Label, u"lblLASTXML", QT_TRANSLATE_NOOP("form", "The last template data")};
    ControlRow txtMANUALCASPAR{
        Kind::TextBox,
        u"txtMANUALCASPAR",
        QT_TRANSLATE_NOOP("form", "A command line for the main server; Enter sends, Up recalls earlier ones"),
        {},
        {},
        u"Ctrl+E"};
    ControlRow cmdMANUALSEND{Kind::Button,
                             u"cmdMANUALSEND",
                             QT_TRANSLATE_NOOP("form", "Sends the command line"),
                             {.text = QT_TRANSLATE_NOOP("caption", "Send")},
                             {},
                             u"Ctrl+Shift+E"};
    ControlRow chkLOGFILE{Kind::CheckBox,
                          u"chkLOGFILE",
                          QT_TRANSLATE_NOOP("form", "Writes everything sent to CASPAROUT.TXT"),
                          {.text = "Log caspar"},
                          {},
                          u"Ctrl+Shift+L"};
    ControlRow lblLOG{Kind::Label, u"lblLOG", QT_TRANSLATE_NOOP("form", "Whether CASPAROUT.TXT is written")};
    ControlRow lstGASPARHISTORY{
        Kind::Panel, u"lstGASPARHISTORY",
        QT_TRANSLATE_NOOP("form", "Lines sent and received, oldest on top; a click copies the line")};
    ControlRow lstGASPARRESPONSE{Kind::Panel, u"lstGASPARRESPONSE",
                                 QT_TRANSLATE_NOOP("form", "Replies of the main server, newest on top")};

    // Clocks and scores: side A is the home team.
    ControlRow chkEAFTER{Kind::CheckBox,
                         u"chkEAFTER",
                         QT_TRANSLATE_NOOP("form", "Clock values past the threshold count as extra time"),
                         {.text = "Extra after"},
                         {},
                         u"Ctrl+Shift+X"};
    ControlRow txtEAFTER{Kind::TextBox,
                         u"txtEAFTER",
                         QT_TRANSLATE_NOOP("form", "Threshold of the extra time, the clock's digits without the colon"),
                         {.text = "4500"}};
    ControlRow lblFEEDDETAIL{
        Kind::Label, u"lblFEEDDETAIL",
        QT_TRANSLATE_NOOP("form", "Where the game feed is heard, when it was last, and how many datagrams came")};
    ControlRow lblTime{Kind::Label, u"lblTime", QT_TRANSLATE_NOOP("form", "Game time")};
    ControlRow lblETime{Kind::Label, u"lblETime", QT_TRANSLATE_NOOP("form", "Extra time")};
    ControlRow lblCLOCK{Kind::Label, u"lblCLOCK", QT_TRANSLATE_NOOP("form", "Local clock"), {.text = "00:00:00"}};
    ControlRow optTIMERS{Kind::OptionButton,
                         u"optTIMERS",
                         QT_TRANSLATE_NOOP("form", "What the local clock shows"),
                         {.text = "Simple clock|Countdown", .checked = true},
                         {0, 1},
                         u"Ctrl+Shift+I|Ctrl+Shift+D"};
    ControlRow txtCOUNTDOWNTIME{Kind::TextBox, u"txtCOUNTDOWNTIME", "HH:MM:SS  (max 23:59:59)", {.text = "00:00:00"}};
    ControlRow cmdCLOCKS{Kind::Button,      u"cmdCLOCKS", QT_TRANSLATE_NOOP("form", "Starts or stops the local clock"),
                         {.text = "Start"}, {},           u"Ctrl+Shift+K"};
    ControlRow Command1{Kind::Button,      u"Command1", QT_TRANSLATE_NOOP("form", "Starts or stops the test sender"),
                        {.text = "START"}, {},          u"Ctrl+Shift+T"};
    ControlRow lblScoreA{Kind::Label, u"lblScoreA", QT_TRANSLATE_NOOP("form", "Home score in use"), {.text = "0"}};
    ControlRow lblAutoScoreA{Kind::Label,
                             u"lblAutoScoreA",
                             QT_TRANSLATE_NOOP("form", "Home score as it comes in"),
                             {.text = "0", .foreColour = colours::kGreen}};
    ControlRow mnSCOREA{Kind::TextBox, u"mnSCOREA", QT_TRANSLATE_NOOP("form", "Manual home score"), {.text = "0"}};
    ControlRow lblScoreB{Kind::Label, u"lblScoreB", QT_TRANSLATE_NOOP("form", "Away score in use"), {.text = "0"}};
    ControlRow lblAutoScoreB{Kind::Label,
                             u"lblAutoScoreB",
                             QT_TRANSLATE_NOOP("form", "Away score as it comes in"),
                             {.text = "0", .foreColour = colours::kGreen}};
    ControlRow mnSCOREB{Kind::TextBox, u"mnSCOREB", QT_TRANSLATE_NOOP("form", "Manual away score"), {.text = "0"}};
    ControlRow cmdMANSCORE{Kind::Button,
                           u"cmdMANSCORE",
                           QT_TRANSLATE_NOOP("form",
                                             "Steps the manual home score up|Steps the manual home score down|Steps "
                                             "the manual away score up|Steps the manual away score down"),
                           {.text = "+|−|+|−"},
                           {0, 3},
                           u"Ctrl+Up|Ctrl+Down|Ctrl+Shift+Up|Ctrl+Shift+Down"};
    ControlRow chkMANUAL{Kind::CheckBox,
                         u"chkMANUAL",
                         QT_TRANSLATE_NOOP("form", "Uses the manual score instead of the one that comes in"),
                         {.text = "Manual Score"},
                         {},
                         u"Ctrl+Shift+S"};
    ControlRow Label1{Kind::Label,
                      u"Label1",
                      QT_TRANSLATE_NOOP("form", "Scores as they come in: red while the manual score is used"),
                      {.text = QT_TRANSLATE_NOOP("caption", "Auto score"), .foreColour = colours::kGreen}};
    ControlRow lblLIVEBLINK{Kind::Label,
                            u"lblLIVEBLINK",
                            QT_TRANSLATE_NOOP("form", "Blinks while the score comes in by itself"),
                            {.text = "LIVE"}};
    ControlRow txtEXTRATIME{Kind::TextBox, u"txtEXTRATIME", QT_TRANSLATE_NOOP("form", "Extra time as cards show it")};

    // Settings.
    ControlRow cmdSCREENMODE{
        Kind::Button,         u"cmdSCREENMODE", QT_TRANSLATE_NOOP("form", "Screen mode: green is on"),
        {.text = "4:3|16:9"}, {0, 1},           u"Ctrl+Shift+F|Ctrl+Shift+W"};
    ControlRow mnSet169{Kind::CheckBox,
                        u"mnSet169",
                        QT_TRANSLATE_NOOP("form", "Screen mode 16:9"),
                        {.text = "Mode 16:9", .checked = true}};
    ControlRow mnSet43{Kind::CheckBox, u"mnSet43", QT_TRANSLATE_NOOP("form", "Screen mode 4:3"), {.text = "Mode 4:3"}};
    ControlRow cmbLANG{
        Kind::List, u"cmbLANG", QT_TRANSLATE_NOOP("form", "Card language: choosing it loads that pack's cards"),
        {},         {},         u"Ctrl+G"};
    ControlRow cmbFADE{Kind::List,
                       u"cmbFADE",
                       QT_TRANSLATE_NOOP("form",
                                         "Fade in: 1 to 100, Off or Fast|Fade out: 1 to 100, Off or Fast|Roll speed: 1 "
                                         "to 100, Off or Fast|Wipe: 1 to 100, Off or Fast"),
                       {},
                       {0, 3}};
    ControlRow cbQt{Kind::List, u"cbQt", QT_TRANSLATE_NOOP("form", "Period of the game"), {}, {}, u"Ctrl+D"};

    // Players and proposals: side H is the home team.
    ControlRow txtS5A{
        Kind::TextBox, u"txtS5A", QT_TRANSLATE_NOOP("form", "Away starting five, player %1"), {.text = "0"}, {0, 4}};
    ControlRow txtS11A{Kind::TextBox,
                       u"txtS11A",
                       QT_TRANSLATE_NOOP("form", "Away starting eleven, player %1"),
                       {.text = "0"},
                       {0, 10}};
    ControlRow lblAPLAYERS{
        Kind::Label,
        u"lblAPLAYERS",
        QT_TRANSLATE_NOOP("form", "Away player %1: left button tags, right button tags as the other"),
        {},
        {0, 23},
        u"Ctrl+Shift+P"};
    ControlRow lblATEAM{Kind::Label, u"lblATEAM", QT_TRANSLATE_NOOP("form", "Away team")};
    ControlRow txtS5H{
        Kind::TextBox, u"txtS5H", QT_TRANSLATE_NOOP("form", "Home starting five, player %1"), {.text = "0"}, {0, 4}};
    ControlRow txtS11H{Kind::TextBox,
                       u"txtS11H",
                       QT_TRANSLATE_NOOP("form", "Home starting eleven, player %1"),
                       {.text = "0"},
                       {0, 10}};
    ControlRow lblHPLAYERS{
        Kind::Label,
        u"lblHPLAYERS",
        QT_TRANSLATE_NOOP("form", "Home player %1: left button tags, right button tags as the other"),
        {},
        {0, 23},
        u"Ctrl+P"};
    ControlRow lblHTEAM{Kind::Label, u"lblHTEAM", QT_TRANSLATE_NOOP("form", "Home team")};
    ControlRow lblPROPOSED{Kind::Label,
                           u"lblPROPOSED",
                           QT_TRANSLATE_NOOP("form", "Proposal %1: a click takes it"),
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
