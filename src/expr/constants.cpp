#include "expr/constants.h"

#include <algorithm>
#include <array>
#include <numbers>

namespace zelvor::expr {

namespace {

using std::numbers::pi;

// Physical constants are the CODATA 2018 values in SI units, but for "R", which keeps its older value (meant).
constexpr std::array kConstants{
    Constant{"pi", pi, "pi"},
    Constant{"PI", pi, "pi"},
    Constant{"pi2", pi / 2, "pi / 2"},
    Constant{"pi3", pi / 3, "pi / 3"},
    Constant{"pi4", pi / 4, "pi / 4"},
    Constant{"e", std::numbers::e, "Euler's number"},
    Constant{"eu", std::numbers::egamma, "Euler-Mascheroni constant"},
    Constant{"phi", std::numbers::phi, "golden ratio"},
    Constant{"g", 9.80665, "standard gravity, m/s^2"},
    Constant{"G", 6.67430e-11, "gravitational constant, m^3/(kg s^2)"},
    Constant{"R", 8.31451, "molar gas constant, J/(mol K)"},
    Constant{"eps", 8.8541878128e-12, "vacuum permittivity, F/m"},
    Constant{"mu", 1.25663706212e-6, "vacuum permeability, N/A^2"},
    Constant{"c", 299792458, "speed of light, m/s"},
    Constant{"q", 1.602176634e-19, "elementary charge, C"},
    Constant{"me", 9.1093837015e-31, "electron mass, kg"},
    Constant{"mp", 1.67262192369e-27, "proton mass, kg"},
    Constant{"mn", 1.67492749804e-27, "neutron mass, kg"},
    Constant{"K", 1.380649e-23, "Boltzmann constant, J/K"},
    Constant{"h", 6.62607015e-34, "Planck constant, J s"},
    Constant{"A", 6.02214076e23, "Avogadro constant, 1/mol"},
};

}  // namespace

std::span<const Constant> constants() {
    return kConstants;
}

const Constant* findConstant(std::string_view name) {
    const auto found =
        std::find_if(kConstants.begin(), kConstants.end(), [=](const Constant& c) { return c.name == name; });
    return found == kConstants.end() ? nullptr : &*found;
}

}  // namespace zelvor::expr
