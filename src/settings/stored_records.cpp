#include "settings/stored_records.h"

#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/record_io.h"

namespace starfolds {
namespace {

std::string MemberKey(int i) { return "CompFold_Type" + std::to_string(i); }

/// One section of the tree.
class TreeSection {
 public:
  TreeSection(KeyValueTree& tree, std::string_view name,
              RootSelector root = RootSelector::CurrentUser)
      : tree_(tree), name_(name), root_(root) {}

  template <class Record>
  void Read(const Field<Record>& field, Record& record) const {
    std::visit([&](auto member) { ReadValue(field.Name, field.Odd.ReadAs, record.*member); },
               field.Where);
  }

  template <class Record>
  void Write(const Field<Record>& field, const Record& record) const {
    WriteText(std::string(field.Name), std::string(StorableText(FieldText(record, field))));
  }

  std::string ReadText(const std::string& key) const {
    return RegistryReadText(tree_, name_, key, {}, root_);
  }
  void WriteText(const std::string& key, const std::string& text) const {
    RegistryWrite(tree_, name_, key, text);
  }

  Integer ReadMember(int i) const {
    return RegistryReadInteger(tree_, name_, MemberKey(i), 0, root_);
  }
  void WriteMember(int i, Integer body) const {
    RegistryWrite(tree_, name_, MemberKey(i), Long{body});
  }

  const FieldOrder<StarfoldProfile>& ProfileOrder() const { return StoredProfileOrder(); }

  TreeSection Below(const char* sub) const { return {tree_, name_ + sub, root_}; }

  /// Deletes the section in the machine's hive, not in the one that is written: the points of a
  /// longer former list stay stored after the new ones, where they are never read.
  void Drop() const {
    const std::size_t last = name_.rfind('\\');
    RegistryDeleteKey(tree_, kAppName, name_.substr(0, last), name_.substr(last + 1),
                      RootSelector::LocalMachine);
  }

 private:
  using Reader = Oddities::Reader;

  void ReadValue(std::string_view key, Reader, std::string& value) const {
    value = RegistryReadText(tree_, name_, key, value, root_);
  }
  void ReadValue(std::string_view key, Reader reader, bool& value) const {
    value = reader == Reader::ExactlyOne ? RegistryReadText(tree_, name_, key, "0", root_) == "1"
                                         : RegistryReadSingle(tree_, name_, key, value, root_) != 0;
  }
  void ReadValue(std::string_view key, Reader, Single& value) const {
    value = RegistryReadSingle(tree_, name_, key, value, root_);
  }
  void ReadValue(std::string_view key, Reader, Long& value) const {
    value = RegistryReadLong(tree_, name_, key, value, root_);
  }
  void ReadValue(std::string_view key, Reader reader, Integer& value) const {
    value = reader == Reader::AsLong
                ? RoundedToLimits<Integer>(RegistryReadLong(tree_, name_, key, value, root_))
                : RegistryReadInteger(tree_, name_, key, value, root_);
  }

  KeyValueTree& tree_;
  std::string name_;
  RootSelector root_;
};

}  // namespace

std::string ProfileSection(int index) { return "Universe\\Starfold" + std::to_string(index); }

std::string CompositeSection(int index) { return "Universe\\CompFold" + std::to_string(index); }

UniverseSettings LoadUniverseFromRegistry(KeyValueTree& tree, RootSelector root) {
  UniverseSettings universe;
  ReadRecord(TreeSection(tree, sections::kUniverse, root), UniverseFields(), universe);
  return universe;
}

AdvancedSettings LoadAdvancedFromRegistry(KeyValueTree& tree) {
  TreeBulk look = TreeBulk::Look(tree);
  AdvancedSettings advanced;
  ReadRecord(TreeSection(tree, sections::kAdvanced), AdvancedFields(), advanced);
  look.Commit();
  ClampAdvanced(advanced);
  return advanced;
}

StarfoldProfile LoadProfileFromRegistry(KeyValueTree& tree, int index, std::string_view section,
                                        RootSelector root) {
  return ReadProfile(TreeSection(tree, section, root), index);
}

CompositeProfile LoadCompositeFromRegistry(KeyValueTree& tree, int index, std::string_view section,
                                           RootSelector root) {
  return ReadComposite(TreeSection(tree, section, root), index);
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
  WriteRecord(TreeSection(tree, sections::kUniverse), UniverseFields(), universe);
}

void SaveAdvancedToRegistry(KeyValueTree& tree, const AdvancedSettings& advanced) {
  WriteRecord(TreeSection(tree, sections::kAdvanced), AdvancedFields(), advanced);
}

void SaveProfileToRegistry(KeyValueTree& tree, const StarfoldProfile& profile,
                           std::string_view section) {
  WriteProfile(TreeSection(tree, section), profile);
}

void SaveCompositeToRegistry(KeyValueTree& tree, const CompositeProfile& composite,
                             std::string_view section) {
  WriteComposite(TreeSection(tree, section), composite);
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
