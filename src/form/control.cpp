#include "form/control.h"

#include <algorithm>

#include "base/run_time_error.h"

namespace zelvor {

Control::Control(Kind kind, QString name, int index) : kind_(kind), name_(std::move(name)), index_(index) {}

QString Control::displayName() const {
    return index_ < 0 ? name_ : name_ + u'(' + QString::number(index_) + u')';
}

template <class T>
void Control::change(T& member, const T& value, Property property) {
    if (member == value) return;
    member = value;
    Q_EMIT changed(this, property);
}

void Control::setText(const QString& text) {
    if (kind_ == Kind::List && !(position_ >= 0 && items_[position_].text == text)) {
        const auto item =
            std::find_if(items_.begin(), items_.end(), [&](const Item& each) { return each.text == text; });
        position_ = item == items_.end() ? -1 : static_cast<int>(item - items_.begin());
    }
    change(text_, text, Property::Text);
}
void Control::setTag(const QString& tag) {
    change(tag_, tag, Property::Tag);
}
void Control::setBackColour(std::optional<Colour> colour) {
    change(backColour_, colour, Property::BackColour);
}
void Control::setForeColour(std::optional<Colour> colour) {
    change(foreColour_, colour, Property::ForeColour);
}
void Control::setVisible(bool visible) {
    change(visible_, visible, Property::Visible);
}
void Control::setEnabled(bool enabled) {
    change(enabled_, enabled, Property::Enabled);
}
void Control::setChecked(bool checked) {
    change(checked_, checked, Property::Checked);
}
void Control::setState(const QString& state) {
    change(state_, state, Property::State);
}

void Control::setItems(const QList<Item>& items) {
    position_ = -1;
    change(items_, items, Property::Items);
}

void Control::setPosition(int position) {
    if (position < -1 || position >= items_.size())
        throw RunTimeError(ErrorNumber::InvalidPropertyValue, displayName());
    position_ = position;
    setText(position < 0 ? QString() : items_[position].text);
}

}  // namespace zelvor
