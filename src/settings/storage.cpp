#include "settings/storage.h"

#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/fields.h"
#include "settings/packing.h"

namespace starfolds {
namespace {

/// One section of the tree.
struct Section {
  KeyValueTree& Tree;
  std::string_view Name;
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
void WriteFields(const Section& to, std::span<const Field<Record>> fields, const Record& record) {
  for (const Field<Record>& field : fields) {
    RegistryWrite(to.Tree, to.Name, field.Name, StorableText(FieldText(record, field)), to.Root);
  }
}

/// "IFS_P0" and "Atom_P00".
std::string PointKey(int i) { return "IFS_P" + std::to_string(i); }
std::string AtomKey(int i) {
  return std::string(i < 10 ? "Atom_P0" : "Atom_P") + std::to_string(i);
}

std::string Below(std::string_view section, std::string_view subkey) {
  return std::string(section) + "\\" + std::string(subkey);
}

constexpr std::string_view kIfsKey = "IFS";
constexpr std::string_view kAtomKey = "ATOMIC";

std::string MemberKey(int i) { return "CompFold_Type" + std::to_string(i); }

void ReadIfs(const Section& from, StarfoldProfile& profile) {
  ReadFields(from, IfsCenterFields(), profile.IFS);
  const int count = std::min<int>(profile.Starfold_IFS_Points, kMaxIfsPoints);
  for (int i = 0; i < count; ++i) {
    profile.IFS.Points[i] = UnpackRecord(
        RegistryReadText(from.Tree, from.Name, PointKey(i), {}, from.Root), IfsPointFields());
  }
}

void ReadAtoms(const Section& from, StarfoldProfile& profile) {
  ReadFields(from, AtomCenterFields(), profile.Atom);
  const int count = std::min<int>(profile.Starfold_Atoms, kMaxAtoms);
  for (int i = 0; i < count; ++i) {
    AtomPoint& atom = profile.Atom.Atoms[i];
    atom = UnpackRecord(RegistryReadText(from.Tree, from.Name, AtomKey(i), {}, from.Root),
                        AtomPointFields());
    atom.Atom_Count = AtomPoints(atom.Atom_Structure);
  }
}

/// The sub-key is deleted in the machine's hive, not in the one that is written: points of a longer
/// list before stay behind the new ones, where no reader looks.
void DropSubkey(const Section& profile, std::string_view subkey) {
  RegistryDeleteKey(profile.Tree, kAppName, profile.Name, subkey, RootSelector::LocalMachine);
}

void WriteIfs(const Section& profile, const StarfoldProfile& record) {
  DropSubkey(profile, kIfsKey);
  if (record.Starfold_IFS_Points <= 0) return;
  const std::string name = Below(profile.Name, kIfsKey);
  WriteFields({profile.Tree, name}, IfsCenterFields(), record.IFS);
  for (int i = 0; i < record.Starfold_IFS_Points; ++i) {
    RegistryWrite(profile.Tree, name, PointKey(i),
                  PackRecord(record.IFS.Points[i], IfsPointFields()));
  }
}

void WriteAtoms(const Section& profile, const StarfoldProfile& record) {
  DropSubkey(profile, kAtomKey);
  if (record.Starfold_Atoms <= 0) return;
  const std::string name = Below(profile.Name, kAtomKey);
  WriteFields({profile.Tree, name}, AtomCenterFields(), record.Atom);
  for (int i = 0; i < record.Starfold_Atoms; ++i) {
    RegistryWrite(profile.Tree, name, AtomKey(i),
                  PackRecord(record.Atom.Atoms[i], AtomPointFields()));
  }
}

}  // namespace

std::string ProfileSection(int index) { return "Universe\\Starfold" + std::to_string(index); }

std::string CompositeSection(int index) { return "Universe\\CompFold" + std::to_string(index); }

UniverseSettings LoadUniverseFromRegistry(KeyValueTree& tree, RootSelector root) {
  UniverseSettings universe;
  ReadFields({tree, sections::kUniverse, root}, UniverseFields(), universe);
  return universe;
}

AdvancedSettings LoadAdvancedFromRegistry(KeyValueTree& tree) {
  TreeBulk look = TreeBulk::Look(tree);
  AdvancedSettings advanced;
  ReadFields({tree, sections::kAdvanced}, AdvancedFields(), advanced);
  look.Commit();
  ClampAdvanced(advanced);
  return advanced;
}

StarfoldProfile LoadProfileFromRegistry(KeyValueTree& tree, int index, std::string_view section,
                                        RootSelector root) {
  StarfoldProfile profile;
  profile.UniFoldName = FormatProfileName(index);
  ReadFields({tree, section, root}, ProfileFields(), profile);
  if (profile.Starfold_IFS_Points != 0) ReadIfs({tree, Below(section, kIfsKey), root}, profile);
  if (profile.Starfold_Atoms != 0) ReadAtoms({tree, Below(section, kAtomKey), root}, profile);
  return profile;
}

CompositeProfile LoadCompositeFromRegistry(KeyValueTree& tree, int index, std::string_view section,
                                           RootSelector root) {
  CompositeProfile composite;
  composite.CompFoldName = FormatCompositeName(index);
  ReadFields({tree, section, root}, CompositeFields(), composite);
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
  WriteFields({tree, sections::kUniverse}, UniverseFields(), universe);
}

void SaveAdvancedToRegistry(KeyValueTree& tree, const AdvancedSettings& advanced) {
  WriteFields({tree, sections::kAdvanced}, AdvancedFields(), advanced);
}

void SaveProfileToRegistry(KeyValueTree& tree, const StarfoldProfile& profile,
                           std::string_view section) {
  const Section to{tree, section};
  WriteFields(to, ProfileFields(), profile);
  WriteIfs(to, profile);
  WriteAtoms(to, profile);
}

void SaveCompositeToRegistry(KeyValueTree& tree, const CompositeProfile& composite,
                             std::string_view section) {
  WriteFields({tree, section}, CompositeFields(), composite);
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
