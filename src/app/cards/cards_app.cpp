#include "app_cards/cards_app.h"

#include "engine/placeholders.h"

using namespace Qt::StringLiterals;

namespace zelvor {

CardsApp::CardsApp(const Options& options)
    : folder_(options.appFolder),
      files_(options.files),
      trap_(options.errorLog),
      linkConsole_(form_, links_, clock_, trap_,
                   [this](const QString& text) { return EXPAND_VARS(text, state_.variables, state_.QUERY_RESULT); }),
      startUp_(engine_, cards_, trap_, steps()) {
    state_.preview = options.preview;
    boxes_.setWindow(window_);
    trap_.setReporter([this](const ErrorPlace&, const QString& message) {
        boxes_.message({}, message, Operator::Severity::Critical);
    });
    cards_.answer(events_);
    answerLinks();
    form_.at(u"lblFEED"_s).setText(u"feed off"_s);
    form_.at(u"lblDATABASE"_s).setText(u"database none"_s);
    connect(&window_, &MainWindow::functionKey, this, [this](int number) { cards_.functionKey(number); });
    connect(&window_, &MainWindow::closed, this, &CardsApp::close);
}

void CardsApp::answerLinks() {
    events_.onClick(u"cmdGASPARCONNECT"_s, [this](int) { linkConsole_.cmdGASPARCONNECT(); });
    events_.onClick(u"cmdGASPARCONNECTREMOTE"_s, [this](int) { linkConsole_.cmdGASPARCONNECTREMOTE(); });
    events_.onClick(u"cmdVIEWGASPHISTORY"_s, [this](int) { linkConsole_.cmdVIEWGASPHISTORY(); });
    events_.onClick(u"cmdGASPHISTCLOSE"_s, [this](int) { linkConsole_.cmdGASPHISTCLOSE(); });
    events_.onClick(u"cmdLASTXML"_s, [this](int) { linkConsole_.cmdLASTXML(); });
    events_.onClick(u"cmdMANUALSEND"_s, [this](int) { linkConsole_.cmdMANUALSEND(); });
    events_.onEnter(u"txtMANUALCASPAR"_s, [this](int) { linkConsole_.cmdMANUALSEND(); });
    connect(&window_, &MainWindow::olderLineWanted, &linkConsole_, &LinkConsole::recallOlder);
    connect(&window_, &MainWindow::newerLineWanted, &linkConsole_, &LinkConsole::recallNewer);
}

StartUp::Steps CardsApp::steps() {
    StartUp::Steps steps;
    steps.LOAD_PACKS = [this] { packs_.LOAD_PACKS(); };
    steps.LOAD_CARDS = [this] { packs_.LOAD_CARDS(); };
    return steps;
}

void CardsApp::start() {
    window_.setWindowTitle(startUp_.caption());
    startUp_.run();
}

void CardsApp::close() {
    state_.closing = true;
    boxes_.closeAll();
}

}  // namespace zelvor
