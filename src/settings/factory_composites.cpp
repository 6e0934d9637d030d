#include <array>

#include "settings/factory_rows.h"
#include "settings/records.h"

namespace starfolds {
namespace {

constexpr std::array<std::string_view, kCompositeCount> kComposites4x{{
    "Nested Rings + Comet Core, 30, 4, 48, 45, 46, 47,",
    "Turbines + Nested Horns, 20, 2, 2, 49,",
    "Turbine + Shell + Spines, 15, 3, 2, 38, 16,",
    "Photon Fountain Cathedral, 10, 2, 27, 36,",
    "3-Cycle Splines in a Shell, 10, 2, 26, 37,",
    "Turbines and Starwaves, 10, 2, 2, 35,",
    "Starwaves in a Shell, 10, 2, 35, 37,",
    "Quasar in Nested Spheres, 10, 2, 30, 19,",
    "Gravity Cell in Spheres, 5, 2, 31, 19,",
    "IFS Spines in a Shell, 10, 2, 16, 37,",
    "Comet Bursts in Spheres, 10, 2, 24, 7,",
    "Crescents and Comets, 10, 2, 24, 23,",
    "Gold Starfold in a Shell, 10, 2, 17, 38,",
    "Quasar and Gravity Cell, 5, 2, 29, 31,",
    "Hyperbolic Lattice, 15, 2, 37, 38,",
    "Multiple Gravity Cells, 5, 2, 32, 31,",
}};
static_assert(!kComposites4x.back().empty(), "there are fewer rows than kCompositeCount");

constexpr std::array<std::string_view, kCompositeCount> kComposites20{{
    "Nested Rings / Solid Core, 15, 6, 26, 21, 22, 23, 24, 25,",
    "Spine Disk Shell, 15, 2, 11, 12,",
    "Hourglass in Shell, 15, 2, 8, 12,",
    "Comets in Shells, 10, 3, 5, 7, 12,",
    "Nested Shells, 10, 3, 12, 7, 16,",
    "Disks: YZ Axis Major, 5, 2, 19, 20,",
    "Disks: XZ Axis Major, 5, 2, 20, 19,",
    "Hourglass-Disk Hybrid, 10, 2, 8, 9,",
    "Ornament-Shell Hybrid, 10, 2, 3, 12,",
    "Dark Matter in a Shell, 10, 2, 7, 15,",
    "Big Starfold / Comet Core, 10, 2, 17, 1,",
    "Bottle Axis / Shell Core, 10, 3, 26, 12, 31,",
    "Nested Rings / Comet Core, 10, 6, 17, 21, 22, 23, 24, 25,",
    "Sphere Rings / Shells, 10, 7, 17, 7, 12, 27, 28, 29, 30,",
    "Sphere Rings / Bottle Axis, 15, 5, 31, 27, 28, 29, 30",
    "Sphere Rings / Ornament, 10, 5, 3, 27, 28, 29, 30,",
}};
static_assert(!kComposites20.back().empty(), "there are fewer rows than kCompositeCount");

}  // namespace

std::span<const std::string_view> FactoryComposites4x() { return kComposites4x; }
std::span<const std::string_view> FactoryComposites20() { return kComposites20; }

}  // namespace starfolds
