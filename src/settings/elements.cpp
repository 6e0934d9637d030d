#include "settings/elements.h"

#include "numbers/conversions.h"

namespace starfolds {
namespace {

constexpr Element kElements[kElementCount] = {
    {"Hydrogen", "H", "1", 10, 180},      {"Helium", "He", "2", 12, 330},
    {"Lithium", "Li", "2,1", 10, 0},      {"Beryllim", "Be", "2,2", 10, 0},
    {"Boron", "B", "2,3", 10, 0},         {"Carbon", "C", "2,4", 20, 210},
    {"Nitrogen", "N", "2,5", 25, 240},    {"Oxygen", "O", "2,6", 30, 0},
    {"Flourine", "F", "2,7", 10, 270},    {"Neon", "Ne", "2,8", 10, 300},
    {"Sodium", "Na", "2,8,1", 10, 30},    {"Magnesium", "Mg", "2,8,2", 10, 0},
    {"Aluminum", "Al", "2,8,3", 10, 0},   {"Silicon", "Si", "2,8,4", 10, 0},
    {"Phosphorus", "P", "2,8,5", 10, 0},  {"Sulphur", "S", "2,8,6", 40, 60},
    {"Chlorine", "Cl", "2,8,7", 50, 120},
};

}  // namespace

const Element& ElementInfo(int element) {
  return kElements[ClampTo(element, 1, kElementCount) - 1];
}

}  // namespace starfolds
