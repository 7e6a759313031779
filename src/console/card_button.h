#pragma once

#include "console/console_button.h"

namespace zelvor {

// A card's button: its caption, and below it what state it is in and which key fires it.
class CardButton : public ConsoleButton {
    Q_OBJECT

 public:
    // small: the button inside this one at its right edge; taken over.
    explicit CardButton(ConsoleButton* small, QWidget* parent = nullptr);

    struct Face {
        bool on = false;
        bool quiet = false;      // no card behind it
        bool flagged = false;    // the card table's mark
        bool lastFired = false;  // has a frame of its own
        QString key;             // "F1", empty when no key fires it
        QString fault = {};      // what breaks its template data, empty when nothing does
        QString trouble = {};    // why a line of it was refused or not sent, has a struck lamp
        bool operator==(const Face&) const = default;
    };
    void setFace(const Face& face);
    [[nodiscard]] const Face& face() const { return face_; }
    [[nodiscard]] bool isOn() const override { return face_.on; }
    // Shown large on the card while it is not empty.
    void setLetter(const QString& letter);
    [[nodiscard]] const QString& letter() const { return letter_; }
    [[nodiscard]] ConsoleButton& small() const { return *small_; }
    // The line below the caption: "ON · F1".
    [[nodiscard]] QString stateLine() const;

    [[nodiscard]] QSize sizeHint() const override { return {200, 56}; }
    [[nodiscard]] QSize minimumSizeHint() const override;

 Q_SIGNALS:
    // The operator sees the button as it is now.
    void painted();

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    [[nodiscard]] int padding() const override { return 13; }
    [[nodiscard]] int textRoom() const override;
    [[nodiscard]] int smallWidth() const;

 private:
    void drawFace(QPainter& painter) const;
    void drawWords(QPainter& painter) const;
    void drawLetter(QPainter& painter) const;
    void drawStruckLamp(QPainter& painter, const QRectF& area) const;

    ConsoleButton* small_;
    Face face_;
    QString letter_;
};

}  // namespace zelvor
