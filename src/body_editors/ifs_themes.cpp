#include "body_editors/body_themes.h"
#include "platform/user_text.h"

namespace starfolds {
namespace {

constexpr ThemeRow kHexagonalTree[] = {{1000, 0, 0, 40, 0, 0, 2},
                                       {0, 0, 0, 0, 0, 60, 1},
                                       {0, 0, 0, 0, 0, 300, 1},
                                       {0, 0, 0, 50, 1, 60, 1},
                                       {0, 0, 0, 50, 1, 300, 1}};
constexpr ThemeRow kSpaceStation[] = {{0, 1500, 0, 33, 0, 0, 4},
                                      {0, 0, 0, 50, 0, 90, 2},
                                      {0, 0, 0, 50, 0, 270, 2},
                                      {0, 0, 0, 50, 1, 90, 1},
                                      {0, 0, 0, 50, 1, 270, 1}};
constexpr ThemeRow kVortexVectors[] = {{500, 500, 500, 3, 1, 5, 200},
                                       {1000, 0, 0, 50, 0, 0, 3},
                                       {0, 2000, 0, 50, 0, 0, 2},
                                       {0, 0, 2500, 50, 0, 0, 1}};
constexpr ThemeRow kBulkyStarship[] = {{250, 1000, 0, 55, 0, 30, 2},
                                       {0, 0, 0, 50, 1, 30, 1},
                                       {0, 0, 0, 50, 1, 330, 1},
                                       {500, 0, 0, 50, 1, 30, 1},
                                       {500, 0, 0, 50, 1, 330, 1}};
constexpr ThemeRow kFractionalFragments[] = {
    {0, 0, 0, 33, 2, 60, 2}, {1000, 0, 0, 33, 1, 90, 1}, {0, 0, 1000, 33, 1, 0, 1}};
constexpr ThemeRow kFractalFern[] = {{0, 1000, 0, 25, 1, 60, 1}, {1000, 0, 0, 33, 0, 15, 1}};
constexpr ThemeRow kTwistedBranches[] = {{1000, 0, 0, 50, 0, 90, 1},
                                         {0, 1000, 0, 50, 1, 90, 1},
                                         {0, 0, 1000, 50, 2, 90, 1},
                                         {1000, 0, 0, 33, 0, 60, 1}};
constexpr ThemeRow kWarpedTetrahedron[] = {{0, 0, 0, 55, 0, 10, 1},
                                           {1000, 0, 0, 55, 1, 20, 1},
                                           {500, 0, 800, 55, 2, 30, 1},
                                           {500, 800, 300, 55, 0, 0, 1}};
// The second and third point again, which increases the weight of the branches against the trunk.
constexpr ThemeRow kRootLikeStructures[] = {{500, 0, 1000, 50, 0, 45, 4},
                                            {0, 0, 0, 50, 2, 60, 1},
                                            {1000, 0, 0, 50, 2, 300, 1},
                                            {0, 0, 0, 50, 2, 60, 1},
                                            {1000, 0, 0, 50, 2, 300, 1}};
constexpr ThemeRow kSymmetricStarbird[] = {{0, 0, 2000, 33, 0, 15, 6},
                                           {0, 0, 0, 50, 0, 90, 2},
                                           {0, 0, 0, 50, 0, 270, 2},
                                           {0, 0, 0, 50, 1, 90, 1},
                                           {0, 0, 0, 50, 1, 270, 1}};

constexpr BodyTheme kThemes[] = {
    {"Hexagonal Tree",
     STARFOLDS_TEXT("Tree structure with a hexagonal shape."),
     {400, 0, 0},
     {250, 1000, 200},
     kHexagonalTree},
    {"Space Station",
     STARFOLDS_TEXT("Attenuated space station scaffolding structure."),
     {0, 500, 0},
     {300, 600, 400},
     kSpaceStation},
    {"Vortex Vectors",
     STARFOLDS_TEXT("Swirls of color pulled to the starfold core"),
     {500, 500, 500},
     {250, 2500, 200},
     kVortexVectors},
    {"Bulky Starship",
     STARFOLDS_TEXT("Bulky shaped starship."),
     {250, 400, 0},
     {250, 2500, 250},
     kBulkyStarship},
    {"Fractional Fragments",
     STARFOLDS_TEXT("Fractional Segments"),
     {500, 150, 0},
     {300, 2500, 500},
     kFractionalFragments},
    {"Fractal Fern", STARFOLDS_TEXT("Fractal Fern"), {300, 300, 0}, {250, 2500, 300}, kFractalFern},
    {"Twisted Branches",
     STARFOLDS_TEXT("Twisted tree-like branches"),
     {200, 300, 300},
     {350, 750, 400},
     kTwistedBranches},
    {"Warped Tetrahedron",
     STARFOLDS_TEXT("Warped Tetrahedron."),
     {500, 300, 400},
     {1500, 1000, 1500},
     kWarpedTetrahedron},
    {"Root-Like Structures",
     STARFOLDS_TEXT("Root-Like Structures"),
     {500, 200, 500},
     {1000, 500, 1150},
     kRootLikeStructures},
    {"Symmetric Starbird",
     STARFOLDS_TEXT("Elegant Starship"),
     {0, 0, 750},
     {600, 1200, 1500},
     kSymmetricStarbird},
};

}  // namespace

std::span<const BodyTheme> IfsThemes() { return kThemes; }

}  // namespace starfolds
