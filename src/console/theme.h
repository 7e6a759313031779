#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QRect>
#include <optional>

#include "form/colour.h"

class QApplication;
class QPainter;

// How the console looks: every colour and font of its windows stands here.
namespace zelvor::theme {

enum class Theme { Dark, Light, HighContrast };

// "dark", "light", "high-contrast": as options and files have it; nullopt for another word.
QString wordOf(Theme theme);
std::optional<Theme> themeOf(QStringView word);
// The application's theme, which is a property of it: dark before one was applied.
constexpr const char* kThemeProperty = "zelvorTheme";
Theme current();

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

// Of the application's theme.
QColor colour(Role role);
QColor colour(Colour systemColour);

// Contrast of two colours, 1 to 21. At least kLeastContrast is wanted for text.
constexpr double kLeastContrast = 4.5;
double contrast(const QColor& one, const QColor& other);
// Black or white, whichever reads better on the ground.
QColor readableOn(const QColor& ground);
// A colour that a rule or a script gave to a text whose ground is the theme's: itself where it can be read there, else
// the nearest that can; white, which rules write for "no longer marked", is the theme's text.
QColor inkOf(const QColor& own);
// The ground of what the mouse is over, or holds down.
QColor hovered(const QColor& ground);
QColor pressed(const QColor& ground);

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

// The palette of a widget whose colours a rule or a script has set, or whose text may only be read; the theme's where
// none of it holds.
QPalette ownColours(std::optional<Colour> back, std::optional<Colour> fore, bool readOnly = false);

// Gives the application the style and font that its widgets are built upon.
void prepare(QApplication& application);
// Gives a prepared application its palette, also in place of another theme's.
void apply(QApplication& application, Theme theme = Theme::Dark);

// Makes what is pressed in boxes, menus and panels at least that many pixels high. 0: as small as its text.
void setFingerSize(QApplication& application, int pixels);

}  // namespace zelvor::theme
