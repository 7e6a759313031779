#pragma once

#include <QWidget>
#include <optional>

#include "console/theme.h"

namespace zelvor {

// A label that never cuts its text silently: what does not fit is elided and the whole text joins the tool tip. Takes
// several lines, a surface and exact colours.
class TextLabel : public QWidget {
    Q_OBJECT

 public:
    struct Look {
        int pixels = 14;
        bool bold = false;
        Qt::Alignment alignment = Qt::AlignCenter;
        theme::Role text = theme::Role::Text;
        std::optional<theme::Role> ground = {};
        bool dashedWhenEmpty = false;  // an empty label is an outline only
        bool leadingNumber = false;    // "23 Laskaris": the number stands in a column of its own
        int padding = 6;
        bool keepsEnd = false;  // of too long a text the second word is cut first: "main long-na… connected"
    };

    // At its right edge, so that its ground's colour is not all that tells them apart.
    enum class Mark { None, Ring, Tick, TickInRing };

    explicit TextLabel(const Look& look, QWidget* parent = nullptr);

    [[nodiscard]] const QString& text() const { return text_; }
    void setText(const QString& text);
    // Shown muted while the text is empty.
    void setPlaceholder(const QString& text);
    // Another colour for the look's text.
    void setTextRole(theme::Role role);
    // Shown while there is a text.
    void setMark(Mark mark);
    [[nodiscard]] Mark mark() const { return mark_; }
    // nullopt: the look's own.
    void setColours(std::optional<QColor> ground, std::optional<QColor> text);
    [[nodiscard]] std::optional<QColor> groundColour() const { return ownGround_; }
    [[nodiscard]] QColor textColour() const;
    // As the mouse does, from the keyboard.
    void press(Qt::MouseButton button);
    // What the tool tip says besides a text that did not fit.
    void setHint(const QString& hint);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

 Q_SIGNALS:
    void mousePressed(Qt::MouseButton button);

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent*) override { update(); }
    void focusOutEvent(QFocusEvent*) override { update(); }
    // The second press of a double click is no press of its own: a proposal would be taken twice.
    void mouseDoubleClickEvent(QMouseEvent*) override {}

 private:
    // White is what rules write for "no longer marked".
    [[nodiscard]] bool isMarked() const;
    void updateToolTip();
    [[nodiscard]] QStringList lines() const;
    [[nodiscard]] QString elided(const QString& line, int room) const;
    void drawWords(class QPainter& painter) const;
    void drawMark(class QPainter& painter, const QRectF& area) const;
    void drawNumbered(class QPainter& painter, const QRect& area, const QString& line) const;

    Look look_;
    QString text_;
    QString placeholder_;
    QString hint_;
    std::optional<QColor> ownGround_;
    std::optional<QColor> ownText_;
    Mark mark_ = Mark::None;
};

}  // namespace zelvor
