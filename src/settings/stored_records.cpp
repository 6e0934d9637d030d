#include "settings/stored_records.h"

#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/field_order.h"
#include "settings/fields.h"
#include "settings/packing.h"

namespace starfolds {
namespace {

/// One section of the tree.
struct Section {
  KeyValueTree& Tree;
  std::string Name;
  RootSelector Root = RootSelector::CurrentUser;
};

template <class Record>
void ReadField(const Section& from, const Field<Record>& field, Record& record) {
  using Reader = Oddities::Reader;
  std::visit(
      [&](auto member) {
        auto& value = record.*member;
        using Value = std::remove_cvref_t<decltype(value)>;
        auto& [tree, section, root] = from;
        if constexpr (std::is_same_v<Value, std::string>) {
          value = RegistryReadText(tree, section, field.Name, value, root);
        } else if constexpr (std::is_same_v<Value, bool>) {
          const bool exactlyOne = field.Odd.ReadAs == Reader::ExactlyOne;
          value = exactlyOne ? RegistryReadText(tree, section, field.Name, "0", root) == "1"
                             : RegistryReadSingle(tree, section, field.Name, value, root) != 0;
        } else if constexpr (std::is_same_v<Value, Single>) {
          value = RegistryReadSingle(tree, section, field.Name, value, root);
        } else if constexpr (std::is_same_v<Value, Long>) {
          value = RegistryReadLong(tree, section, field.Name, value, root);
        } else if (field.Odd.ReadAs == Reader::AsLong) {
          value = RoundedToLimits<Value>(RegistryReadLong(tree, section, field.Name, value, root));
        } else {
          value = RegistryReadInteger(tree, section, field.Name, value, root);
        }
      },
      field.Where);
}

template <class Record>
void ReadFields(const Section& from, std::span<const Field<Record>> fields, Record& record) {
  for (const Field<Record>& field : fields) ReadField(from, field, record);
}

template <class Record>
void WriteField(const Section& to, const Field<Record>& field, const Record& record) {
  RegistryWrite(to.Tree, to.Name, field.Name, StorableText(FieldText(record, field)), to.Root);
}

template <class Record>
void WriteFields(const Section& to, std::span<const Field<Record>> fields, const Record& record) {
  for (const Field<Record>& field : fields) WriteField(to, field, record);
}

std::string MemberKey(int i) { return "CompFold_Type" + std::to_string(i); }

std::string Below(std::string_view section, const char* sub) { return std::string(section) + sub; }

ReadPacked PackedReader(const Section& from) {
  return [&from](const std::string& key) {
    return RegistryReadText(from.Tree, from.Name, key, {}, from.Root);
  };
}

WritePacked PackedWriter(const Section& to) {
  return [&to](const std::string& key, const std::string& packed) {
    RegistryWrite(to.Tree, to.Name, key, packed);
  };
}

void ReadIfs(const Section& from, StarfoldProfile& profile) {
  ReadFields(from, IfsCenterFields(), profile.IFS);
  UnpackIfsPoints(profile, PackedReader(from));
}

void ReadAtoms(const Section& from, StarfoldProfile& profile) {
  ReadFields(from, AtomCenterFields(), profile.Atom);
  UnpackAtoms(profile, PackedReader(from));
}

void WriteIfs(const Section& to, const StarfoldProfile& profile) {
  WriteFields(to, IfsCenterFields(), profile.IFS);
  PackIfsPoints(profile, PackedWriter(to));
}

void WriteAtoms(const Section& to, const StarfoldProfile& profile) {
  WriteFields(to, AtomCenterFields(), profile.Atom);
  PackAtoms(profile, PackedWriter(to));
}

/// The sub-key is deleted in the machine's hive, not in the one that is written: points of a longer
/// list before stay behind the new ones, which no reader reads.
void DropSubkey(const Section& section, std::string_view sub) {
  RegistryDeleteKey(section.Tree, kAppName, section.Name, sub.substr(1),
                    RootSelector::LocalMachine);
}

}  // namespace

std::string ProfileSection(int index) { return "Universe\\Starfold" + std::to_string(index); }

std::string CompositeSection(int index) { return "Universe\\CompFold" + std::to_string(index); }

UniverseSettings LoadUniverseFromRegistry(KeyValueTree& tree, RootSelector root) {
  UniverseSettings universe;
  ReadFields({tree, std::string(sections::kUniverse), root}, UniverseFields(), universe);
  return universe;
}

AdvancedSettings LoadAdvancedFromRegistry(KeyValueTree& tree) {
  TreeBulk look = TreeBulk::Look(tree);
  AdvancedSettings advanced;
  ReadFields({tree, std::string(sections::kAdvanced)}, AdvancedFields(), advanced);
  look.Commit();
  ClampAdvanced(advanced);
  return advanced;
}

StarfoldProfile LoadProfileFromRegistry(KeyValueTree& tree, int index, std::string_view section,
                                        RootSelector root) {
  StarfoldProfile profile;
  profile.UniFoldName = FormatProfileName(index);
  const Section from{tree, std::string(section), root};
  for (const Field<StarfoldProfile>* field : StoredProfileOrder()) ReadField(from, *field, profile);
  if (profile.Starfold_IFS_Points != 0) ReadIfs({tree, Below(section, kIfsSection), root}, profile);
  if (profile.Starfold_Atoms != 0) ReadAtoms({tree, Below(section, kAtomSection), root}, profile);
  return profile;
}

CompositeProfile LoadCompositeFromRegistry(KeyValueTree& tree, int index, std::string_view section,
                                           RootSelector root) {
  CompositeProfile composite;
  composite.CompFoldName = FormatCompositeName(index);
  ReadFields({tree, std::string(section), root}, CompositeFields(), composite);
  for (int i = 0; i < composite.MemberCount(); ++i) {
    composite.CompFold_Type[i] = RegistryReadInteger(tree, section, MemberKey(i), 0, root);
  }
  return composite;
}

void LoadAllProfiles(KeyValueTree& tree, ProfileArray& profiles, RootSelector root) {
  for (int i = 0; i < kProfileCount; ++i) {
    profiles[i] = LoadProfileFromRegistry(tree, i, ProfileSection(i), root);
    ClampProfile(profiles[i]);
  }
}

void LoadAllComposites(KeyValueTree& tree, CompositeArray& composites, RootSelector root) {
  for (int i = 0; i < kCompositeCount; ++i) {
    composites[i] = LoadCompositeFromRegistry(tree, i, CompositeSection(i), root);
    ClampComposite(composites[i]);
  }
}

void SaveUniverseToRegistry(KeyValueTree& tree, const UniverseSettings& universe) {
  WriteFields({tree, std::string(sections::kUniverse)}, UniverseFields(), universe);
}

void SaveAdvancedToRegistry(KeyValueTree& tree, const AdvancedSettings& advanced) {
  WriteFields({tree, std::string(sections::kAdvanced)}, AdvancedFields(), advanced);
}

void SaveProfileToRegistry(KeyValueTree& tree, const StarfoldProfile& profile,
                           std::string_view section) {
  const Section to{tree, std::string(section)};
  const std::span order = StoredProfileOrder();
  const std::span plain = order.first(order.size() - 2);
  for (const Field<StarfoldProfile>* field : plain) WriteField(to, *field, profile);
  // Each count precedes its list.
  WriteField(to, *order[plain.size()], profile);
  DropSubkey(to, kIfsSection);
  if (profile.Starfold_IFS_Points > 0) WriteIfs({tree, Below(section, kIfsSection)}, profile);
  WriteField(to, *order[plain.size() + 1], profile);
  DropSubkey(to, kAtomSection);
  if (profile.Starfold_Atoms > 0) WriteAtoms({tree, Below(section, kAtomSection)}, profile);
}

void SaveCompositeToRegistry(KeyValueTree& tree, const CompositeProfile& composite,
                             std::string_view section) {
  WriteFields({tree, std::string(section)}, CompositeFields(), composite);
  for (int i = 0; i < composite.MemberCount(); ++i) {
    RegistryWrite(tree, section, MemberKey(i), Long{composite.CompFold_Type[i]});
  }
}

void SaveAllProfiles(KeyValueTree& tree, ProfileArray& profiles) {
  for (int i = 0; i < kProfileCount; ++i) {
    ClampProfile(profiles[i]);
    SaveProfileToRegistry(tree, profiles[i], ProfileSection(i));
  }
}

void SaveAllComposites(KeyValueTree& tree, const CompositeArray& composites) {
  for (int i = 0; i < kCompositeCount; ++i) {
    SaveCompositeToRegistry(tree, composites[i], CompositeSection(i));
  }
}

SettingsRecords LoadSettings(KeyValueTree& tree) {
  TreeBulk look = TreeBulk::Look(tree);
  SettingsRecords records;
  records.Universe = LoadUniverseFromRegistry(tree);
  records.Advanced = LoadAdvancedFromRegistry(tree);
  LoadAllProfiles(tree, records.Profiles, RootSelector::CurrentUser);
  LoadAllComposites(tree, records.Composites, RootSelector::CurrentUser);
  look.Commit();
  return records;
}

bool SaveSettings(KeyValueTree& tree, SettingsRecords& records) {
  TreeBulk change = TreeBulk::Change(tree);
  SaveUniverseToRegistry(tree, records.Universe);
  SaveAdvancedToRegistry(tree, records.Advanced);
  SaveAllProfiles(tree, records.Profiles);
  SaveAllComposites(tree, records.Composites);
  return change.Commit();
}

}  // namespace starfolds
