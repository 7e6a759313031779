#include "form/form_model.h"

#include "base/run_time_error.h"

namespace zelvor {

FormModel::FormModel() {
    for (const ControlRow& row : allControls()) {
        for (int index = row.elements.first; index <= row.elements.last; ++index) {
            auto control = std::make_unique<Control>(row, index);
            connect(control.get(), &Control::changed, this, &FormModel::changed);
            controls_.emplace(std::pair{row.name.toString(), index}, std::move(control));
        }
    }
}

Control* FormModel::find(QStringView name, int index) const {
    const auto found = controls_.find(Before::Key{name, index});
    return found == controls_.end() ? nullptr : found->second.get();
}

Control& FormModel::at(const ControlRow& row, int index) const {
    Control* control = find(row.name, index);
    if (control == nullptr) {
        const QString name = row.name.toString();
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           index < 0 ? name : name + u'(' + QString::number(index) + u')');
    }
    return *control;
}

std::vector<Control*> FormModel::named(QStringView name) const {
    std::vector<Control*> elements;
    for (auto at = controls_.lower_bound(Before::Key{name, INT_MIN}); at != controls_.end() && at->first.first == name;
         ++at) {
        elements.push_back(at->second.get());
    }
    return elements;
}

std::vector<Control*> FormModel::all() const {
    std::vector<Control*> all;
    all.reserve(controls_.size());
    for (const auto& [key, control] : controls_) all.push_back(control.get());
    return all;
}

}  // namespace zelvor
