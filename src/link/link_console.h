#pragma once

#include <QObject>
#include <QString>
#include <functional>

#include "link/graphics_links.h"
#include "link/link_watch.h"
#include "link/recall_list.h"

namespace zelvor {

// What the operator does with the links, as rules over the form model: connecting, the presets of the remote address,
// the history panel, the last-template view, the manual line, the log switch. Check boxes and the preset list are
// followed as they change in the form model; buttons are calls. No call raises: errors are trapped and told.
class LinkConsole : public QObject {
    Q_OBJECT

 public:
    // Expands the placeholders of a text; may throw RunTimeError.
    using Expand = std::function<QString(const QString& text)>;

    // Also fills the preset list, "(none)" selected.
    LinkConsole(FormModel& form, GraphicsLinks& links, Clock& clock, ErrorTrap& trap, Expand expand);

    void cmdGASPARCONNECT();
    void cmdGASPARCONNECTREMOTE();
    void cmdVIEWGASPHISTORY();
    void cmdGASPHISTCLOSE();
    void cmdLASTXML();
    // Sends txtMANUALCASPAR on the main link, placeholders expanded and single quotes as double ones.
    void cmdMANUALSEND();
    // Put the line sent before or after the one shown into txtMANUALCASPAR; the box is empty behind the newest.
    void recallOlder();
    void recallNewer();

    [[nodiscard]] LinkWatch& watch(LinkId link) { return link == LinkId::Main ? mainWatch_ : remoteWatch_; }

 private:
    void choosePreset();
    void switchLog();
    template <class Body>
    void trapped(const QString& procedure, Body&& body);

    FormModel& form_;
    GraphicsLinks& links_;
    ErrorTrap& trap_;
    Expand expand_;
    LinkWatch mainWatch_;
    LinkWatch remoteWatch_;
    RecallList manualLines_;
};

}  // namespace zelvor
