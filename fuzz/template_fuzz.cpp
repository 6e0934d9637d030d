// Parses the input as a template file.
#include <cstddef>
#include <cstdint>

#include "fuzz/expect.h"
#include "settings/templates.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace starfolds;
  MemoryFiles disk;
  disk.Contents["in.sfd"] = std::string(reinterpret_cast<const char*>(data), size);
  TemplateFile in(disk);
  in.TemplateFileName = "in.sfd";
  if (in.Load()) return 0;
  const UniverseSettings universe = LoadUniverseFromTemplate(in);
  ParseVisitList(universe.Universe_GS_Idx);
  MemoryTree tree;
  CopyAdvancedFromTemplate(in, tree);
  StarfoldProfile profile = LoadProfileFromTemplate(in, 0, "UniFold0");
  ClampProfile(profile);
  ExpectClamped(profile, ClampProfile);
  CompositeProfile composite = LoadCompositeFromTemplate(in, 0, "CompFold0");
  ClampComposite(composite);
  ExpectClamped(composite, ClampComposite);

  // What was read can be written, and reads back the same. Line breaks in names become blanks.
  for (std::string* name : {&profile.UniFoldName, &composite.CompFoldName}) {
    for (char& c : *name) {
      if (c == '\r' || c == '\n' || c == '\0') c = ' ';
    }
  }
  TemplateFile out(disk);
  out.TemplateFileName = "out.sfd";
  SaveProfileToTemplate(out, profile, "UniFold0");
  SaveCompositeToTemplate(out, composite, "CompFold0");
  Expect(!out.CloseTemplate(), "a template is written");
  Expect(!out.Load(), "a template of our own can be read");
  StarfoldProfile profileAgain = LoadProfileFromTemplate(out, 0, "UniFold0");
  CompositeProfile compositeAgain = LoadCompositeFromTemplate(out, 0, "CompFold0");
  Expect(TextsOf(profileAgain) == TextsOf(profile), "a profile comes back");
  Expect(TextsOf(compositeAgain) == TextsOf(composite), "a composite comes back");
  return 0;
}
