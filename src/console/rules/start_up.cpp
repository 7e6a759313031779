#include "console_rules/start_up.h"

#include "base/translate.h"
#include "engine/defaults.h"
#include "engine/on_air.h"
#include "engine/team_labels.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kCasparTab = 4;
constexpr int kPeriods = 9;
constexpr int kEffectSpeeds = 100;
constexpr int kFirstEffectSpeed = 9;  // its position in the list: "10"

QList<Control::Item> numbers(int last) {
    QList<Control::Item> items;
    for (int number = 1; number <= last; ++number) items += {QString::number(number), number};
    return items;
}

}  // namespace

StartUp::StartUp(CardEngine& engine, CardConsole& console, Steps steps)
    : engine_(engine), console_(console), steps_(std::move(steps)), state_(engine.state()), form_(engine.form()) {}

QString StartUp::caption() const {
    const QString name = u"Zelvor Cards (" ZELVOR_VERSION ")"_s;
    return state_.preview ? u"Preview "_s + name : name;
}

// False as soon as the program is closing: the sequence ends there.
bool StartUp::step(const QString& name, const std::function<void()>& body) {
    Program& program = engine_.program();
    if (program.closing.hasBegun()) return false;
    if (body) program.trap.run({u"frmMAIN."_s + name, 0, {Asker::Kind::StartUp}}, ErrorTrap::Tell::Operator, body);
    return !program.closing.hasBegun();
}

void StartUp::layOut() {
    console_.showTab(kCasparTab);
    form_.at(controls.Frame6).setVisible(false);
    form_.at(controls.fraGASPHISTORY).setVisible(false);
    Control& period = form_.at(controls.cbQt);
    period.setItems(numbers(kPeriods));
    period.setPosition(0);
    for (Control* proposal : form_.named(controls.lblPROPOSED)) {
        proposal->setBackColour(colours::kOpenProposal);
        proposal->setText({});
        proposal->setTag({});
    }
    form_.at(controls.lblPREVIEW).setVisible(state_.preview);
}

void StartUp::fillEffects() {
    for (Control* box : form_.named(controls.cmbFADE)) {
        box->setItems(numbers(kEffectSpeeds));
        box->setPosition(kFirstEffectSpeed);
    }
    writeEffectDefaults(state_);
}

void StartUp::tellOfNoModules() {
    engine_.ports().operatorDesk.message(
        {Asker::Kind::StartUp}, {},
        translate("console", "There is no folder MODULES in") + u"\r\n"_s + engine_.program().folder.path() +
            u"\r\n"_s +
            translate("console", "Start with --app-folder FOLDER, the folder that holds it, or with --user-folder."),
        Operator::Severity::Warning);
}

void StartUp::run() {
    Clock& clock = engine_.ports().clock;
    step(u"Form_Load"_s, [&] {
        writeAppPath(state_, engine_.program().folder);
        layOut();
    });
    if (!state_.preview) step(u"wsT"_s, steps_.bindFeed);
    step(u"Form_Load"_s, [&] {
        writeGameDefaults(state_, form_);
        writeScreenModeDefault(state_, form_);
    });
    // Without a pack nothing that reads one is tried but its cards: each would say in its own words what is told here.
    const AppFolder& folder = engine_.program().folder;
    const bool hasModules = folder.exists(folder.modulesFile({}));
    if (hasModules) {
        step(u"LOAD_PACKS"_s, steps_.LOAD_PACKS);
    } else {
        step(u"LOAD_PACKS"_s, [&] { tellOfNoModules(); });
    }
    const bool hasPack = hasModules && state_.variables.find(u"@LANGUAGE") != nullptr;
    step(u"Form_Load"_s, steps_.showWindow);
    if (hasPack) step(u"CONNECTDATABASE"_s, steps_.CONNECTDATABASE);
    if (hasModules) step(u"LOAD_CARDS"_s, steps_.LOAD_CARDS);
    if (hasPack) step(u"LOAD_ASK"_s, steps_.LOAD_ASK);
    step(u"Form_Load"_s, [&] {
        console_.selectBox(0);
        writeCrawlDefault(state_);
        fillEffects();
        console_.showLoaded();
    });
    step(u"Form_Load"_s, [&] {
        if (!hasPack) return;
        engine_.SHOW_TVCARD(CardEngine::kStartCard, false, false, {Asker::Kind::StartUp, CardEngine::kStartCard});
    });
    step(u"Form_Load"_s, [&] {
        showTeams(state_, form_);  // also when that card is missing
        clock.turnEvents(1);
        showClear(form_);
        clock.turnEvents(1);
    });
    step(u"LoadSelections"_s, steps_.LoadSelections);
    step(u"Form_Load"_s, steps_.showGeneral);
    if (!step(u"Form_Load"_s, [&] { clock.turnEvents(1); })) return;
    step(u"tmrCARD"_s, steps_.startTimedCards);
}

}  // namespace zelvor
