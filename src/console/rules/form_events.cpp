#include "console_rules/form_events.h"

using namespace Qt::StringLiterals;

namespace zelvor {

void FormEvents::onClick(const ControlRow& row, Click handler, Tell tell) {
    clicks_.insert_or_assign(row.name.toString(), Entry<Click>{std::move(handler), tell});
}

void FormEvents::onMouseDown(const ControlRow& row, MouseDown handler, Tell tell) {
    mouseDowns_.insert_or_assign(row.name.toString(), Entry<MouseDown>{std::move(handler), tell});
}

void FormEvents::onEnter(const ControlRow& row, Click handler, Tell tell) {
    enters_.insert_or_assign(row.name.toString(), Entry<Click>{std::move(handler), tell});
}

template <class Body>
void FormEvents::run(const Control& control, const QString& event, Tell tell, Body&& body) const {
    ErrorPlace place;
    place.procedure = u"frmMAIN."_s + control.name() + event;
    trap_.run(place, tell, std::forward<Body>(body));
}

void FormEvents::click(const Control& control) const {
    const auto found = clicks_.find(control.name());
    if (found == clicks_.end()) return;
    run(control, u"_Click"_s, found->second.tell, [&] { found->second.handler(control.index()); });
}

void FormEvents::mouseDown(const Control& control, Qt::MouseButton button) const {
    const auto found = mouseDowns_.find(control.name());
    if (found == mouseDowns_.end()) return;
    run(control, u"_MouseDown"_s, found->second.tell, [&] { found->second.handler(control.index(), button); });
}

void FormEvents::enter(const Control& control) const {
    const auto found = enters_.find(control.name());
    if (found == enters_.end()) return;
    run(control, u"_KeyPress"_s, found->second.tell, [&] { found->second.handler(control.index()); });
}

}  // namespace zelvor
