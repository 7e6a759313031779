#include "console/panels/key_bar.h"

#include <QHBoxLayout>
#include <QPainter>

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
        row->setContentsMargins(4, 3, 4, 3);
        row->setSpacing(2);
        TextLabel* key = mirrors.label(controls.lblFKEY, index,
                                       {11, true, Qt::AlignCenter, Role::Text, Role::ButtonHover, false, false, 5});
        row->addWidget(key);
        TextLabel* title =
            mirrors.label(controls.lblFKEYTITLE, index,
                          {14, false, Qt::AlignLeft | Qt::AlignVCenter, Role::Text, std::nullopt, false, false, 4});
        title->setCursor(Qt::PointingHandCursor);
        row->addWidget(title);
        const Control& control = mirrors.form().at(controls.lblFKEYTITLE, index);
        const auto follow = [this, &control] { setVisible(control.visible() && !control.text().isEmpty()); };
        connect(&control, &Control::changed, this, follow);
        follow();
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        theme::drawSurface(painter, rect(), {theme::colour(Role::Button), theme::colour(Role::Line)});
    }
};

// Good news are green, bad news red, waiting is amber; the words say the same.
Role newsRole(const QString& words) {
    if (words.contains(u"not connected")) return Role::Muted;
    if (words.endsWith(u"connected")) return Role::Good;
    for (const QStringView bad : {u"lost", u"fail", u"error", u"not bound", u"silent"}) {
        if (words.contains(bad)) return Role::Bad;
    }
    return words.contains(u"connecting") ? Role::Wait : Role::Muted;
}

}  // namespace

KeyBar::KeyBar(const Mirrors& mirrors) {
    setFixedHeight(40);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 6, 12, 6);
    row->setSpacing(6);
    for (int i = 0; i < kShownKeys; ++i) row->addWidget(new KeyChip(mirrors, i));
    row->addStretch(1);
    for (const ControlRow* name :
         {&controls.lblFEED, &controls.lblLINKMAIN, &controls.lblLINKREMOTE, &controls.lblDATABASE}) {
        TextLabel* words =
            mirrors.label(*name, -1, {13, false, Qt::AlignRight | Qt::AlignVCenter, Role::Muted, {}, false, false, 4});
        const Control& control = mirrors.form().at(*name);
        const auto follow = [words, &control] { words->setTextRole(newsRole(control.text())); };
        connect(&control, &Control::changed, words, follow);
        follow();
        row->addWidget(words);
    }
}

void KeyBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::colour(Role::Bar));
    painter.fillRect(0, 0, width(), 1, theme::colour(Role::Line));
}

}  // namespace zelvor
