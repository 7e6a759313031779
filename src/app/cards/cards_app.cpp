#include "app_cards/cards_app.h"

#include <QScopedValueRollback>

#include "ask/ask_fields.h"
#include "base/translate.h"
#include "command_line/command_line.h"
#include "engine/placeholders.h"

using namespace Qt::StringLiterals;

namespace zelvor {

CardsApp::CardsApp(const Options& options)
    : options_(options),
      program_{AppFolder(options.appFolder), options.files, ErrorTrap(options.errorLog)},
      database_(state_, boxes_, program_, clock_,
                {.commandLine = options.commandLine,
                 .number = options.connection,
                 .seconds = options.querySeconds,
                 .opensAtOnce = true}),
      linkConsole_(form_, links_, clock_, program_.trap,
                   [this](const QString& text) { return EXPAND_VARS(text, state_.variables, state_.QUERY_RESULT); }),
      startUp_(engine_, cards_, steps()) {
    state_.preview = isPreview(options.commandLine);
    boxes_.setWindow(window_);
    ask_.setWindow(window_);
    program_.trap.setReporter([this](const ErrorPlace& place, const QString& message) { tell(place, message); });
    cards_.answer(events_);
    answerLinks();
    tellTroubles();
    settings_.answer(events_, desktop_);
    desktop_.addForm(u"frmMAIN"_s, [this](const Asker& asker) {
        window_.show();
        window_.raise();
        if (asker.isAttended()) window_.activateWindow();
    });
    answerDesk();
    connect(&window_, &MainWindow::functionKey, &cards_, [this](int number) { cards_.functionKey(number); });
    connect(&window_, &MainWindow::clearKey, &cards_, [this] { cards_.pressClear(); });
    cards_.presses().setWaited([this] { return inputTimes_.waited(); });
    connect(&cards_.presses(), &Presses::turnBefore, &paintHold_, &PaintHold::hold);
    connect(&boxes_, &Boxes::silenced, this,
            [this](const QString& words) { form_.at(controls.lblSILENCED).setText(words); });
    connect(&cards_, &CardConsole::loaded, this, [this] { boxes_.forgetQuietCards(); });
    // The last lines are handed over before boxes end and runs that wait are told so.
    connect(&program_.closing, &Closing::begun, this, &CardsApp::release);
    connect(&program_.closing, &Closing::begun, &window_, &QWidget::close);
    settings_.look().restoreTheme(options.theme);
    if (options.touch || Touch::isThere()) window_.enlarge();
    window_.setMayClose([this] { return mayClose(); });
    // The preview instance stands beside the console, whose place it is that counts.
    if (!state_.preview) connect(&window_, &MainWindow::closed, &settings_.look(), &LookMemory::keepPlace);
    connect(&window_, &MainWindow::closed, &program_.closing, &Closing::begin);
}

void CardsApp::answerLinks() {
    events_.onClick(controls.cmdGASPARCONNECT, [this](int) { linkConsole_.cmdGASPARCONNECT(); });
    events_.onClick(controls.cmdGASPARCONNECTREMOTE, [this](int) { linkConsole_.cmdGASPARCONNECTREMOTE(); });
    events_.onClick(controls.cmdVIEWGASPHISTORY, [this](int) { linkConsole_.cmdVIEWGASPHISTORY(); });
    events_.onClick(controls.cmdGASPHISTCLOSE, [this](int) { linkConsole_.cmdGASPHISTCLOSE(); });
    events_.onClick(controls.cmdLASTXML, [this](int) { linkConsole_.cmdLASTXML(); });
    events_.onClick(controls.cmdMANUALSEND, [this](int) { linkConsole_.cmdMANUALSEND(); });
    const auto connectOnEnter = [this](const LinkControls& link, auto connects) {
        // Enter connects; it never drops a link that is on air.
        const auto enter = [this, &link, connects](int) {
            if (form_.at(link.connect).tag() == u"connect") (linkConsole_.*connects)();
        };
        events_.onEnter(link.address, enter);
        events_.onEnter(link.port, enter);
    };
    connectOnEnter(kMainLinkControls, &LinkConsole::cmdGASPARCONNECT);
    connectOnEnter(kRemoteLinkControls, &LinkConsole::cmdGASPARCONNECTREMOTE);
    events_.onEnter(controls.txtMANUALCASPAR, [this](int) { linkConsole_.cmdMANUALSEND(); });
    connect(&window_, &MainWindow::olderLineWanted, &linkConsole_, &LinkConsole::recallOlder);
    connect(&window_, &MainWindow::newerLineWanted, &linkConsole_, &LinkConsole::recallNewer);
}

void CardsApp::tellTroubles() {
    connect(&troubles_, &CardTroubles::changed, &cards_, &CardConsole::cardsChanged);
    connect(&cards_, &CardConsole::clearing, &troubles_, &CardTroubles::clear);
    for (const LinkId id : {LinkId::Main, LinkId::Remote}) tellTroubles(id);
    connect(&links_, &GraphicsLinks::lineLost, this, [this](LinkId id, const ReplyMatcher::SentLine& lost) {
        if (!linkConsole_.watch(id).isUsed()) return;
        troubles_.add(lost.asker, id == LinkId::Main ? translate("cards", "not sent: main link down")
                                                     : translate("cards", "not sent: remote link down"));
    });
    connect(&links_, &GraphicsLinks::lineAnswered, this, [this](LinkId id, const ReplyMatcher::Answer& answer) {
        if (!answer.refused()) return troubles_.wentWell(answer.to.asker);
        troubles_.add(answer.to.asker, answer.reply);
        if (!answer.to.asker.card.isEmpty()) linkConsole_.watch(id).showRefusal(answer.reply);
    });
}

void CardsApp::tellTroubles(LinkId id) {
    LinkWatch& watch = linkConsole_.watch(id);
    connect(&troubles_, &CardTroubles::cleared, &watch, [&watch] { watch.showRefusal({}); });
    connect(&troubles_, &CardTroubles::cardWentWell, &watch, &LinkWatch::forgetReconnect);
    const QString variable = id == LinkId::Main ? u"@MAINCONNECTS"_s : u"@REMOTECONNECTS"_s;
    connect(&watch, &LinkWatch::cameUp, this,
            [this, variable](int times) { state_.variables.SetVar(variable, times); });
}

void CardsApp::answerDesk() {
    events_.onClick(controls.cmdCLOCKS, [this](int) { desk_.localClock.cmdCLOCKS(); });
    events_.onClick(controls.Command1, [this](int) { desk_.stopwatch.Command1(); });
    events_.onClick(controls.cmdMANSCORE, [this](int index) { desk_.scoreboard.cmdMANSCORE(index); });
    events_.onClick(controls.lblPROPOSED, [this](int index) { takeProposal(index, {u"proposal"_s}); });
    const auto players = [this](auto handler) {
        return [this, handler](int index, Qt::MouseButton button) { (desk_.players.*handler)(index, button); };
    };
    events_.onMouseDown(controls.lblAPLAYERS, players(&PlayerLabels::lblAPLAYERS));
    events_.onMouseDown(controls.lblHPLAYERS, players(&PlayerLabels::lblHPLAYERS));
}

void CardsApp::takeProposal(int index, const Presser& presser) {
    cards_.presses().press(translate("cards", "Proposal %1").arg(index), presser,
                           [this, index, presser] { desk_.proposals.lblPROPOSED(index, presser); });
}

void CardsApp::nameServers() {
    const auto name = [this](const LinkControls& link, const std::optional<HostPort>& server, auto connects) {
        if (!server) return;
        form_.at(link.address).setText(server->host);
        form_.at(link.port).setText(QString::number(server->port));
        if (options_.connects) (linkConsole_.*connects)();
    };
    name(kMainLinkControls, options_.main, &LinkConsole::cmdGASPARCONNECT);
    name(kRemoteLinkControls, options_.remote, &LinkConsole::cmdGASPARCONNECTREMOTE);
}

StartUp::Steps CardsApp::steps() {
    StartUp::Steps steps;
    steps.bindFeed = [this] { desk_.feedSocket.bind(options_.feedPort); };
    steps.LOAD_PACKS = [this] { packs_.LOAD_PACKS(options_.pack); };
    steps.CONNECTDATABASE = [this] { database_.CONNECTDATABASE(); };
    steps.LOAD_CARDS = [this] { packs_.LOAD_CARDS(); };
    steps.LOAD_ASK = [this] { LOAD_ASK(state_, program_); };
    steps.LoadSelections = [this] { settings_.LoadSelections(); };
    steps.showGeneral = [this] { settings_.showGeneral(); };
    steps.startTimedCards = [this] { desk_.timedCards.start(); };
    return steps;
}

void CardsApp::start() {
    window_.setWindowTitle(startUp_.caption());
    if (options_.keepsAsRun && !state_.preview) keepAsRun();
    nameServers();
    const QStringList faults = remote_.listen(options_.remoteControl);
    if (!faults.isEmpty()) {
        boxes_.message({Asker::Kind::StartUp}, translate("cards", "Control from outside"),
                       translate("cards", "The console does not listen:") + u"\r\n"_s + faults.join(u"\r\n"_s),
                       Operator::Severity::Warning);
    }
    startUp_.run();
    remote_.open();
}

void CardsApp::keepAsRun() {
    asRunFile_.emplace(program_.folder, clock_.now().date());
    // Nobody has to answer: the cards go on.
    connect(&*asRunFile_, &AsRunFile::failed, this, [this](const QString& reason) {
        boxes_.message({Asker::Kind::TimedCard}, translate("cards", "As-run record"),
                       translate("cards", "What is on air cannot be written down: %1").arg(reason) + u"\r\n"_s +
                           asRunFile_->path(),
                       Operator::Severity::Warning);
    });
    asRun_.emplace(
        engine_, links_, [this](LinkId id) { return linkConsole_.watch(id).isUsed(); }, *asRunFile_);
}

// One message at a time: while it is open further errors stand in the log alone.
void CardsApp::tell(const ErrorPlace& place, const QString& message) {
    if (telling_) return;
    const QScopedValueRollback telling(telling_, true);
    boxes_.message(place.asker, errorTitle(place), message, Operator::Severity::Critical);
}

bool CardsApp::mayClose() {
    QStringList reasons;
    const bool isLinked =
        links_.state(LinkId::Main) == Graphics::kConnected || links_.state(LinkId::Remote) == Graphics::kConnected;
    if (isLinked && !form_.at(controls.lblONAIR).text().isEmpty())
        reasons += translate("cards", "Something is on air.");
    if (settings_.hasUnsaved()) reasons += translate("cards", "General variables are not saved.");
    return reasons.isEmpty() || boxes_.yesNo({}, translate("cards", "Close the console?"), reasons.join(u"\r\n"_s));
}

void CardsApp::release() {
    links_.finishSending();
    database_.close();
}

}  // namespace zelvor
