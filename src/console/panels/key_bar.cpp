#include "console/panels/key_bar.h"

#include <QHBoxLayout>
#include <QPainter>
#include <algorithm>

#include "form/follow.h"

using namespace Qt::StringLiterals;

namespace zelvor {

using theme::Role;

namespace {

constexpr int kShownKeys = 5;

// A key's name and title on one surface; shown while the key has a title.
class KeyChip : public QWidget {
 public:
    KeyChip(const Mirrors& mirrors, int index) {
        auto* row = new QHBoxLayout(this);
        row->setContentsMargins(4, 2, 4, 2);
        row->setSpacing(2);
        TextLabel* key = mirrors.label(controls.lblFKEY, index,
                                       {11, true, Qt::AlignCenter, Role::Text, Role::ButtonHover, false, false, 5});
        row->addWidget(key);
        TextLabel* title =
            mirrors.label(controls.lblFKEYTITLE, index,
                          {14, false, Qt::AlignLeft | Qt::AlignVCenter, Role::Text, std::nullopt, false, false, 4});
        title->setCursor(Qt::PointingHandCursor);
        row->addWidget(title);
        // The words beside the keys give way to them, but for the links' states.
        key->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
        title->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        const Control& control = mirrors.form().at(controls.lblFKEYTITLE, index);
        follow(control, {Control::Property::Visible, Control::Property::Text}, this, [this, &control, title] {
            constexpr int kLeast = 52;  // pixels
            title->setMinimumWidth(std::min(title->sizeHint().width(), kLeast));
            setVisible(control.visible() && !control.text().isEmpty());
        });
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        theme::drawSurface(painter, rect(), {theme::colour(Role::Button), theme::colour(Role::Line)});
    }
};

}  // namespace

KeyBar::KeyBar(const Mirrors& mirrors) {
    setFixedHeight(40);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 4, 12, 4);
    row->setSpacing(6);
    for (int i = 0; i < kShownKeys; ++i) row->addWidget(new KeyChip(mirrors, i));
    auto* words = new QGridLayout;
    words->setHorizontalSpacing(10);
    words->setVerticalSpacing(0);
    words->setColumnStretch(0, 1);
    const auto makeWords = [&](const ControlRow& control, bool keepsEnd) {
        return mirrors.label(control, -1,
                             {12, false, Qt::AlignRight | Qt::AlignVCenter, Role::Text, {}, false, false, 2, keepsEnd});
    };
    const auto addWords = [&](const ControlRow& control, int line, int column, bool keepsEnd) {
        TextLabel* label = makeWords(control, keepsEnd);
        words->addWidget(label, line, column);
        return label;
    };
    auto* ofCards = new QHBoxLayout;
    ofCards->setSpacing(10);
    words->addLayout(ofCards, 1, 0);
    TextLabel* silenced = makeWords(controls.lblSILENCED, false);
    ofCards->addWidget(silenced, 1);
    TextLabel* backOff = makeWords(controls.lblBACKOFF, false);
    backOff->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    ofCards->addWidget(backOff);
    for (TextLabel* yields : {addWords(controls.lblNOTE, 0, 0, false), silenced})
        yields->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    // A long name of a host gives way, never a state.
    const auto addLink = [&](const ControlRow& control, int line) {
        TextLabel* link = addWords(control, line, 1, true);
        link->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        follow(mirrors.form().at(control), {Control::Property::Text}, link, [link] {
            constexpr int kLeast = 160;  // pixels
            link->setMinimumWidth(std::min(link->sizeHint().width(), kLeast));
        });
    };
    addLink(controls.lblLINKMAIN, 0);
    addLink(controls.lblLINKREMOTE, 1);
    for (TextLabel* kept : {addWords(controls.lblFEED, 0, 2, false), addWords(controls.lblDATABASE, 1, 2, false)}) {
        constexpr int kWidest = 320;  // pixels
        kept->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
        kept->setMaximumWidth(kWidest);
    }
    row->addLayout(words, 1);
}

void KeyBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::colour(Role::Bar));
    painter.fillRect(0, 0, width(), 1, theme::colour(Role::Line));
}

}  // namespace zelvor
