#include "app_check/variable_use.h"

#include <array>

#include "app_check/placeholder_scan.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// The variables that the program sets, whatever the pack does.
constexpr std::array kOwnVariables{
    // Start-up, language and screen mode
    QStringView(u"@APP_PATH"),
    QStringView(u"@LANGUAGE"),
    QStringView(u"@SCREEN_MODE"),
    QStringView(u"@CRAWLSPEED"),
    QStringView(u"@FADE_IN"),
    QStringView(u"@FADE_OUT"),
    QStringView(u"@ROLL_SPEED"),
    QStringView(u"@WIPE"),
    // Scores, period and line-ups
    QStringView(u"@SCOREA"),
    QStringView(u"@SCOREB"),
    QStringView(u"@MANUALSCOREA"),
    QStringView(u"@MANUALSCOREB"),
    QStringView(u"@GREENSCOREA"),
    QStringView(u"@GREENSCOREB"),
    QStringView(u"@GAMEPERIOD"),
    QStringView(u"@S5A\uFFFC"),
    QStringView(u"@S5H\uFFFC"),
    QStringView(u"@S11A\uFFFC"),
    QStringView(u"@S11H\uFFFC"),
    // Graphics links
    QStringView(u"@MAINCONNECTS"),
    QStringView(u"@REMOTECONNECTS"),
    // Game feed and clocks
    QStringView(u"@TIMER"),
    QStringView(u"@TIMERNUMBER"),
    QStringView(u"@FULLTIMER"),
    QStringView(u"@TIMEREXTRA"),
    QStringView(u"@TIMEREXTRANUMBER"),
    QStringView(u"@SHOWEXTRATIME"),
    QStringView(u"@EXTRATIMEONAIR"),
    QStringView(u"@EXTRATIME"),
    QStringView(u"@CLOCKS"),
    QStringView(u"@LOCALTIME"),
    // Left by commands and by the console's buttons
    QStringView(u"@RECORDCOUNT"),
    QStringView(u"@RETURNKEY"),
    QStringView(u"@LOOP_ANSWER"),
    QStringView(u"@CARD_BUTTON_INDEX"),
    QStringView(u"@CASPARXML"),
    QStringView(u"@CASPARXMLREMOTE"),
    QStringView(u"@TEXTLINES"),
    QStringView(u"@TEXTCOLS"),
    QStringView(u"@PERC"),
    QStringView(u"@PERCM1"),
    QStringView(u"@PERCM2"),
};

}  // namespace

QStringList ownVariables() {
    QStringList names;
    for (const QStringView name : kOwnVariables) {
        if (!name.contains(kAnything)) names += name.toString();
    }
    return names;
}

VariableUse::VariableUse() {
    for (const QStringView name : kOwnVariables) set(name.toString());
}

void VariableUse::set(const QString& name) {
    if (!name.contains(kAnything)) {
        names_.insert(name);
    } else if (name.size() > 2 || (name.size() == 2 && name[0] != u'@')) {
        // A name that is nothing but a placeholder would excuse every variable.
        patterns_.insert(name);
    }
}

bool VariableUse::isSet(const QString& name) const {
    return names_.contains(name) || patterns_.mayHold(name) || (name.contains(kAnything) && names_.anyIs(name));
}

void VariableUse::report(Findings& findings) const {
    for (auto read = reads_.begin(); read != reads_.end(); ++read) {
        if (isSet(read.key())) continue;
        QString shown = read.key();
        shown.replace(kAnything, u"..."_s);
        for (const Place& place : read.value()) findings.warning(place, shown + u" is read but set nowhere"_s);
    }
}

}  // namespace zelvor
