#include "named_settings.h"

#include <charconv>
#include <variant>

#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/fields.h"
#include "settings/registry.h"
#include "widgets/editor_ranges.h"

namespace starfolds::web {
namespace {

constexpr std::string_view kAdvanced = "Advanced";
constexpr std::string_view kProfile = "Starfold";
constexpr std::string_view kComposite = "CompFold";
constexpr std::string_view kIfsPoint = "IFS";
constexpr std::string_view kAtom = "Atom";
constexpr std::string_view kMember = "CompFold_Type";

/// The number behind `word`, below `count`; nullopt if the text is another.
std::optional<int> NumberBehind(std::string_view word, std::string_view text, int count) {
  if (!text.starts_with(word)) return std::nullopt;
  text.remove_prefix(word.size());
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number >= 0 && number < count ? std::optional(number) : std::nullopt;
}

/// "Starfold7/IFS0/IFS_LocX" as "Starfold7/IFS0" and "IFS_LocX".
struct SplitName {
  explicit SplitName(std::string_view name) {
    const std::size_t slash = name.rfind('/');
    if (slash == std::string_view::npos) {
      Key = name;
    } else {
      Record = name.substr(0, slash);
      Key = name.substr(slash + 1);
    }
  }
  std::string_view Record;
  std::string_view Key;
};

/// One record, and the rows of the field table for it.
template <class Record>
struct Part {
  Record& Where;
  std::span<const Field<Record>> Fields;
};

/// Calls `visit` with each part of a profile and the name of the part within it: "", "IFS0/".
template <class Visit>
void VisitParts(StarfoldProfile& profile, Visit visit) {
  visit(std::string(), Part<StarfoldProfile>{profile, ProfileFields()});
  visit(std::string(), Part<IfsRecord>{profile.IFS, IfsCenterFields()});
  visit(std::string(), Part<AtomRecord>{profile.Atom, AtomCenterFields()});
  for (int i = 0; i < kMaxIfsPoints; ++i) {
    visit(std::string(kIfsPoint) + std::to_string(i) + "/",
          Part<IfsPoint>{profile.IFS.Points[i], IfsPointFields()});
  }
  for (int i = 0; i < kMaxAtoms; ++i) {
    visit(std::string(kAtom) + std::to_string(i) + "/",
          Part<AtomPoint>{profile.Atom.Atoms[i], AtomPointFields()});
  }
}

/// The parts of the record of this name. False if there is none.
template <class Visit>
bool VisitRecord(SettingsRecords& records, std::string_view record, Visit visit) {
  if (record.empty()) {
    visit(std::string(), Part<UniverseSettings>{records.Universe, UniverseFields()});
  } else if (record == kAdvanced) {
    visit(std::string(), Part<AdvancedSettings>{records.Advanced, AdvancedFields()});
  } else if (const auto i = NumberBehind(kProfile, record, kProfileCount)) {
    VisitParts(records.Profiles[*i], visit);
  } else if (const auto k = NumberBehind(kComposite, record, kCompositeCount)) {
    visit(std::string(), Part<CompositeProfile>{records.Composites[*k], CompositeFields()});
  } else {
    return false;
  }
  return true;
}

/// Calls `visit` with the row of the setting and its record, and returns what it returns; nullopt
/// if there is no such setting.
template <class Visit>
auto WithSetting(SettingsRecords& records, std::string_view name, Visit visit) {
  const std::size_t slash = name.find('/');
  const bool inRecord = slash != std::string_view::npos;
  std::string_view record = inRecord ? name.substr(0, slash) : std::string_view();
  if (!inRecord && FindField(AdvancedFields(), name)) record = kAdvanced;
  const std::string_view rest = inRecord ? name.substr(slash + 1) : name;
  decltype(visit(records.Universe, UniverseFields()[0])) result;
  VisitRecord(records, record, [&](const std::string& prefix, auto part) {
    if (!rest.starts_with(prefix)) return;
    if (const auto* field = FindField(part.Fields, rest.substr(prefix.size()))) {
      result = visit(part.Where, *field);
    }
  });
  return result;
}

/// The member of a composite that a name denotes; nullptr if it denotes none.
Integer* MemberOf(SettingsRecords& records, std::string_view name) {
  const SplitName split(name);
  const auto composite = NumberBehind(kComposite, split.Record, kCompositeCount);
  const auto member = NumberBehind(kMember, split.Key, kMaxMembers);
  if (!composite || !member) return nullptr;
  return &records.Composites[*composite].CompFold_Type[*member];
}

template <class Record>
std::optional<Limits> LimitsOf(const Field<Record>& field) {
  if (field.Rule != RangeRule::Fixed) return std::nullopt;
  return Limits{field.Low, std::max(field.High, field.Odd.DialogHigh)};
}

std::optional<Limits> LimitsOf(const Field<StarfoldProfile>& field) {
  using P = StarfoldProfile;
  for (const Setting<P>& level :
       {Setting<P>(&P::Starfold_StdLevDRad), Setting<P>(&P::Starfold_StdLevHSca)}) {
    if (field.Where != level) continue;
    const NumberRange range = RangeIn(RangedEditor::Levels, level);
    return Limits{range.Low, range.High};
  }
  return LimitsOf<P>(field);
}

/// The count has room for one member more than there are.
std::optional<Limits> LimitsOf(const Field<CompositeProfile>& field) {
  using C = CompositeProfile;
  if (field.Where == Setting<C>(&C::CompFold_Count)) return Limits{0, kMaxMembers};
  return LimitsOf<C>(field);
}

/// Clamps a number that `SetFieldText` has set.
template <class Record>
void ClampToDialog(Record& record, const Field<Record>& field) {
  const std::optional<Limits> limits = LimitsOf(field);
  if (!limits) return;
  const double number = LenientNumber(FieldText(record, field));
  SetFieldNumber(record, field, ClampTo(number, limits->Low, limits->High));
}

/// The records that another setting limits.
void ClampRecords(SettingsRecords& records) {
  for (StarfoldProfile& profile : records.Profiles) {
    for (AtomPoint& atom : profile.Atom.Atoms) atom.Atom_Count = AtomPoints(atom.Atom_Structure);
    ClampProfile(profile);
  }
  for (CompositeProfile& composite : records.Composites) ClampComposite(composite);
  ClampAdvanced(records.Advanced);
}

}  // namespace

std::optional<std::string> SettingText(SettingsRecords& records, std::string_view name) {
  if (const Integer* member = MemberOf(records, name)) return NumberText(Long{*member});
  return WithSetting(records, name, [](const auto& record, const auto& field) {
    return std::optional(FieldText(record, field));
  });
}

std::optional<std::string> ChangeSetting(SettingsRecords& records, std::string_view name,
                                         std::string_view value) {
  std::optional<std::string> fault;
  if (Integer* member = MemberOf(records, name)) {
    if (const auto wrong = SetByName(records, name, value)) fault = InOneLine(*wrong);
    *member = ClampTo<Integer>(*member, 0, kProfileCount - 1);
  } else {
    const auto set = WithSetting(records, name, [&](auto& record, const auto& field) {
      const bool isValid = SetFieldText(record, field, StorableText(value));
      if (isValid) ClampToDialog(record, field);
      return std::optional(isValid);
    });
    if (!set) return "there is no setting " + Quoted(name);
    if (!*set) fault = Quoted(SplitName(name).Key) + " takes a number, not " + Quoted(value);
  }
  ClampRecords(records);
  return fault;
}

bool ForEachSetting(SettingsRecords& records, std::string_view record, const TakeSetting& take) {
  const bool exists = VisitRecord(records, record, [&](const std::string& prefix, auto part) {
    for (const auto& field : part.Fields) {
      take(prefix + std::string(field.Name), FieldText(part.Where, field));
    }
  });
  if (const auto k = NumberBehind(kComposite, record, kCompositeCount)) {
    for (int i = 0; i < kMaxMembers; ++i) {
      take(std::string(kMember) + std::to_string(i),
           NumberText(Long{records.Composites[*k].CompFold_Type[i]}));
    }
  }
  return exists;
}

}  // namespace starfolds::web
