#include "form/control_row.h"

using namespace Qt::StringLiterals;

namespace zelvor {

QString roleText(ControlRole role) {
    switch (role) {
        case ControlRole::Plain:
            return u"plain"_s;
        case ControlRole::Good:
            return u"good"_s;
        case ControlRole::Waiting:
            return u"waiting"_s;
        case ControlRole::Bad:
            return u"bad"_s;
        case ControlRole::Off:
            return u"off"_s;
    }
    Q_UNREACHABLE();
}

}  // namespace zelvor
