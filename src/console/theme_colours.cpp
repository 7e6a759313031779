#include <QCoreApplication>
#include <QVariant>
#include <array>
#include <cmath>

#include "console/theme.h"

using namespace Qt::StringLiterals;

namespace zelvor::theme {

namespace {

constexpr std::array<QStringView, 3> kThemeWords{u"dark", u"light", u"high-contrast"};

// A role's colour in each theme.
using Shades = std::array<QRgb, kThemeWords.size()>;

// In the order of the roles.
constexpr std::array kShades{
    Shades{0x0f1317, 0xf0f2f5, 0x000000},  // Window
    Shades{0x181c22, 0xe3e7ec, 0x000000},  // Bar
    Shades{0x161a20, 0xf7f8fa, 0x000000},  // Panel
    Shades{0x0b0e12, 0xffffff, 0x000000},  // Field
    Shades{0x12151a, 0xe8ebef, 0x1c1c1c},  // Cell
    Shades{0x232932, 0xdde2e8, 0x000000},  // Button
    Shades{0x2d343f, 0xcfd6de, 0x303030},  // ButtonHover
    Shades{0x1b2028, 0xc0c8d2, 0x484848},  // ButtonPressed
    Shades{0x242a33, 0xffffff, 0x000000},  // Card
    Shades{0x0f2617, 0xd6f5de, 0x002400},  // CardOn
    Shades{0x3a424e, 0x8b95a3, 0xffffff},  // Line
    Shades{0x5aa9ff, 0x0b5fc0, 0xffff00},  // Accent
    Shades{0x00ff00, 0x007a1f, 0x00ff00},  // OnLine
    Shades{0x260a0d, 0xffe3e3, 0x300000},  // AirFill
    Shades{0xff5a5a, 0xc01818, 0xff6060},  // AirLine
    Shades{0xf2f4f7, 0x14181d, 0xffffff},  // Text
    Shades{0xa3acb8, 0x454e5a, 0xffffff},  // Muted
    Shades{0x8c95a1, 0x525b67, 0xc0c0c0},  // Disabled
    Shades{0x7cff9b, 0x00601a, 0x00ff00},  // OnText
    Shades{0xff7a7a, 0xa31212, 0xff9090},  // AirText
    Shades{0x4ad96b, 0x00611c, 0x00ff00},  // Good
    Shades{0xff6e6e, 0xa80020, 0xff9090},  // Bad
    Shades{0xf5b94c, 0x6b4200, 0xffd000},  // Wait
};
static_assert(kShades.size() == static_cast<std::size_t>(Role::Wait) + 1);

double luminance(const QColor& of) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(of.redF()) + 0.7152 * linear(of.greenF()) + 0.0722 * linear(of.blueF());
}

// share: of the other, 0 to 1.
QColor mixed(const QColor& one, const QColor& other, double share) {
    const auto mix = [share](int first, int second) { return static_cast<int>(first + share * (second - first)); };
    return {mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue())};
}

}  // namespace

QString wordOf(Theme theme) {
    return kThemeWords.at(static_cast<std::size_t>(theme)).toString();
}

std::optional<Theme> themeOf(QStringView word) {
    for (const Theme theme : {Theme::Dark, Theme::Light, Theme::HighContrast}) {
        if (word == wordOf(theme)) return theme;
    }
    return std::nullopt;
}

Theme current() {
    return themeOf(QCoreApplication::instance()->property(kThemeProperty).toString()).value_or(Theme::Dark);
}

QColor colour(Role role) {
    return kShades.at(static_cast<std::size_t>(role)).at(static_cast<std::size_t>(current()));
}

QColor colour(Colour systemColour) {
    return QColor::fromRgb(static_cast<int>(systemColour & 0xff), static_cast<int>(systemColour >> 8 & 0xff),
                           static_cast<int>(systemColour >> 16 & 0xff));
}

double contrast(const QColor& one, const QColor& other) {
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return first > second ? first / second : second / first;
}

QColor readableOn(const QColor& ground) {
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return contrast(white, ground) >= kLeastContrast || contrast(white, ground) > contrast(black, ground) ? white
                                                                                                          : black;
}

QColor inkOf(const QColor& own) {
    if (own == QColor(Qt::white)) return colour(Role::Text);
    // Of the theme's grounds the one that is nearest to its texts.
    const QColor ground = colour(current() == Theme::HighContrast ? Role::Cell : Role::Bar);
    QColor ink = own;
    for (int step = 1; contrast(ink, ground) < kLeastContrast; ++step) {
        constexpr double kStep = 0.1;
        ink = mixed(own, readableOn(ground), step * kStep);
    }
    return ink;
}

QColor hovered(const QColor& ground) {
    return mixed(ground, readableOn(ground), 0.07);
}

QColor pressed(const QColor& ground) {
    return mixed(ground, readableOn(ground), 0.14);
}

}  // namespace zelvor::theme
