#pragma once

#include <QAbstractButton>
#include <optional>

#include "console/theme.h"

namespace zelvor {

// A push button of the console: elides its text (the whole joins the tool tip), takes exact colours, can be marked as
// the selected one of a row. Tab leads to it, a click
// leaves the keyboard where it is.
class ConsoleButton : public QAbstractButton {
    Q_OBJECT

 public:
    struct Look {
        int pixels = 14;
        bool bold = false;
        theme::Role ground = theme::Role::Button;
        theme::Role line = theme::Role::Line;
        theme::Role text = theme::Role::Text;
        bool underlined = false;  // selected is shown by a line under the text, as page tabs do
        bool flat = false;        // no surface of its own but a line at its left
        bool showsPage = false;   // one of a row of which each shows another page, as those with a line do
        bool firesCard = false;   // the second press of a double click is no press of its own
    };

    explicit ConsoleButton(const Look& look, QWidget* parent = nullptr);

    // nullopt: the look's own.
    void setColours(std::optional<QColor> ground, std::optional<QColor> text);
    [[nodiscard]] std::optional<QColor> groundColour() const { return ownGround_; }
    void setSelected(bool selected);
    [[nodiscard]] bool isSelected() const { return selected_; }
    [[nodiscard]] bool isTab() const { return look_.underlined || look_.showsPage; }
    [[nodiscard]] bool firesCard() const { return look_.firesCard; }
    // Whether it shows that what it stands for is on.
    [[nodiscard]] virtual bool isOn() const { return selected_; }
    // What the tool tip says besides a text that did not fit.
    void setHint(const QString& hint);
    void setCaption(const QString& caption);
    // As the mouse does, from the keyboard.
    void press();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

 Q_SIGNALS:
    // The mouse goes down on it, before anything is painted anew.
    void goesDown();

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

    // The text's own colour, as it can be read.
    [[nodiscard]] std::optional<QColor> ownInk() const;
    void drawFocus(QPainter& painter) const;
    // isOn() is another now: tells those who hear the console.
    void tellOn();
    // Pixels between the side and the text, and those it may take; the tool tip holds a text that does not fit.
    [[nodiscard]] virtual int padding() const;
    [[nodiscard]] virtual int textRoom() const { return width() - 2 * padding(); }
    void updateToolTip();

 private:
    template <class Handler>
    void paintedLater(Handler&& handler);

    Look look_;
    QString hint_;
    std::optional<QColor> ownGround_;
    std::optional<QColor> ownText_;
    bool selected_ = false;
};

}  // namespace zelvor
