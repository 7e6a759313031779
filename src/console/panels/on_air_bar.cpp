#include "console/panels/on_air_bar.h"

#include <QHBoxLayout>
#include <QPainter>
#include <algorithm>

#include "base/translate.h"
#include "form/follow.h"

using namespace Qt::StringLiterals;

namespace zelvor {

using theme::Role;

namespace {

// The framed line that holds lamp, words and card: red and filled on air, quiet when the screen is clear.
class AirLine : public QWidget {
 public:
    explicit AirLine(const Control& words) : words_(words) {}

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const bool onAir = !words_.text().isEmpty();
        const QColor line =
            onAir ? theme::colour(words_.foreColour().value_or(colours::kRed)) : theme::colour(Role::Line);
        theme::drawSurface(painter, rect(),
                           {theme::colour(onAir ? Role::AirFill : Role::Field), line, 5, onAir ? 2 : 1});
    }

 private:
    const Control& words_;
};

// The round lamp beside the words.
class Lamp : public QWidget {
 public:
    explicit Lamp(const Control& lamp) : lamp_(lamp) { setFixedSize(16, 16); }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        const QColor colour = theme::colour(lamp_.backColour().value_or(colours::kGreen));
        QColor glow = colour;
        glow.setAlpha(70);
        painter.setBrush(glow);
        painter.drawEllipse(rect());
        painter.setBrush(colour);
        painter.drawEllipse(rect().adjusted(3, 3, -3, -3));
    }

 private:
    const Control& lamp_;
};

}  // namespace

OnAirBar::OnAirBar(const Mirrors& mirrors) : form_(mirrors.form()) {
    setFixedHeight(46);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 8, 12, 8);
    row->setSpacing(10);

    ConsoleButton* menu = mirrors.button(controls.cmdMenu);
    menu->setMinimumWidth(76);
    row->addWidget(menu);
    QComboBox* language = mirrors.list(controls.cmbLANG);
    language->setMinimumWidth(64);
    language->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    row->addWidget(language);
    row->addLayout(makeModes(mirrors));
    TextLabel::Look mark{13, true, Qt::AlignCenter, Role::Wait, Role::Panel};
    for (const ControlRow* shown : {&controls.lblPREVIEW, &controls.lblTESTSENDER}) {
        row->addWidget(mirrors.label(*shown, -1, mark));
    }

    line_ = makeLine(mirrors);
    row->addWidget(line_, 1);

    ConsoleButton* clear =
        mirrors.button(controls.GradientButtonAIR, -1, {15, true, Role::AirFill, Role::AirLine, Role::Text});
    clear->setFixedWidth(150);
    clear->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    row->addWidget(clear);

    for (const ControlRow* part : {&controls.lblONAIR, &controls.lblONAIRLAMP}) {
        onChange(form_.at(*part),
                 {Control::Property::Text, Control::Property::BackColour, Control::Property::ForeColour}, this,
                 [this] { showFrame(); });
    }
    showFrame();
}

QHBoxLayout* OnAirBar::makeModes(const Mirrors& mirrors) {
    auto* modes = new QHBoxLayout;
    modes->setSpacing(0);
    for (int mode = 0; mode < 2; ++mode) {
        ConsoleButton* button = mirrors.button(controls.cmdSCREENMODE, mode, {13, true});
        button->setFixedWidth(50);
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        // The mode that is on has a frame as well: its colour is not all that tells it.
        const Control& control = form_.at(controls.cmdSCREENMODE, mode);
        follow(control, {Control::Property::BackColour, Control::Property::Text}, button, [button, &control] {
            const bool on = control.backColour() == colours::kScreenModeOn;
            button->setSelected(on);
            button->setAccessibleName(
                (on ? translate("console", "%1, on") : translate("console", "%1, off")).arg(control.text()));
        });
        modes->addWidget(button);
    }
    return modes;
}

QWidget* OnAirBar::makeLine(const Mirrors& mirrors) {
    auto* line = new AirLine(form_.at(controls.lblONAIR));
    auto* words = new QHBoxLayout(line);
    words->setContentsMargins(10, 0, 8, 0);
    words->setSpacing(4);
    auto* lamp = new Lamp(form_.at(controls.lblONAIRLAMP));
    mirrors.panel(lamp, controls.lblONAIRLAMP);
    words->addWidget(lamp);
    TextLabel* state = mirrors.label(controls.lblONAIR, -1, {15, true, Qt::AlignLeft | Qt::AlignVCenter});
    words->addWidget(state);
    TextLabel* card = mirrors.label(controls.lblONAIRCARD, -1, {15, false, Qt::AlignLeft | Qt::AlignVCenter});
    const Control& lock = form_.at(controls.chkONAIRLOCK);
    follow(lock, {Control::Property::Checked}, card, [card, &lock] {
        card->setPlaceholder(lock.checked() ? translate("console", "Locked: does not follow the cards")
                                            : translate("console", "Nothing on air"));
    });
    card->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    // What is wrong with it gives way first.
    const Control& onAir = form_.at(controls.lblONAIRCARD);
    follow(onAir, {Control::Property::Text}, card, [card] {
        constexpr int kWidest = 180;  // pixels
        card->setMinimumWidth(std::min(card->sizeHint().width(), kWidest));
    });
    words->addWidget(card, 1);
    TextLabel* trouble = mirrors.label(controls.lblONAIRTROUBLE, -1, {13, true, Qt::AlignRight | Qt::AlignVCenter});
    const Control& troubleWords = form_.at(controls.lblONAIRTROUBLE);
    follow(troubleWords, {Control::Property::Text}, trouble,
           [trouble, &troubleWords] { trouble->setVisible(!troubleWords.text().isEmpty()); });
    words->addWidget(trouble, 2);
    words->addWidget(mirrors.checkBox(controls.chkONAIRLOCK));
    return line;
}

void OnAirBar::showFrame() {
    const bool empty = form_.at(controls.lblONAIR).text().isEmpty();
    line_->findChild<TextLabel*>(controls.lblONAIR.name.toString())->setMaximumWidth(empty ? 0 : QWIDGETSIZE_MAX);
    line_->findChild<QWidget*>(controls.lblONAIRLAMP.name.toString())
        ->setAccessibleDescription(empty ? translate("console", "clear") : translate("console", "on air"));
    line_->update();
    for (QWidget* part : line_->findChildren<QWidget*>()) part->update();
}

void OnAirBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::colour(Role::Bar));
    painter.fillRect(0, height() - 1, width(), 1, theme::colour(Role::Line));
}

}  // namespace zelvor
