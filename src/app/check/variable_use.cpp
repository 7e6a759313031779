#include "app_check/variable_use.h"

#include <algorithm>
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

// Whether two names, either with kAnything in it, may be the same.
bool mayBeSame(QStringView a, QStringView b) {
    const auto width = static_cast<size_t>(b.size()) + 1;
    // below[j]: whether what is left of a behind row i may equal what is left of b behind j.
    std::vector<char> below(width, 0);
    std::vector<char> row(width, 0);
    for (qsizetype i = a.size(); i >= 0; --i) {
        for (qsizetype j = b.size(); j >= 0; --j) {
            const auto at = static_cast<size_t>(j);
            const bool aEnds = i == a.size();
            const bool bEnds = j == b.size();
            if (aEnds && bEnds) {
                row[at] = 1;
            } else {
                const bool aAny = !aEnds && a[i] == kAnything;
                const bool bAny = !bEnds && b[j] == kAnything;
                bool same = false;
                if (aAny) same = below[at] != 0 || (!bEnds && row[at + 1] != 0);
                if (bAny) same = same || row[at + 1] != 0 || (!aEnds && below[at] != 0);
                if (!aAny && !bAny && !aEnds && !bEnds) same = a[i] == b[j] && below[at + 1] != 0;
                row[at] = same ? 1 : 0;
            }
        }
        below = row;
    }
    return below[0] != 0;
}

}  // namespace

void VariableUse::set(const QString& name) {
    if (!name.contains(kAnything)) {
        names_.insert(name);
    } else if (name.size() > 1 && !patterns_.contains(name)) {
        // A name that is nothing but a placeholder would excuse every variable.
        patterns_ += name;
    }
}

bool VariableUse::isSet(const QString& name) const {
    const auto same = [&](QStringView other) { return mayBeSame(name, other); };
    if (names_.contains(name) || std::ranges::any_of(patterns_, same) || std::ranges::any_of(kOwnVariables, same)) {
        return true;
    }
    return name.contains(kAnything) && std::ranges::any_of(names_, same);
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
