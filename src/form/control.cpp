#include "form/control.h"

#include <algorithm>

#include "base/run_time_error.h"
#include "base/translate.h"

namespace zelvor {

namespace {

// An element's own text where the row has one for each.
QString elementText(const QString& texts, int place) {
    if (!texts.contains(u'|')) return texts;
    for (const QStringView text : QStringView(texts).tokenize(u'|')) {
        if (place-- == 0) return text.toString();
    }
    return {};
}

}  // namespace

QString ControlRow::shownHint() const {
    return translate("form", hint);
}

Control::Control(const ControlRow& row, int index)
    : row_(row),
      name_(row.name.toString()),
      index_(index),
      text_(elementText(QString::fromUtf8(row.state.text), index - row.elements.first)),
      tag_(row.state.tag.toString()),
      foreColour_(row.state.foreColour),
      visible_(row.state.visible),
      enabled_(row.state.enabled),
      checked_(row.state.checked && index == row.elements.first),
      role_(row.state.role) {}

QString Control::displayName() const {
    return index_ < 0 ? name_ : name_ + u'(' + QString::number(index_) + u')';
}

QString Control::hint() const {
    const int place = index_ - row_.elements.first;
    const QString text = elementText(row_.shownHint(), place);
    return text.contains(u"%1") ? text.arg(place + 1) : text;
}

QString Control::key() const {
    return elementText(row_.key.toString(), index_ - row_.elements.first);
}

QString Control::tip() const {
    return row_.key.isEmpty() ? hint() : hint() + u" (" + key() + u')';
}

QString Control::shownText() const {
    const int place = index_ - row_.elements.first;
    const bool isRows = text_ == elementText(QString::fromUtf8(row_.state.text), place);
    return isRows && !text_.isEmpty() ? elementText(translate("caption", row_.state.text), place) : text_;
}

template <class T>
void Control::change(T& member, const T& value, Property property) {
    if (member == value) return;
    member = value;
    Q_EMIT changed(this, property);
}

void Control::setText(const QString& text) {
    if (kind() == Kind::List && !(position_ >= 0 && items_[position_].text == text)) {
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
void Control::setRole(Role role) {
    change(role_, role, Property::Role);
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
