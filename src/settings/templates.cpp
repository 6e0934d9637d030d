#include "settings/templates.h"

#include <memory>
#include <utility>

#include "numbers/conversions.h"
#include "numbers/text.h"
#include "platform/user_text.h"
#include "settings/first_run.h"
#include "settings/product.h"
#include "settings/record_io.h"
#include "settings/registry.h"
#include "settings/stored_records.h"

namespace starfolds {
namespace {

using P = StarfoldProfile;
using U = UniverseSettings;

/// The fields of an order that templates contain, some of them moved.
template <class Record>
FieldOrder<Record> InTemplates(FieldOrder<Record> order, std::span<const Moved<Record>> moves) {
  std::erase_if(order, [](const Field<Record>* field) { return !field->Odd.InTemplate; });
  MoveFields(order, moves);
  return order;
}

const FieldOrder<UniverseSettings>& UniverseTemplateOrder() {
  static constexpr Moved<U> moves[] = {{&U::Universe_Profile, &U::Universe_GravFrame},
                                       {&U::Universe_Tour, &U::Universe_GS_Idx}};
  static const FieldOrder<UniverseSettings> order =
      InTemplates<U>(OrderOf<U>(UniverseFields(), {}), moves);
  return order;
}

const FieldOrder<StarfoldProfile>& ProfileTemplateOrder() {
  static constexpr Moved<P> moves[] = {{&P::UniFoldPct, &P::UniFoldName},
                                       {&P::Starfold_PulsarShape, &P::Starfold_PulsarMaxExt},
                                       {&P::Starfold_CP_Close, &P::Starfold_CP_B_Spd},
                                       {&P::Starfold_CP_AdvHW, &P::Starfold_CP_Close}};
  static const FieldOrder<StarfoldProfile> order = InTemplates<P>(StoredProfileOrder(), moves);
  return order;
}

/// A number, 0 if it is missing. Never negative, because the text is parsed after a "0".
double NumberWithZeroBefore(const std::optional<std::string>& text) {
  return LenientNumber("0" + text.value_or(std::string()));
}

std::string MemberKey(int i) { return "StarfoldIndex_" + std::to_string(i); }

/// One section of a template.
class TemplateSection {
 public:
  TemplateSection(TemplateFile& file, std::string_view name) : file_(file), name_(name) {}

  template <class Record>
  void Read(const Field<Record>& field, Record& record) const {
    if (!field.Odd.InTemplate) return;
    const auto text = file_.TemplateFind(name_, TemplateKey(field));
    if (field.Odd.ZeroInTemplate) {
      SetFieldNumber(record, field, NumberWithZeroBefore(text));
    } else if (text) {
      SetFieldText(record, field, *text);
    }
  }

  template <class Record>
  void Write(const Field<Record>& field, const Record& record) const {
    const std::string text = FieldText(record, field);
    if (field.Odd.UsualNotInTemplate && text == DefaultText(field)) return;
    file_.TemplateWrite(name_, TemplateKey(field), text);
  }

  std::string ReadText(const std::string& key) const { return file_.TemplateRead(name_, key, {}); }
  void WriteText(const std::string& key, const std::string& text) const {
    file_.TemplateWrite(name_, key, text);
  }

  Integer ReadMember(int i) const {
    return RoundedToLimits<Integer>(NumberWithZeroBefore(file_.TemplateFind(name_, MemberKey(i))));
  }
  void WriteMember(int i, Integer body) const {
    file_.TemplateWrite(name_, MemberKey(i), NumberText(Long{body}));
  }

  const FieldOrder<StarfoldProfile>& ProfileOrder() const { return ProfileTemplateOrder(); }

  TemplateSection Below(const char* sub) const { return {file_, name_ + sub}; }

  /// Nothing to do: a template is written from its beginning.
  void Drop() const {}

 private:
  TemplateFile& file_;
  std::string name_;
};

void WriteAdmin(TemplateFile& file) {
  file.TemplateWrite("Admin", "Product", kProductName);
  file.TemplateWrite("Admin", "Version", kProductVersion);
  file.TemplateWrite("Admin", "Copyright", kCopyright);
  file.TemplateWrite(sections::kGeneral, kAnimationType, "0");
}

std::optional<std::string> StoredOrWhy(TreeBulk& change) {
  if (change.Commit()) return std::nullopt;
  return STARFOLDS_TEXT("Its settings cannot be stored");
}

}  // namespace

std::string ProfileTemplateSection(int index) { return "UniFold" + std::to_string(index); }

std::string CompositeTemplateSection(int index) { return "CompFold" + std::to_string(index); }

void CopyRegistryToTemplate(KeyValueTree& tree, TemplateFile& file, std::string_view section,
                            std::string_view key, std::string_view fallback) {
  file.TemplateWrite(section, key, RegistryReadText(tree, section, key, fallback));
}

void CopyTemplateToRegistry(TemplateFile& file, KeyValueTree& tree, std::string_view section,
                            std::string_view key, std::string_view fallback) {
  RegistryWrite(tree, section, key, StorableText(file.TemplateRead(section, key, fallback)));
}

void CopyAdvancedToTemplate(KeyValueTree& tree, TemplateFile& file) {
  TreeBulk look = TreeBulk::Look(tree);
  for (const Field<AdvancedSettings>& field : AdvancedFields()) {
    if (!field.Odd.InTemplate) continue;
    const std::string usual = DefaultText(field);
    const bool isUsual = RegistryReadText(tree, sections::kAdvanced, field.Name, usual) == usual;
    if (field.Odd.UsualNotInTemplate && isUsual) continue;
    CopyRegistryToTemplate(tree, file, sections::kAdvanced, field.Name, usual);
  }
  look.Commit();
}

bool CopyAdvancedFromTemplate(TemplateFile& file, KeyValueTree& tree) {
  TreeBulk change = TreeBulk::Change(tree);
  for (const Field<AdvancedSettings>& field : AdvancedFields()) {
    if (!field.Odd.InTemplate) continue;
    CopyTemplateToRegistry(file, tree, sections::kAdvanced, field.Name, DefaultText(field));
  }
  return change.Commit();
}

StarfoldProfile LoadProfileFromTemplate(TemplateFile& file, int index, std::string_view section) {
  return ReadProfile(TemplateSection(file, section), index);
}

CompositeProfile LoadCompositeFromTemplate(TemplateFile& file, int index,
                                           std::string_view section) {
  return ReadComposite(TemplateSection(file, section), index);
}

UniverseSettings LoadUniverseFromTemplate(TemplateFile& file) {
  UniverseSettings universe;
  ReadRecord(TemplateSection(file, sections::kUniverse), UniverseFields(), universe);
  return universe;
}

void SaveProfileToTemplate(TemplateFile& file, const StarfoldProfile& profile,
                           std::string_view section) {
  WriteProfile(TemplateSection(file, section), profile);
}

void SaveCompositeToTemplate(TemplateFile& file, const CompositeProfile& composite,
                             std::string_view section) {
  WriteComposite(TemplateSection(file, section), composite);
}

void LoadBodiesFromTemplate(TemplateFile& file, ProfileArray& profiles, CompositeArray& composites,
                            const TemplateProgress& progress) {
  for (int i = 0; i < kProfileCount; ++i) {
    profiles[i] = LoadProfileFromTemplate(file, i, ProfileTemplateSection(i));
    ClampProfile(profiles[i]);
    if (progress) progress(i + 1);
  }
  for (int i = 0; i < kCompositeCount; ++i) {
    composites[i] = LoadCompositeFromTemplate(file, i, CompositeTemplateSection(i));
    ClampComposite(composites[i]);
    if (progress) progress(kFirstComposite + i + 1);
  }
}

std::optional<std::string> WriteTemplate(TemplateFile& file, KeyValueTree& tree,
                                         const UniverseSettings& universe, ProfileArray& profiles,
                                         CompositeArray& composites,
                                         const TemplateProgress& progress) {
  WriteAdmin(file);
  CopyAdvancedToTemplate(tree, file);
  WriteRecord(TemplateSection(file, sections::kUniverse), UniverseTemplateOrder(), universe);
  for (int i = 0; i < kProfileCount; ++i) {
    ClampProfile(profiles[i]);
    SaveProfileToTemplate(file, profiles[i], ProfileTemplateSection(i));
    if (progress) progress(i + 1);
  }
  for (int i = 0; i < kCompositeCount; ++i) {
    ClampComposite(composites[i]);
    SaveCompositeToTemplate(file, composites[i], CompositeTemplateSection(i));
    if (progress) progress(kFirstComposite + i + 1);
  }
  return file.CloseTemplate();
}

std::optional<std::string> ReadTemplate(TemplateFile& file, const std::string& path,
                                        SettingsRecords& records) {
  if (auto fault = file.Load(path)) return fault;
  records.Universe = LoadUniverseFromTemplate(file);
  records.Advanced = AdvancedSettings();
  ReadRecord(TemplateSection(file, sections::kAdvanced), AdvancedFields(), records.Advanced);
  ClampAdvanced(records.Advanced);
  LoadBodiesFromTemplate(file, records.Profiles, records.Composites, {});
  file.ClearBuffer();
  return std::nullopt;
}

std::optional<std::string> StoreTemplate(TemplateFile& file, const std::string& path,
                                         KeyValueTree& tree) {
  if (auto fault = file.Load(path)) return fault;
  const auto records = std::make_unique<SettingsRecords>();
  LoadBodiesFromTemplate(file, records->Profiles, records->Composites, {});
  TreeBulk change = TreeBulk::Change(tree);
  CopyAdvancedFromTemplate(file, tree);
  SaveUniverseToRegistry(tree, LoadUniverseFromTemplate(file));
  SaveAllProfiles(tree, records->Profiles);
  SaveAllComposites(tree, records->Composites);
  RegistryWrite(tree, sections::kGeneral, kAnimationType, Long{0});
  RegistryWrite(tree, sections::kGeneral, kResetSettings, Long{1});
  file.ClearBuffer();
  return StoredOrWhy(change);
}

std::optional<std::string> ImportTemplate(TemplateFile& file, const std::string& path,
                                          KeyValueTree& tree, ProfileArray& profiles) {
  file.TemplateFileName = path;
  if (auto fault = file.Load()) return fault;
  TreeBulk change = TreeBulk::Change(tree);
  CopyTemplateToRegistry(file, tree, sections::kGeneral, kAnimationType, "0");
  CopyAdvancedFromTemplate(file, tree);
  for (const Field<UniverseSettings>& field : UniverseFields()) {
    CopyTemplateToRegistry(file, tree, sections::kUniverse, field.Name, DefaultText(field));
  }
  auto fault = StoredOrWhy(change);
  for (int i = 0; i < kProfileCount; ++i) {
    profiles[i] = LoadProfileFromTemplate(file, i, ProfileTemplateSection(i));
    ClampProfile(profiles[i]);
  }
  file.ClearBuffer();
  return fault;
}

}  // namespace starfolds
