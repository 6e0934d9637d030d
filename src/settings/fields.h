// The one table of the settings. Whoever reads, writes, clamps, labels or tests a setting walks
// these rows; a new setting is one member in records.h and one row here.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "settings/records.h"
#include "settings/styles.h"

namespace starfolds {

/// How a number is clamped. `Fixed`: to `Low` and `High`. The others: the range depends on the
/// profile's style, see `StyleLimits`.
enum class RangeRule { None, Fixed, RadSegs, RadFill, RadBands, RadBFill };

/// Where a setting is not as its kind and its range say.
struct Oddities {
  enum class Reader {
    ByKind,
    AsLong,      // read as a Long into a shorter word, so that too large a number becomes a limit
    ExactlyOne,  // a Boolean that only the text "1" turns on; others: any number but 0
  };
  bool WholeNumber = false;            // a Single that its clamp rounds to a whole number
  double DialogHigh = 0;               // the dialog's high limit where it differs from the run's
  Reader ReadAs = Reader::ByKind;      // from the stored tree
  bool InDialog = true;                // some dialog writes it
  bool InTemplate = true;              // template files hold it
  bool UsualNotInTemplate = false;     // template files hold it only if it is not the default
  bool ZeroInTemplate = false;         // a template that lacks it means 0, not the default
  std::string_view TemplateName = {};  // where templates call it otherwise
  std::string_view DefaultText = {};   // where the default is written otherwise than its number
};

/// One setting of a record.
template <class Record>
struct Field {
  /// A typed pointer to the member; its kind is the kind of the setting.
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
/// The sub-records of a profile: the centres, and one point or atom in its packed order.
std::span<const Field<IfsRecord>> IfsCenterFields();
std::span<const Field<IfsPoint>> IfsPointFields();
std::span<const Field<AtomRecord>> AtomCenterFields();
std::span<const Field<AtomPoint>> AtomPointFields();

/// A setting, named by its member of the record.
template <class Record>
using Setting = typename Field<Record>::Member;

/// The row of a setting. The member must have one.
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

/// Points of an atom's structure, 0 to 13; 1 outside.
Integer AtomPoints(Integer structure);

/// Whether an atom's structure has a number of points per edge in place of a location.
bool IsLattice(Integer structure);

/// The range of a lattice's points per edge, which are stored as `Atom_LocX`.
inline constexpr Limits kPointsPerEdge{1, 99};

/// Holds every field to its range, as before each run (universe) or after each load (others).
void ClampUniverse(UniverseSettings& universe);
void ClampProfile(StarfoldProfile& profile);
void ClampComposite(CompositeProfile& composite);
void ClampAdvanced(AdvancedSettings& advanced);

/// The name under which a template holds the setting.
template <class Record>
std::string_view TemplateKey(const Field<Record>& field) {
  return field.Odd.TemplateName.empty() ? field.Name : field.Odd.TemplateName;
}

/// The setting's value as the text it is stored as.
template <class Record>
std::string FieldText(const Record& record, const Field<Record>& field);

/// Sets a number, rounded if the setting is a whole number, and clamped to its type.
/// Texts stay as they are.
template <class Record>
void SetFieldNumber(Record& record, const Field<Record>& field, double number);

/// The text of the setting's default, as it is written where there is nothing yet.
template <class Record>
std::string DefaultText(const Field<Record>& field) {
  if (!field.Odd.DefaultText.empty()) return std::string(field.Odd.DefaultText);
  return FieldText(Record(), field);
}

/// Reads the setting from text. Text that is no number leaves a number as it was and gives false;
/// a number beyond the type's range becomes the type's limit.
template <class Record>
bool SetFieldText(Record& record, const Field<Record>& field, std::string_view text);

/// Sets any setting of all the records by its name: "Universe_Stars", "Adv_TimeDelay",
/// "Starfold_Radius" (in all 50 profiles), "Starfold7/Starfold_Radius" (in profile 7),
/// "CompFold3/CompFold_Type0". Returns a message if the name or the value is invalid.
std::optional<std::string> SetByName(SettingsRecords& records, std::string_view name,
                                     std::string_view value);

/// The bodies that `Universe_GS_Idx` names, 0-based, at most 64: of each piece between blanks that
/// is a number above 0 and up to 66, the number less 1, rounded with halves to even. All other
/// pieces, and those that round below 0, name no body and are ignored.
struct VisitList {
  static constexpr int kRoom = 64;
  std::array<Integer, kRoom> Bodies{};
  int Count = 0;
};
VisitList ParseVisitList(std::string_view text);

}  // namespace starfolds
