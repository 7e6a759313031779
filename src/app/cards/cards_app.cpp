#include "app_cards/cards_app.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>
#include <QScopedValueRollback>
#include <QTimer>

#include "ask/ask_fields.h"
#include "base/translate.h"
#include "command_line/command_line.h"
#include "engine/placeholders.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

// Read as what it is: to find out, Qt would load all it has for pictures.
QIcon icon() {
    QImageReader reader(u":/icon.png"_s, "PNG");
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImageReader(&reader);
}

}  // namespace

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
    theme::apply(*qApp, options.theme.value_or(look_.theme()));
    if (Touch::isThere()) options_.touch = true;
    if (options_.touch) theme::setFingerSize(*qApp, Touch::leastPixels(*QGuiApplication::primaryScreen()));
    program_.trap.setReporter([this](const ErrorPlace& place, const QString& message) { tell(place, message); });
    cards_.answer(events_);
    answerLinks();
    tellTroubles();
    answerDesk();
    cards_.presses().setWaited([this] { return inputTimes_.waited(); });
    connect(&boxes_, &Boxes::silenced, this,
            [this](const QString& words) { form_.at(controls.lblSILENCED).setText(words); });
    connect(&cards_, &CardConsole::loaded, this, [this] { boxes_.forgetQuietCards(); });
    // The last lines are handed over before boxes end and runs that wait are told so.
    connect(&program_.closing, &Closing::begun, this, &CardsApp::release);
}

CardsApp::Front::Front(CardsApp& app)
    : window(app.form_, app.events_, app.cards_, app.links_.history(), app.links_.responses()),
      settings(app.engine_, app.settingsRules_, app.cards_, app.boxes_, app.look_, window),
      find(app.state_, app.program_.folder, app.cards_, settings, window) {}

CardsApp::Front& CardsApp::front() {
    if (!front_) {
        // The first question did not wait for these two either.
        QApplication::setWindowIcon(icon());
        QAccessible::setRootObject(qApp);
        front_.emplace(*this);
        answerWindow();
    }
    return *front_;
}

void CardsApp::answerWindow() {
    MainWindow& window = front_->window;
    window.setWindowTitle(startUp_.caption());
    if (options_.touch) window.enlarge();
    boxes_.setWindow(window);
    ask_.setWindow(window);
    front_->settings.answer(events_, desktop_);
    desktop_.addForm(u"frmMAIN"_s, [&window](const Asker& asker) {
        window.show();
        window.raise();
        if (asker.isAttended()) window.activateWindow();
    });
    connect(&window, &MainWindow::functionKey, &cards_, [this](int number) { cards_.functionKey(number); });
    connect(&window, &MainWindow::clearKey, &cards_, [this] { cards_.pressClear(); });
    connect(&window, &MainWindow::olderLineWanted, &linkConsole_, &LinkConsole::recallOlder);
    connect(&window, &MainWindow::newerLineWanted, &linkConsole_, &LinkConsole::recallNewer);
    connect(&cards_.presses(), &Presses::turnBefore, &front_->paintHold, &PaintHold::hold);
    connect(&window, &MainWindow::closed, &program_.closing, &Closing::begin);
    window.setMayClose([this] { return mayClose(); });
    connect(&program_.closing, &Closing::begun, &window, [this, &window] {
        // The preview instance stands beside the console, whose place it is that counts; before it is shown a window
        // has none.
        if (!state_.preview && window.isVisible()) look_.keepPlace(window);
        window.close();
    });
}

// The first question is on the screen: there is time for the window.
bool CardsApp::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        QTimer::singleShot(0, this, [this] { front(); });
    }
    return QObject::eventFilter(watched, event);
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
    steps.showWindow = [this] {
        look_.show(window());
        engine_.ports().clock.turnEvents(1);  // it is on the screen before the database is waited for
    };
    steps.CONNECTDATABASE = [this] { database_.CONNECTDATABASE(); };
    steps.LOAD_CARDS = [this] { packs_.LOAD_CARDS(); };
    steps.LOAD_ASK = [this] { LOAD_ASK(state_, program_); };
    steps.LoadSelections = [this] { settingsRules_.selections.LoadSelections(); };
    steps.showGeneral = [this] { settings().showGeneral(); };
    steps.startTimedCards = [this] { desk_.timedCards.start(); };
    return steps;
}

void CardsApp::start() {
    connect(
        &boxes_, &Boxes::opened, this, [this](QDialog* box) { box->installEventFilter(this); },
        Qt::SingleShotConnection);
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
    if (settings().hasUnsaved()) reasons += translate("cards", "General variables are not saved.");
    return reasons.isEmpty() || boxes_.yesNo({}, translate("cards", "Close the console?"), reasons.join(u"\r\n"_s));
}

void CardsApp::release() {
    links_.finishSending();
    database_.close();
}

}  // namespace zelvor
