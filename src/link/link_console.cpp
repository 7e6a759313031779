#include "link/link_console.h"

#include <array>

#include "form/follow.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

struct Preset {
    QString name;
    QString address;  // empty: typed in by the operator
};

// The entries of cmbCASPARREMOTELIST in order; an entry's item data is its place.
const std::array<Preset, 4>& presets() {
    static const std::array<Preset, 4> kPresets{{
        {u"(none)"_s, {}},
        {u"Caspar 01"_s, u"192.168.1.101"_s},
        {u"Caspar 02"_s, u"192.168.1.102"_s},
        {u"Caspar 03"_s, u"192.168.1.103"_s},
    }};
    return kPresets;
}

}  // namespace

LinkConsole::LinkConsole(FormModel& form, GraphicsLinks& links, Clock& clock, ErrorTrap& trap, Expand expand)
    : form_(form),
      links_(links),
      trap_(trap),
      expand_(std::move(expand)),
      mainWatch_(LinkId::Main, links, form, clock, trap),
      remoteWatch_(LinkId::Remote, links, form, clock, trap) {
    mainWatch_.setParent(this);
    remoteWatch_.setParent(this);
    Control& list = form_.at(controls.cmbCASPARREMOTELIST);
    QList<Control::Item> items;
    for (const Preset& preset : presets()) items += {preset.name, static_cast<int>(items.size())};
    list.setItems(items);
    list.setPosition(0);
    onChange(list, {Control::Property::Text}, this, [this] { choosePreset(); });
    onChange(form_.at(controls.chkLOGFILE), {Control::Property::Checked}, this, [this] { switchLog(); });
}

template <class Body>
void LinkConsole::trapped(const QString& procedure, Body&& body) {
    trap_.run({u"frmMAIN."_s + procedure}, ErrorTrap::Tell::Operator, std::forward<Body>(body));
}

void LinkConsole::cmdGASPARCONNECT() {
    trapped(u"cmdGASPARCONNECT"_s, [&] {
        // "Connected" is said before the connection has been made: meant.
        links_.responses().add(mainWatch_.pressConnect() ? u"Connected"_s : u"Disconnected"_s);
    });
}

void LinkConsole::cmdGASPARCONNECTREMOTE() {
    trapped(u"cmdGASPARCONNECTREMOTE"_s, [&] { remoteWatch_.pressConnect(); });
}

void LinkConsole::cmdVIEWGASPHISTORY() {
    trapped(u"cmdVIEWGASPHISTORY"_s, [&] { form_.at(controls.fraGASPHISTORY).setVisible(true); });
}

void LinkConsole::cmdGASPHISTCLOSE() {
    trapped(u"cmdGASPHISTCLOSE"_s, [&] { form_.at(controls.fraGASPHISTORY).setVisible(false); });
}

void LinkConsole::cmdLASTXML() {
    trapped(u"cmdLASTXML"_s, [&] {
        Control& history = form_.at(controls.lstGASPARHISTORY);
        const bool shows = !history.visible();
        history.setVisible(shows);
        form_.at(controls.cmdLASTXML).setText(shows ? u"Show Last XML"_s : u"Show Last CG"_s);
    });
}

void LinkConsole::cmdMANUALSEND() {
    trapped(u"cmdMANUALSEND"_s, [&] {
        const QString typed = form_.at(controls.txtMANUALCASPAR).text();
        manualLines_.add(typed);
        links_.sendLine(LinkId::Main, expand_(typed).replace(u'\'', u'"'), {});
    });
}

void LinkConsole::recallOlder() {
    trapped(u"txtMANUALCASPAR"_s, [&] {
        Control& box = form_.at(controls.txtMANUALCASPAR);
        box.setText(manualLines_.older(box.text()));
    });
}

void LinkConsole::recallNewer() {
    trapped(u"txtMANUALCASPAR"_s, [&] {
        Control& box = form_.at(controls.txtMANUALCASPAR);
        box.setText(manualLines_.newer(box.text()));
    });
}

void LinkConsole::choosePreset() {
    trapped(u"cmbCASPARREMOTELIST"_s, [&] {
        const int position = form_.at(controls.cmbCASPARREMOTELIST).position();
        const QString address = position > 0 ? presets().at(static_cast<size_t>(position)).address : QString();
        Control& field = form_.at(controls.txtGASPARIPREMOTE);
        if (!address.isEmpty()) field.setText(address);
        field.setEnabled(address.isEmpty());
    });
}

void LinkConsole::switchLog() {
    trapped(u"chkLOGFILE"_s, [&] {
        if (links_.logging()) {
            links_.startLog();
        } else {
            links_.stopLog();
        }
    });
}

}  // namespace zelvor
