// The table of all settings. Code that reads, writes, clamps, labels or tests settings iterates
// over it; a new setting is one member in records.h and one row here.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "platform/user_text.h"
#include "settings/records.h"
#include "settings/styles.h"

namespace starfolds {

/// How a number is clamped. `Fixed`: to `Low` and `High`. The others: the range depends on the
/// profile's style, see `StyleLimits`.
enum class RangeRule { None, Fixed, RadSegs, RadFill, RadBands, RadBFill };

/// Exceptions from what the type of a setting and its range imply.
struct Oddities {
  enum class Reader {
    ByKind,
    AsLong,      // an Integer read as a Long, so that a number that is too large is clamped, not 0
    ExactlyOne,  // a Boolean that only the text "1" turns on; others: any number but 0
  };
  bool WholeNumber = false;         // a Single that its clamp rounds to a whole number
  double DialogHigh = 0;            // the dialog's high limit where it differs from the run's
  Reader ReadAs = Reader::ByKind;   // from the stored tree
  bool InDialog = true;             // some dialog writes it
  bool InTemplate = true;           // template files contain it
  bool UsualNotInTemplate = false;  // template files contain it only if it differs from the default
  bool ZeroInTemplate = false;      // 0, not the default, if a template lacks it
  std::string_view TemplateName = {};  // if templates use another name
  std::string_view DefaultText = {};   // if the default is not stored as its shortest number
};

/// One setting of a record.
template <class Record>
struct Field {
  /// A typed pointer to the member; its type is the type of the setting.
  using Member = std::variant<Integer Record::*, Long Record::*, Single Record::*, bool Record::*,
                              std::string Record::*>;

  std::string_view Name;  // as stored
  Member Where;
  RangeRule Rule = RangeRule::None;
  double Low = 0;
  double High = 0;
  std::string_view Label;
  Oddities Odd = {};
};

/// In the order of the records.
std::span<const Field<UniverseSettings>> UniverseFields();
std::span<const Field<StarfoldProfile>> ProfileFields();
std::span<const Field<CompositeProfile>> CompositeFields();
std::span<const Field<AdvancedSettings>> AdvancedFields();
/// The sub-records of a profile: the centres, and one point or atom in the order of its columns.
std::span<const Field<IfsRecord>> IfsCenterFields();
std::span<const Field<IfsPoint>> IfsPointFields();
std::span<const Field<AtomRecord>> AtomCenterFields();
std::span<const Field<AtomPoint>> AtomPointFields();

/// A setting, named by its member of the record.
template <class Record>
using Setting = typename Field<Record>::Member;

/// The row of a setting. Every member of a record that is a setting has one.
const Field<UniverseSettings>& FieldOf(Setting<UniverseSettings> setting);
const Field<StarfoldProfile>& FieldOf(Setting<StarfoldProfile> setting);
const Field<CompositeProfile>& FieldOf(Setting<CompositeProfile> setting);
const Field<AdvancedSettings>& FieldOf(Setting<AdvancedSettings> setting);
const Field<IfsRecord>& FieldOf(Setting<IfsRecord> setting);
const Field<IfsPoint>& FieldOf(Setting<IfsPoint> setting);
const Field<AtomRecord>& FieldOf(Setting<AtomRecord> setting);
const Field<AtomPoint>& FieldOf(Setting<AtomPoint> setting);

/// The row of the setting stored under `name`; nullptr if there is none.
template <class Record>
const Field<Record>* FindField(std::span<const Field<Record>> fields, std::string_view name) {
  for (const Field<Record>& field : fields) {
    if (field.Name == name) return &field;
  }
  return nullptr;
}

/// The limits of `rule` for a profile of `style` (clamped to 0..9); `rule` is one of the four style
/// rules.
Limits StyleLimits(RangeRule rule, Integer style);

/// The number of points of an atom's structure; 1 for lattices and invalid numbers.
Integer AtomPoints(Integer structure);

/// Whether an atom's structure is a lattice, whose `Atom_LocX` is its number of points per edge.
bool IsLattice(Integer structure);

/// The range of a lattice's points per edge.
inline constexpr Limits kPointsPerEdge{1, 99};

/// Clamps every field to its range. The universe is clamped before each run, the others after each
/// load.
void ClampUniverse(UniverseSettings& universe);
void ClampProfile(StarfoldProfile& profile);
void ClampComposite(CompositeProfile& composite);
void ClampAdvanced(AdvancedSettings& advanced);

/// The name of the setting in templates.
template <class Record>
std::string_view TemplateKey(const Field<Record>& field) {
  return field.Odd.TemplateName.empty() ? field.Name : field.Odd.TemplateName;
}

/// The text as which the setting's value is stored.
template <class Record>
std::string FieldText(const Record& record, const Field<Record>& field);

/// Sets a number, rounded if the setting is a whole number, and clamped to its type.
/// Text settings are not changed.
template <class Record>
void SetFieldNumber(Record& record, const Field<Record>& field, double number);

/// The text of the setting's default, as it is stored for a new user.
template <class Record>
std::string DefaultText(const Field<Record>& field) {
  if (!field.Odd.DefaultText.empty()) return std::string(field.Odd.DefaultText);
  return FieldText(Record(), field);
}

/// Sets the setting from text. False, and no change, if it is numeric and the text is not a number.
/// A number beyond the type's range is clamped to the type.
template <class Record>
bool SetFieldText(Record& record, const Field<Record>& field, std::string_view text);

/// Sets any setting by its name: "Universe_Stars", "Adv_TimeDelay",
/// "Starfold_Radius" (in all 50 profiles), "Starfold7/Starfold_Radius" (in profile 7),
/// "CompFold3/CompFold_Type0". Returns a message if the name or the value is invalid.
std::optional<UserText> SetByName(SettingsRecords& records, std::string_view name,
                                  std::string_view value);

/// The bodies that `Universe_GS_Idx` lists, 0-based, at most 64. The text is split at blanks. A
/// part that is a number above 0 and up to 66 gives that number less 1, rounded half to even; parts
/// that are something else, or round below 0, are ignored.
struct VisitList {
  static constexpr int kRoom = 64;
  std::array<Integer, kRoom> Bodies{};
  int Count = 0;
};
VisitList ParseVisitList(std::string_view text);

}  // namespace starfolds
