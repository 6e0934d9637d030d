#include <algorithm>
#include <array>

#include "settings/factory.h"
#include "settings/factory_rows.h"

namespace starfolds {
namespace {

constexpr std::array<FactoryTheme, kThemeCount> kThemes{{
    {"Classical (14.3 Billion Years Ago...)",
     "5000, 100, 1, 2500, 300, 0.99, 0.01, 165, 210, 20, 51, 1250, 85, 160, "
     "2, 3, 4000, 1, 0, 0, 1, 300, 0.998, 0.1, 30, 1000, 0, 1,"},
    {"Stylized:  Neon / Warp Speed",
     "3500, 60, 20, 2500, 300, 0.98, 0.02, 240, 120, 20, 50, 600, 50, 100, "
     "2, 4, 3200, 1, 0, 0, 0, 200, 0.995, 0.3, 15, 1000, 0, 1,"},
    {"Sparce Space:  Long Distance Trips",
     "4000, 100, 1, 4000, 500, 0.9925, 0.001, 300, 240, 20, 51, 1000, 90, 250, "
     "1, 4, 75000, 1, 0, 0, 0, 400, 0.999, 0.07, 20, 4000, 0, 1,"},
    {"Morphing Starfolds at Universe Core",
     "3500, 48, 2, 0, 0, 0.99, 0.04, 60, 0, 32, 0, 500, 100, 300, "
     "3, 0, 2500, 1, 1, 0, 0, 1, 0.99, 0.5, 10, 25, 0, 1,"},
    {"Trans-Starfold Tour in Fly-By Mode",
     "4500, 50, 1, 2000, 300, 0.99, 0.0125, 165, 210, 20, 51, 1250, 80, 160, "
     "2, 2, 4000, 1, 0, 0, 0, 300, 0.998, 0.1, 30, 1000, 0, 1,"},
    {"Extended Shell Universe / Mega Starfolds",
     "4000, 300, 1, 6000, 300, 0.99, 0.002, 120, 240, 20, 50, 750, 75, 250, "
     "1, 4, 16000, 1, 0, 0, 0, 300, 0.999, 0.05, 20, 5000, 0, 1,"},
    {"Rollercoaster Ride Through the Cosmos",
     "4000, 60, 2, 1250, 250, 0.99, 0.002, 120, 60, 32, 50, 500, 50, 75, "
     "1, 1, 4000, 1, 0, 0, 0, 300, 0.998, 0.1, 50, 6000, 0, 1,"},
    {"Starfolds in Motion:  Gravity On",
     "4000, 20, 1, 3500, 300, 0.99, 0.05, 360, 240, 20, 0, 2000, 0, 300, "
     "1, 0, 8000, 0, 0, 0, 0, 200, 0.999, 0.07, 50, 1000, 125000, 1,"},
}};
/// Whether a theme has a name and all of its values; see `kThemeLayout` in factory.cpp.
constexpr bool IsComplete(const FactoryTheme& theme) {
  return !theme.Name.empty() && std::count(theme.Row.begin(), theme.Row.end(), ',') == 28;
}
static_assert(std::all_of(std::begin(kThemes), std::end(kThemes), IsComplete),
              "there are kThemeCount complete themes");

constexpr std::string_view kClassicalTheme20 =
    "2500, 100, 2, 3000, 300, 0.985, 0.015, 180, 225, 30, 0, 400, 70, 250, "
    "1, 4, 15000, 1, 0, 0, 0, 200, 0.999, 0.07, 40, 3000, 0, 1,";

}  // namespace

std::span<const FactoryTheme> FactoryThemes() { return kThemes; }
std::string_view FactoryClassicalTheme20() { return kClassicalTheme20; }

}  // namespace starfolds
