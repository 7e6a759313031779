#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QRect>
#include <optional>
#include <span>

#include "form/colour.h"

class QApplication;
class QPainter;

// How the console looks: every colour, font and style rule of its windows stands here.
namespace zelvor::theme {

enum class Role {
    Window,
    Bar,
    Panel,
    Field,
    Cell,
    Button,
    ButtonHover,
    ButtonPressed,
    Card,
    CardHover,
    CardPressed,
    CardOn,
    Line,
    Accent,
    OnLine,
    AirFill,
    AirLine,
    Text,
    Muted,
    Disabled,
    OnText,
    AirText,
    Good,
    Bad,
    Wait,
};

QColor colour(Role role);
QColor colour(Colour systemColour);

// Text and the ground it stands on, for every pair the console uses.
struct TextPair {
    Role text;
    Role ground;
};
std::span<const TextPair> textPairs();

// Contrast of two colours, 1 to 21. At least kLeastContrast is wanted for text.
constexpr double kLeastContrast = 4.5;
double contrast(const QColor& one, const QColor& other);
// Black or white, whichever reads better on the ground.
QColor readableOn(const QColor& ground);

// A font of that height in pixels. Its digits are all of one width.
QFont font(int pixels, bool bold = false);

// A rounded surface: what buttons, labels and card boxes are drawn on.
struct Surface {
    std::optional<QColor> fill = {};
    std::optional<QColor> line = {};
    int radius = 4;
    int lineWidth = 1;
    bool dashed = false;
};
void drawSurface(QPainter& painter, const QRectF& area, const Surface& surface);

// "!" in a disc: the text beside it is wrong.
QIcon warningSign();

// Around what has the keyboard: a light line within a dark one, seen on every ground.
void drawFocusRing(QPainter& painter, const QRectF& area);

// Style rule of a widget whose colours a rule or a script has set, empty when neither is set.
QString ownColours(std::optional<Colour> back, std::optional<Colour> fore);

// Gives the application its font, palette and style sheet.
void apply(QApplication& application);

}  // namespace zelvor::theme
