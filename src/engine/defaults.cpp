#include "engine/defaults.h"

using namespace Qt::StringLiterals;

namespace zelvor {

void writeAppPath(ShowState& state, const AppFolder& folder) {
    state.variables.SetVar(u"@APP_PATH", folder.path());
}

void writeGameDefaults(ShowState& state, FormModel& form) {
    VariableStore& variables = state.variables;
    for (const QStringView name : {u"LASTCARDTAG", u"@SCOREA", u"@SCOREB", u"@MANUALSCOREA", u"@MANUALSCOREB",
                                   u"@GREENSCOREA", u"@GREENSCOREB", u"@MAINCONNECTS", u"@REMOTECONNECTS"}) {
        variables.SetVar(name, u"0"_s);
    }
    form.at(controls.lblTime).setText(u"0:00"_s);
    variables.SetVar(u"@TIMER", u"0:00"_s);
    for (int player = 1; player <= 5; ++player) {
        variables.SetVar(u"@S5H%1"_s.arg(player), u"0"_s);
        variables.SetVar(u"@S5A%1"_s.arg(player), u"0"_s);
    }
}

void writeScreenModeDefault(ShowState& state, FormModel& form) {
    paintScreenMode(form, true);
    state.variables.SetVar(u"@SCREEN_MODE", u"16_9"_s);
}

void writeCrawlDefault(ShowState& state) {
    state.variables.SetVar(u"@CRAWLSPEED", 4);
}

void writeEffectDefaults(ShowState& state) {
    for (const QStringView name : kEffectVariables) state.variables.SetVar(name, u"10"_s);
}

void paintScreenMode(FormModel& form, bool wide) {
    form.at(controls.cmdSCREENMODE, 0).setBackColour(wide ? colours::kScreenModeOff : colours::kScreenModeOn);
    form.at(controls.cmdSCREENMODE, 1).setBackColour(wide ? colours::kScreenModeOn : colours::kScreenModeOff);
}

void writeAllDefaults(ShowState& state, FormModel& form, const AppFolder& folder) {
    writeAppPath(state, folder);
    writeGameDefaults(state, form);
    writeScreenModeDefault(state, form);
    writeCrawlDefault(state);
    writeEffectDefaults(state);
}

}  // namespace zelvor
