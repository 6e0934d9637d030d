#include "settings/elements.h"

#include "numbers/conversions.h"
#include "platform/user_text.h"

namespace starfolds {
namespace {

constexpr Element kElements[kElementCount] = {
    {STARFOLDS_TEXT("Hydrogen"), "H", "1", 10, 180},
    {STARFOLDS_TEXT("Helium"), "He", "2", 12, 330},
    {STARFOLDS_TEXT("Lithium"), "Li", "2,1", 10, 0},
    {STARFOLDS_TEXT("Beryllim"), "Be", "2,2", 10, 0},
    {STARFOLDS_TEXT("Boron"), "B", "2,3", 10, 0},
    {STARFOLDS_TEXT("Carbon"), "C", "2,4", 20, 210},
    {STARFOLDS_TEXT("Nitrogen"), "N", "2,5", 25, 240},
    {STARFOLDS_TEXT("Oxygen"), "O", "2,6", 30, 0},
    {STARFOLDS_TEXT("Flourine"), "F", "2,7", 10, 270},
    {STARFOLDS_TEXT("Neon"), "Ne", "2,8", 10, 300},
    {STARFOLDS_TEXT("Sodium"), "Na", "2,8,1", 10, 30},
    {STARFOLDS_TEXT("Magnesium"), "Mg", "2,8,2", 10, 0},
    {STARFOLDS_TEXT("Aluminum"), "Al", "2,8,3", 10, 0},
    {STARFOLDS_TEXT("Silicon"), "Si", "2,8,4", 10, 0},
    {STARFOLDS_TEXT("Phosphorus"), "P", "2,8,5", 10, 0},
    {STARFOLDS_TEXT("Sulphur"), "S", "2,8,6", 40, 60},
    {STARFOLDS_TEXT("Chlorine"), "Cl", "2,8,7", 50, 120},
};

}  // namespace

const Element& ElementInfo(int element) {
  return kElements[ClampTo(element, 1, kElementCount) - 1];
}

}  // namespace starfolds
