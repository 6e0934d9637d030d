// Parses the input as rows of the factory tables.
#include <cstddef>
#include <cstdint>

#include "fuzz/expect.h"
#include "settings/factory.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace starfolds;
  const std::string_view row(reinterpret_cast<const char*>(data), size);
  StarfoldProfile profile;
  DecodeProfileRow(profile, row);
  ClampProfile(profile);
  ExpectClamped(profile, ClampProfile);
  CompositeProfile composite;
  DecodeCompositeRow(composite, row);
  ClampComposite(composite);
  ExpectClamped(composite, ClampComposite);
  UniverseSettings universe;
  DecodeThemeRow(universe, row);
  ClampUniverse(universe);
  ExpectClamped(universe, ClampUniverse);
  for (const int n : {0, 1, 71, 1000000}) {
    Expect(GetField(row, n).find(',') == std::string_view::npos, "a field holds no comma");
  }
  return 0;
}
