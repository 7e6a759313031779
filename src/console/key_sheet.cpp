#include "console/key_sheet.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "base/translate.h"
#include "console/key_filter.h"
#include "console/theme.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

constexpr int kColumns = 2;

KeySheet::Line lineOf(const FormModel& form, const ControlRow& row) {
    const Control& first = form.at(row, row.elements.first);
    const Control& last = form.at(row, row.elements.last);
    const QString range = u"1 … "_s + QString::number(row.elements.last - row.elements.first + 1);
    const QString keys = first.key() == last.key() ? first.key() : first.key() + u" … "_s + last.key();
    return {keys, row.shownHint().replace(u"%1"_s, range)};
}

QLabel* word(const QString& text, bool isKey) {
    auto* label = new QLabel(text);
    label->setFont(theme::font(13, isKey));
    return label;
}

}  // namespace

std::vector<KeySheet::Line> KeySheet::lines(const FormModel& form) {
    std::vector<Line> lines;
    for (const KeyFilter::WindowKey& each : KeyFilter::windowKeys())
        lines.push_back({each.key.toString(), translate("console", each.deed)});
    lines.push_back(
        {translate("console", "Tab, arrows"), translate("console", "Lead to the next control; Esc leads back")});
    lines.push_back({u"Ctrl+Enter"_s,
                     translate("console", "Presses the control with the ring; with Shift: its right button, or L")});
    lines.push_back({u"F6 … F10"_s, translate("console", "Fire the pack's cards as F1 … F5 do")});
    for (const ControlRow& row : allControls()) {
        if (row.key.isEmpty()) continue;
        if (row.shownHint().contains(u"%1")) {
            lines.push_back(lineOf(form, row));
            continue;
        }
        for (int index = row.elements.first; index <= row.elements.last; ++index) {
            const Control& control = form.at(row, index);
            const QString caption =
                QByteArrayView(row.state.text).contains('|') ? control.shownText() + u": "_s : QString();
            lines.push_back({control.key(), caption + control.hint()});
        }
    }
    return lines;
}

KeySheet::KeySheet(const FormModel& form, QWidget& console) : QDialog(&console) {
    setObjectName(u"frmKEYS"_s);
    setWindowTitle(translate("console", "Keys"));
    auto* sheet = new QWidget;
    auto* grid = new QGridLayout(sheet);
    grid->setVerticalSpacing(3);
    grid->setHorizontalSpacing(12);
    const std::vector<Line> all = lines(form);
    const int rows = (static_cast<int>(all.size()) + kColumns - 1) / kColumns;
    std::vector<QLabel*> deeds;
    for (int i = 0; i < static_cast<int>(all.size()); ++i) {
        grid->addWidget(word(all[i].key, true), i % rows, i / rows * 2);
        deeds.push_back(word(all[i].deed, false));
        grid->addWidget(deeds.back(), i % rows, i / rows * 2 + 1);
        grid->setColumnStretch(i / rows * 2 + 1, 1);
    }
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(sheet);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->addWidget(area);
    const int bar = area->verticalScrollBar()->sizeHint().width();
    const QSize frame(bar + 12, bar + 12);
    const QSize room = console.screen()->availableSize() - QSize(20, 60);
    QSize wanted = sheet->sizeHint() + frame;
    if (wanted.width() > room.width()) {
        for (QLabel* deed : deeds) deed->setWordWrap(true);
        wanted = {room.width(), grid->heightForWidth(room.width() - frame.width()) + frame.height()};
    }
    resize(wanted.boundedTo(room));
}

void KeySheet::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F12) {
        close();
        return;
    }
    QDialog::keyPressEvent(event);
}

}  // namespace zelvor
