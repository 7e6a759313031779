#include "form/form_model.h"

#include "base/run_time_error.h"

using namespace Qt::StringLiterals;

namespace zelvor {

using Kind = Control::Kind;

FormModel::FormModel() {
    addCards();
    addLinks();
    addClocksAndScores();
    addSettings();
    addPlayersAndProposals();
}

Control& FormModel::add(Kind kind, const QString& name, int index, const QString& text) {
    auto control = std::make_unique<Control>(kind, name, index);
    control->setText(text);
    connect(control.get(), &Control::changed, this, &FormModel::changed);
    return *(controls_[{name, index}] = std::move(control));
}

void FormModel::addArray(Kind kind, const QString& name, int first, int last, const QStringList& texts) {
    for (int i = first; i <= last; ++i) add(kind, name, i, texts.value(i - first));
}

void FormModel::addCards() {
    addArray(Kind::Button, u"cmbCARD"_s, 0, 20);
    addArray(Kind::Button, u"cmdCARDBOX"_s, 0, 20, QStringList(21, u"L"_s));
    addArray(Kind::Button, u"GradientButtonS"_s, 0, 4);
    add(Kind::Button, u"GradientButtonAIR"_s, -1, u"CLEAR"_s);
    add(Kind::Label, u"lblONAIR"_s);
    add(Kind::Label, u"lblONAIRLAMP"_s);
    add(Kind::Label, u"lblONAIRCARD"_s);
    add(Kind::CheckBox, u"chkONAIRLOCK"_s, -1, u"Lock"_s);
    add(Kind::Label, u"lblPREVIEW"_s, -1, u"PREVIEW"_s).setVisible(false);
    addArray(Kind::Label, u"lblFKEY"_s, 0, 4, {u"F1"_s, u"F2"_s, u"F3"_s, u"F4"_s, u"F5"_s});
    addArray(Kind::Label, u"lblFKEYTITLE"_s, 0, 4);
    const QStringList tabs{u"Scores"_s, u"Start 5"_s, u"Effect"_s, u"Network"_s, u"Caspar"_s, u"Clocks"_s};
    addArray(Kind::Button, u"cmdTAB"_s, 0, 5, tabs);
    const QStringList panels{u"Scores"_s, u"Start 5"_s,  u"Effect"_s, u"Network"_s,
                             u"Caspar"_s, u"Start 11"_s, u"Clocks"_s};
    for (int i = 1; i <= 7; ++i) add(Kind::Panel, u"Frame%1"_s.arg(i), -1, panels[i - 1]).setVisible(false);
    add(Kind::Panel, u"fraGASPHISTORY"_s).setVisible(false);
    add(Kind::Panel, u"picHideControls"_s).setVisible(false);
    add(Kind::Button, u"cmdINVOKE"_s, -1, u"Invoke"_s);
    add(Kind::Button, u"cmdAUTO5ADA"_s, -1, u"Auto five"_s);
    add(Kind::Button, u"cmdAUTOCARD"_s, -1, u"Auto card"_s).setEnabled(false);
    add(Kind::Button, u"cmdCLEARTAG"_s, -1, u"Clear tag"_s);
    add(Kind::Button, u"cmdMenu"_s, -1, u"Main"_s);
}

void FormModel::addLinks() {
    for (const QString& remote : {QString(), u"REMOTE"_s}) {
        add(Kind::TextBox, u"txtGASPARIP"_s + remote, -1, remote.isEmpty() ? u"127.0.0.1"_s : QString());
        add(Kind::TextBox, u"txtGASPARPORT"_s + remote, -1, u"5250"_s);
        add(Kind::Button, u"cmdGASPARCONNECT"_s + remote, -1, u"Connect"_s).setTag(u"connect"_s);
        add(Kind::CheckBox, u"chkRECONNECT"_s + remote, -1, u"Reconnect"_s);
    }
    for (const QString& status : {u"lblLINKMAIN"_s, u"lblLINKREMOTE"_s, u"lblFEED"_s, u"lblDATABASE"_s})
        add(Kind::Label, status);
    add(Kind::List, u"cmbCASPARREMOTELIST"_s);
    add(Kind::Button, u"cmdVIEWGASPHISTORY"_s, -1, u"History"_s);
    add(Kind::Button, u"cmdGASPHISTCLOSE"_s, -1, u"Close"_s);
    add(Kind::Button, u"cmdLASTXML"_s, -1, u"Show Last XML"_s);
    add(Kind::Label, u"lblLASTXML"_s);
    add(Kind::TextBox, u"txtMANUALCASPAR"_s);
    add(Kind::Button, u"cmdMANUALSEND"_s, -1, u"Send"_s);
    add(Kind::CheckBox, u"chkLOGFILE"_s, -1, u"Log caspar"_s);
    add(Kind::Label, u"lblLOG"_s);
    add(Kind::Panel, u"lstGASPARHISTORY"_s);
    add(Kind::Panel, u"lstGASPARRESPONSE"_s);
}

void FormModel::addClocksAndScores() {
    add(Kind::CheckBox, u"chkEAFTER"_s, -1, u"Extra after"_s);
    add(Kind::TextBox, u"txtEAFTER"_s, -1, u"4500"_s);
    add(Kind::Label, u"lblFEEDDETAIL"_s);
    add(Kind::Label, u"lblTime"_s);
    add(Kind::Label, u"lblETime"_s);
    add(Kind::Label, u"lblCLOCK"_s, -1, u"00:00:00"_s);
    addArray(Kind::OptionButton, u"optTIMERS"_s, 0, 1, {u"Simple clock"_s, u"Countdown"_s});
    at(u"optTIMERS"_s, 0).setChecked(true);
    add(Kind::TextBox, u"txtCOUNTDOWNTIME"_s, -1, u"00:00:00"_s);
    add(Kind::Button, u"cmdCLOCKS"_s, -1, u"Start"_s);
    add(Kind::Button, u"Command1"_s, -1, u"START"_s);
    for (const QString& side : {u"A"_s, u"B"_s}) {
        add(Kind::Label, u"lblScore"_s + side, -1, u"0"_s);
        add(Kind::Label, u"lblAutoScore"_s + side, -1, u"0"_s).setForeColour(colours::kGreen);
        add(Kind::TextBox, u"mnSCORE"_s + side, -1, u"0"_s);
    }
    addArray(Kind::Button, u"cmdMANSCORE"_s, 0, 3, {u"+"_s, u"−"_s, u"+"_s, u"−"_s});
    add(Kind::CheckBox, u"chkMANUAL"_s, -1, u"Manual Score"_s);
    add(Kind::Label, u"Label1"_s, -1, u"Auto score"_s).setForeColour(colours::kGreen);
    add(Kind::Label, u"lblLIVEBLINK"_s, -1, u"LIVE"_s);
    add(Kind::TextBox, u"txtEXTRATIME"_s);
}

void FormModel::addSettings() {
    addArray(Kind::Button, u"cmdSCREENMODE"_s, 0, 1, {u"4:3"_s, u"16:9"_s});
    add(Kind::CheckBox, u"mnSet169"_s, -1, u"Mode 16:9"_s).setChecked(true);
    add(Kind::CheckBox, u"mnSet43"_s, -1, u"Mode 4:3"_s);
    add(Kind::List, u"cmbLANG"_s);
    addArray(Kind::List, u"cmbFADE"_s, 0, 3);
    add(Kind::List, u"cbQt"_s);
}

void FormModel::addPlayersAndProposals() {
    for (const QString& side : {u"A"_s, u"H"_s}) {
        addArray(Kind::TextBox, u"txtS5"_s + side, 0, 4, QStringList(5, u"0"_s));
        addArray(Kind::TextBox, u"txtS11"_s + side, 0, 10, QStringList(11, u"0"_s));
        addArray(Kind::Label, u"lbl%1PLAYERS"_s.arg(side), 0, 23);
        add(Kind::Label, u"lbl%1TEAM"_s.arg(side));
    }
    addArray(Kind::Label, u"lblPROPOSED"_s, 1, 8);
}

Control* FormModel::find(const QString& name, int index) const {
    const auto found = controls_.find({name, index});
    return found == controls_.end() ? nullptr : found->second.get();
}

Control& FormModel::at(const QString& name, int index) const {
    Control* control = find(name, index);
    if (control == nullptr) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           index < 0 ? name : name + u'(' + QString::number(index) + u')');
    }
    return *control;
}

std::vector<Control*> FormModel::named(const QString& name) const {
    std::vector<Control*> elements;
    for (auto at = controls_.lower_bound({name, INT_MIN}); at != controls_.end() && at->first.first == name; ++at) {
        elements.push_back(at->second.get());
    }
    return elements;
}

std::vector<Control*> FormModel::all() const {
    std::vector<Control*> controls;
    controls.reserve(controls_.size());
    for (const auto& [key, control] : controls_) controls.push_back(control.get());
    return controls;
}

}  // namespace zelvor
