#include "console/hints.h"

#include <array>

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

struct Hint {
    QLatin1StringView name;
    QStringView text;  // "%1" is the element's number, counted from 1
};

constexpr std::array kHints{
    Hint{"cmbCARD"_L1, u"Card button %1: fires the card"},
    Hint{"cmdCARDBOX"_L1, u"Fires card %1 and asks, whatever player is tagged"},
    Hint{"GradientButtonS"_L1, u"Shows card set %1"},
    Hint{"GradientButtonAIR"_L1, u"Clears the screen"},
    Hint{"lblONAIR"_L1, u"What is on air"},
    Hint{"lblONAIRLAMP"_L1, u"On-air lamp: green clear, red on air"},
    Hint{"lblONAIRCARD"_L1, u"The card on air"},
    Hint{"chkONAIRLOCK"_L1, u"Lock: cards no longer change the on-air line"},
    Hint{"lblPREVIEW"_L1, u"This is the preview instance"},
    Hint{"lblFKEY"_L1, u"Function key %1"},
    Hint{"lblFKEYTITLE"_L1, u"What function key %1 fires"},
    Hint{"cmdTAB"_L1, u"Shows this panel"},
    Hint{"Frame1"_L1, u"Scores"},
    Hint{"Frame2"_L1, u"Starting fives"},
    Hint{"Frame3"_L1, u"Effect speeds"},
    Hint{"Frame4"_L1, u"Remote graphics server"},
    Hint{"Frame5"_L1, u"Main graphics server"},
    Hint{"Frame6"_L1, u"Starting elevens"},
    Hint{"Frame7"_L1, u"Clocks"},
    Hint{"fraGASPHISTORY"_L1, u"Socket history"},
    Hint{"picHideControls"_L1, u"This pack hides the controls"},
    Hint{"cmdINVOKE"_L1, u"Runs the pack's invoke card"},
    Hint{"cmdAUTO5ADA"_L1, u"Runs the pack's automatic starting five"},
    Hint{"cmdAUTOCARD"_L1, u"Runs the card that the last cards have named, for the entry picked last"},
    Hint{"cmdCLEARTAG"_L1, u"Clears the tagged player"},
    Hint{"cmdMenu"_L1, u"Opens the main menu"},
    Hint{"txtGASPARIP"_L1, u"Address of the main graphics server; Enter connects"},
    Hint{"txtGASPARPORT"_L1, u"Port of the main graphics server; Enter connects"},
    Hint{"cmdGASPARCONNECT"_L1, u"Connects or disconnects the main graphics server"},
    Hint{"chkRECONNECT"_L1, u"Tries a lost main link again every 2 seconds"},
    Hint{"txtGASPARIPREMOTE"_L1, u"Address of the remote graphics server; Enter connects"},
    Hint{"txtGASPARPORTREMOTE"_L1, u"Port of the remote graphics server; Enter connects"},
    Hint{"cmdGASPARCONNECTREMOTE"_L1, u"Connects or disconnects the remote graphics server"},
    Hint{"chkRECONNECTREMOTE"_L1, u"Tries a lost remote link again every 2 seconds"},
    Hint{"cmbCASPARREMOTELIST"_L1, u"A remote server's preset address"},
    Hint{"cmdVIEWGASPHISTORY"_L1, u"Shows the socket history"},
    Hint{"cmdGASPHISTCLOSE"_L1, u"Hides the socket history"},
    Hint{"cmdLASTXML"_L1, u"Changes between the history and the last template data"},
    Hint{"lblLASTXML"_L1, u"The last template data"},
    Hint{"txtMANUALCASPAR"_L1, u"A command line for the main server; Enter sends, Up recalls earlier ones"},
    Hint{"cmdMANUALSEND"_L1, u"Sends the command line"},
    Hint{"chkLOGFILE"_L1, u"Writes everything sent to CASPAROUT.TXT"},
    Hint{"lblLOG"_L1, u"Whether CASPAROUT.TXT is written"},
    Hint{"lstGASPARHISTORY"_L1, u"Lines sent and received, oldest on top; a click copies the line"},
    Hint{"lstGASPARRESPONSE"_L1, u"Replies of the main server, newest on top"},
    Hint{"lblFEED"_L1, u"Game feed"},
    Hint{"lblFEEDDETAIL"_L1, u"Where the game feed is heard, when it was last, and how many datagrams came"},
    Hint{"lblLINKMAIN"_L1, u"Main graphics link"},
    Hint{"lblLINKREMOTE"_L1, u"Remote graphics link"},
    Hint{"lblDATABASE"_L1, u"Database"},
    Hint{"chkEAFTER"_L1, u"Clock values past the threshold count as extra time"},
    Hint{"txtEAFTER"_L1, u"Threshold of the extra time, the clock's digits without the colon"},
    Hint{"lblTime"_L1, u"Game time"},
    Hint{"lblETime"_L1, u"Extra time"},
    Hint{"lblCLOCK"_L1, u"Local clock"},
    Hint{"optTIMERS"_L1, u"What the local clock shows"},
    Hint{"txtCOUNTDOWNTIME"_L1, u"HH:MM:SS  (max 23:59:59)"},
    Hint{"cmdCLOCKS"_L1, u"Starts or stops the local clock"},
    Hint{"Command1"_L1, u"Starts or stops the test sender"},
    Hint{"lblScoreA"_L1, u"Home score in use"},
    Hint{"lblScoreB"_L1, u"Away score in use"},
    Hint{"lblAutoScoreA"_L1, u"Home score as it comes in"},
    Hint{"lblAutoScoreB"_L1, u"Away score as it comes in"},
    Hint{"Label1"_L1, u"Scores as they come in: red while the manual score is used"},
    Hint{"mnSCOREA"_L1, u"Manual home score"},
    Hint{"mnSCOREB"_L1, u"Manual away score"},
    Hint{"cmdMANSCORE"_L1, u"Steps the manual score"},
    Hint{"chkMANUAL"_L1, u"Uses the manual score instead of the one that comes in"},
    Hint{"lblLIVEBLINK"_L1, u"Blinks while the score comes in by itself"},
    Hint{"txtEXTRATIME"_L1, u"Extra time as cards show it"},
    Hint{"cmdSCREENMODE"_L1, u"Screen mode: green is on"},
    Hint{"mnSet169"_L1, u"Screen mode 16:9"},
    Hint{"mnSet43"_L1, u"Screen mode 4:3"},
    Hint{"cmbLANG"_L1, u"Card language: choosing it loads that pack's cards"},
    Hint{"cbQt"_L1, u"Period of the game"},
    Hint{"txtS5H"_L1, u"Home starting five, player %1"},
    Hint{"txtS5A"_L1, u"Away starting five, player %1"},
    Hint{"txtS11H"_L1, u"Home starting eleven, player %1"},
    Hint{"txtS11A"_L1, u"Away starting eleven, player %1"},
    Hint{"lblHPLAYERS"_L1, u"Home player %1: left button tags, right button tags as the other"},
    Hint{"lblAPLAYERS"_L1, u"Away player %1: left button tags, right button tags as the other"},
    Hint{"lblHTEAM"_L1, u"Home team"},
    Hint{"lblATEAM"_L1, u"Away team"},
};

constexpr std::array kFadeHints{u"Fade in: 1 to 100, Off or Fast", u"Fade out: 1 to 100, Off or Fast",
                                u"Roll speed: 1 to 100, Off or Fast", u"Wipe: 1 to 100, Off or Fast"};

}  // namespace

QString hintFor(const Control& control) {
    if (control.name() == u"cmbFADE") return QString::fromUtf16(kFadeHints.at(control.index()));
    // Proposals are numbered from 1 already.
    if (control.name() == u"lblPROPOSED") return u"Proposal %1: a click takes it"_s.arg(control.index());
    for (const Hint& hint : kHints) {
        if (control.name() != hint.name) continue;
        const QString text = hint.text.toString();
        return text.contains(u"%1") ? text.arg(control.index() + 1) : text;
    }
    return {};
}

}  // namespace zelvor
