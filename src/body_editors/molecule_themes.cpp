#include "body_editors/body_themes.h"
#include "platform/user_text.h"

namespace starfolds {
namespace {

constexpr ThemeRow kMethane[] = {{6, 0, 1000, 1000, 1000, 200, 0},
                                 {1, 0, 1000, 1400, 1000, 75, 0},
                                 {1, 0, 1000, 775, 700, 75, 0},
                                 {1, 0, 750, 775, 1200, 75, 0},
                                 {1, 0, 1250, 775, 1200, 75, 0}};
// A cube of carbon inside a cube of nitrogen, and two oxygen atoms at each nitrogen.
constexpr ThemeRow kOctanitrocubane[] = {
    {6, 0, 900, 900, 900, 40, 0},    {6, 0, 900, 900, 1100, 40, 0},
    {6, 0, 900, 1100, 900, 40, 0},   {6, 0, 900, 1100, 1100, 40, 0},
    {6, 0, 1100, 900, 900, 40, 0},   {6, 0, 1100, 900, 1100, 40, 0},
    {6, 0, 1100, 1100, 900, 40, 0},  {6, 0, 1100, 1100, 1100, 40, 0},
    {7, 0, 800, 800, 800, 50, 0},    {7, 0, 800, 800, 1200, 50, 0},
    {7, 0, 800, 1200, 800, 50, 0},   {7, 0, 800, 1200, 1200, 50, 0},
    {7, 0, 1200, 800, 800, 50, 0},   {7, 0, 1200, 800, 1200, 50, 0},
    {7, 0, 1200, 1200, 800, 50, 0},  {7, 0, 1200, 1200, 1200, 50, 0},
    {8, 0, 800, 700, 800, 20, 0},    {8, 0, 700, 800, 700, 20, 0},
    {8, 0, 800, 700, 1200, 20, 0},   {8, 0, 700, 800, 1300, 20, 0},
    {8, 0, 800, 1300, 800, 20, 0},   {8, 0, 700, 1200, 700, 20, 0},
    {8, 0, 800, 1300, 1200, 20, 0},  {8, 0, 700, 1200, 1300, 20, 0},
    {8, 0, 1200, 700, 800, 20, 0},   {8, 0, 1300, 800, 700, 20, 0},
    {8, 0, 1200, 700, 1200, 20, 0},  {8, 0, 1300, 800, 1300, 20, 0},
    {8, 0, 1200, 1300, 800, 20, 0},  {8, 0, 1300, 1200, 700, 20, 0},
    {8, 0, 1200, 1300, 1200, 20, 0}, {8, 0, 1300, 1200, 1300, 20, 0}};
constexpr ThemeRow kHexagonalPlane[] = {{16, 0, 0, 0, 0, 100, 0},
                                        {11, 7, 2, 0, 0, 40, 200},
                                        {8, 7, 5, 0, 0, 10, 100},
                                        {9, 7, 8, 0, 0, 0, 100}};
constexpr ThemeRow kTetrahedralLattice[] = {{7, 9, 11, 0, 0, 0, 200},
                                            {6, 9, 7, 0, 0, 5, 200},
                                            {9, 9, 5, 0, 0, 15, 200},
                                            {10, 9, 3, 0, 0, 50, 200}};
constexpr ThemeRow kCubicHydrocarbonLattice[] = {
    {8, 8, 11, 0, 0, 1, 100}, {6, 8, 7, 0, 0, 8, 100}, {1, 8, 3, 0, 0, 15, 100}};
constexpr ThemeRow kHexagonalNestedLattice[] = {
    {6, 11, 3, 0, 0, 35, 200}, {9, 11, 5, 0, 0, 15, 200}, {8, 11, 9, 0, 0, 0, 200}};
constexpr ThemeRow kActiveGas[] = {{1, 1, 0, 0, 0, 35, 150},
                                   {8, 2, 0, 0, 0, 50, 120},
                                   {9, 2, 0, 0, 0, 15, 120},
                                   {7, 3, 0, 0, 0, 20, 300}};
constexpr ThemeRow kShellsAndPoints[] = {{1, 4, 0, 0, 0, 15, 100},
                                         {17, 3, 0, 0, 0, 30, 200},
                                         {7, 2, 0, 0, 0, 50, 175},
                                         {10, 1, 0, 0, 0, 20, 325}};
constexpr ThemeRow kNestedShell[] = {{8, 5, 0, 0, 0, 80, 750},  {11, 5, 0, 0, 0, 40, 750},
                                     {16, 5, 0, 0, 0, 20, 750}, {7, 4, 0, 0, 0, 40, 250},
                                     {6, 4, 0, 0, 0, 20, 250},  {1, 4, 0, 0, 0, 10, 250}};
constexpr ThemeRow kStarPoint[] = {{16, 3, 0, 0, 0, 10, 100}, {11, 3, 0, 0, 0, 20, 175},
                                   {8, 3, 0, 0, 0, 30, 250},  {17, 4, 0, 0, 0, 75, 600},
                                   {1, 4, 0, 0, 0, 25, 600},  {6, 5, 0, 0, 0, 30, 1100},
                                   {7, 5, 0, 0, 0, 20, 1175}, {9, 5, 0, 0, 0, 10, 1250}};

constexpr BodyTheme kThemes[] = {
    // Deliberately the description of the next theme, for compatibility.
    {"Methane",
     STARFOLDS_TEXT("Octanitrocubane."),
     {1000, 1000, 1000},
     {1000, 1500, 750},
     kMethane},
    {"Octanitrocubane",
     STARFOLDS_TEXT("Octanitrocubane."),
     {1000, 1000, 1000},
     {1500, 750, 1250},
     kOctanitrocubane},
    {"Hexagonal Plane",
     STARFOLDS_TEXT("Hexagonal Plane."),
     {0, 0, 0},
     {2000, 750, 2000},
     kHexagonalPlane},
    {"Tetrahedral Lattice",
     STARFOLDS_TEXT("Tetrahedral Lattice."),
     {0, 0, 0},
     {4000, 500, 5000},
     kTetrahedralLattice},
    {"Cubic Hydrocarbon Lattice",
     STARFOLDS_TEXT("Cubic Hydrocarbon Lattice."),
     {0, 0, 0},
     {2000, 1000, 2500},
     kCubicHydrocarbonLattice},
    {"Hexagonal Nested Lattice",
     STARFOLDS_TEXT("Hexagonal Nested Lattice."),
     {0, 0, 0},
     {2000, 1000, 5000},
     kHexagonalNestedLattice},
    {"Active Gas Configuration",
     STARFOLDS_TEXT("Active Gas Configuration."),
     {0, 0, 0},
     {500, 1000, 300},
     kActiveGas},
    {"Shells and Points Configuration",
     STARFOLDS_TEXT("Shells and Points Configuration."),
     {0, 0, 0},
     {1000, 2000, 600},
     kShellsAndPoints},
    {"Nested Shell Configuration",
     STARFOLDS_TEXT("Nested Shell Configuration."),
     {0, 0, 0},
     {1200, 500, 1800},
     kNestedShell},
    {"Star Point System",
     STARFOLDS_TEXT("Star Point System."),
     {0, 0, 0},
     {1000, 500, 2000},
     kStarPoint},
};

}  // namespace

std::span<const BodyTheme> MoleculeThemes() { return kThemes; }

}  // namespace starfolds
