#include "engine/forms.h"

#include <algorithm>
#include <array>

namespace zelvor {

QString formNamed(QStringView name) {
    static constexpr std::array<QStringView, 2> kForms{u"frmMAIN", u"frmGENERAL"};
    const auto* form = std::ranges::find_if(
        kForms, [&](QStringView known) { return known.compare(name.trimmed(), Qt::CaseInsensitive) == 0; });
    return form == kForms.end() ? QString() : form->toString();
}

}  // namespace zelvor
