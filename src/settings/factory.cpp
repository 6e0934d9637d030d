#include "settings/factory.h"

#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/factory_rows.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

/// The setting at each position of a row; an empty name is a position that is not read.
constexpr std::string_view kProfileLayout[] = {
    "Starfold_Radius",
    "Starfold_Rotation",
    "Starfold_Distance",
    "Starfold_FoldStyle",
    "Starfold_AxisPlane",
    "Starfold_RadSegs",
    "Starfold_RadFill",
    "Starfold_RadBands",
    "Starfold_RadBFill",
    "Starfold_ColorMult",
    "Starfold_GHW_Ratio",
    "Starfold_RadiusExp",
    "Starfold_HeightExp",
    "Starfold_AngleTilt",
    "Starfold_AngleTInc",
    "Starfold_HueStart",
    "Starfold_HWheelInc",
    "Starfold_ColorComp",
    "Starfold_Profile",
    "Starfold_NewFreq",
    "Starfold_NewFrames",
    "Starfold_NewExtMult",
    "Starfold_NovaFreq",
    "Starfold_NovaFrames",
    "Starfold_NovaExtMult",
    "Starfold_PulsarFreq",
    "Starfold_PulsarDepth",
    "Starfold_PulsarCycles",
    "Starfold_PulsarFrames",
    "Starfold_PulsarMinExt",
    "Starfold_PulsarMaxExt",
    "Starfold_PulsarShape",
    "",
    "",
    "",
    "Starfold_CometFreq",
    "Starfold_CometStars",
    "Starfold_CometOrbit",
    "Starfold_CometSpeed",
    "Starfold_CometSWind",
    "Starfold_CometCPersist",
    "Starfold_CometSPersist",
    "Starfold_HWC_Start",
    "Starfold_HWC_End",
    "Starfold_HWC_Inc",
    "Starfold_HueRed",
    "Starfold_HueGrn",
    "Starfold_HueBlu",
    "Starfold_HueBase",
    "Starfold_HueBlend",
    "Starfold_CP_Points",
    "Starfold_CP_Steps",
    "Starfold_CP_B_Pts",
    "Starfold_CP_B_Exp",
    "Starfold_CP_B_Spd",
    "Starfold_CP_Close",
    "Starfold_CP_AdvHW",
    "Starfold_QG_Force",
    "Starfold_StdLevels",
};
constexpr std::string_view kLevelLayout[] = {"Starfold_StdLevDRad", "Starfold_StdLevHSca",
                                             "Starfold_StdLevB_HS", "Starfold_StdLevB_A0",
                                             "Starfold_StdLevB_A1"};
constexpr int kLevelsAt = 59;
constexpr int kCountAt = 67;
constexpr int kCenterAt = 68;
constexpr int kEntriesAt = 71;

constexpr std::string_view kIfsCenterLayout[] = {"IFS_CenterX", "IFS_CenterY", "IFS_CenterZ"};
constexpr std::string_view kIfsLayout[] = {"IFS_LocX", "IFS_LocY",  "IFS_LocZ",  "IFS_Scale",
                                           "IFS_Axis", "IFS_Angle", "IFS_RelPct"};
constexpr std::string_view kAtomCenterLayout[] = {"Atom_CenterX", "Atom_CenterY", "Atom_CenterZ"};
/// Not the packed order of the record: the structure stands second.
constexpr std::string_view kAtomLayout[] = {"Atom_Element", "Atom_Structure", "Atom_LocX",
                                            "Atom_LocY",    "Atom_LocZ",      "Atom_Size",
                                            "Atom_Radius"};

constexpr std::string_view kThemeLayout[] = {
    "Universe_Stars",      "Universe_Starfold", "Universe_STrail",
    "Universe_Expand",     "Universe_ESteps",   "Universe_Persist",
    "Universe_Damping",    "Universe_HW_Start", "Universe_HW_End",
    "Universe_Recycle",    "Universe_Profile",  "Universe_NewFreq",
    "Universe_NewPctStEx", "Universe_GSteps",   "Universe_GPCtrl",
    "Universe_GCCtrl",     "Universe_DstCen",   "Universe_Tour",
    "Universe_GVisit",     "Universe_RotCam",   "",
    "Universe_AmStar",     "Universe_AmPers",   "Universe_AmCAge",
    "Universe_AmFrames",   "Universe_AmMaxExt", "Universe_GravForce",
    "Universe_GravFrame",  "Universe_GS_Idx"};

/// Reads the settings that `layout` names from the fields from `first` on. A field that is no
/// number leaves its setting as it was.
template <class Record>
void Decode(Record& record, std::span<const Field<Record>> fields, std::string_view row, int first,
            std::span<const std::string_view> layout) {
  int position = first;
  for (const std::string_view name : layout) {
    if (const Field<Record>* field = FindField(fields, name)) {
      SetFieldText(record, *field, GetField(row, position));
    }
    ++position;
  }
}

Integer FieldInteger(std::string_view row, int n) {
  return RoundedToLimits<Integer>(LenientNumber(GetField(row, n)));
}

/// How many entries of seven fields the row has, at most `room`.
Integer EntryCount(std::string_view row, int room) {
  return ClampTo<Integer>(FieldInteger(row, kCountAt), 0, static_cast<Integer>(room));
}

int EntryAt(int k) { return kEntriesAt + 7 * k; }

void DecodeIfs(StarfoldProfile& record, std::string_view row) {
  record.Starfold_IFS_Points = EntryCount(row, kMaxIfsPoints);
  Decode(record.IFS, IfsCenterFields(), row, kCenterAt, kIfsCenterLayout);
  for (int k = 0; k < record.Starfold_IFS_Points; ++k) {
    Decode(record.IFS.Points[k], IfsPointFields(), row, EntryAt(k), kIfsLayout);
  }
}

void DecodeAtoms(StarfoldProfile& record, std::string_view row) {
  record.Starfold_Atoms = EntryCount(row, kMaxAtoms);
  Decode(record.Atom, AtomCenterFields(), row, kCenterAt, kAtomCenterLayout);
  for (int k = 0; k < record.Starfold_Atoms; ++k) {
    AtomPoint& atom = record.Atom.Atoms[k];
    Decode(atom, AtomPointFields(), row, EntryAt(k), kAtomLayout);
    atom.Atom_Count = AtomPoints(atom.Atom_Structure);
  }
}

std::span<const FactoryProfile> ProfilesOf(FactorySet set) {
  return set == FactorySet::Starfolds4x ? FactoryProfiles4x() : FactoryProfiles20();
}

/// The table's entry for row 0 to 49; none beyond.
const FactoryProfile* FindProfile(FactorySet set, int row) {
  static constexpr std::string_view undefined = "Undefined";
  static const FactoryProfile filler{undefined, 0, FactoryProfiles20().front().Row};
  if (row < 0 || row >= kProfileCount) return nullptr;
  const auto profiles = ProfilesOf(set);
  const auto index = static_cast<std::size_t>(row);
  return index < profiles.size() ? &profiles[index] : &filler;
}

}  // namespace

std::string_view GetField(std::string_view row, int n) {
  for (; n > 0; --n) {
    const std::size_t comma = row.find(',');
    if (comma == std::string_view::npos) return {};
    row.remove_prefix(comma + 1);
  }
  return Trimmed(row.substr(0, row.find(',')));
}

std::string_view FactoryProfileRow(FactorySet set, int rowNumber) {
  const FactoryProfile* profile = FindProfile(set, rowNumber - 1);
  return profile ? profile->Row : std::string_view{};
}

std::string_view FactoryCompositeRow(FactorySet set, int rowNumber) {
  if (rowNumber < 1 || rowNumber > kCompositeCount) return {};
  const auto index = static_cast<std::size_t>(rowNumber - 1);
  return set == FactorySet::Starfolds4x ? FactoryComposites4x()[index]
                                        : FactoryComposites20()[index];
}

std::string_view FactoryThemeRow(int theme, bool is20) {
  if (theme < 1 || theme > kThemeCount) return {};
  if (theme == 1 && is20) return FactoryClassicalTheme20();
  return FactoryThemes()[static_cast<std::size_t>(theme - 1)].Row;
}

std::string_view FactoryProfileName(int row, FactorySet set) {
  const FactoryProfile* profile = FindProfile(set, row);
  return profile ? profile->Name : std::string_view{};
}

Integer FactoryProfilePct(int row, FactorySet set) {
  const FactoryProfile* profile = FindProfile(set, row);
  return profile ? profile->Pct : Integer{0};
}

std::string_view FactoryThemeName(int entry) {
  if (entry == 0) return "< NONE >";
  if (entry < 0 || entry > kThemeCount) return {};
  return FactoryThemes()[static_cast<std::size_t>(entry - 1)].Name;
}

void LoadFactoryProfile(StarfoldProfile& record, FactorySet set, int index) {
  const FactoryProfile* profile = FindProfile(set, index);
  if (!profile) return;
  record.UniFoldName = profile->Name;
  record.UniFoldPct = profile->Pct;
  DecodeProfileRow(record, profile->Row);
}

void DecodeProfileRow(StarfoldProfile& record, std::string_view row) {
  Decode(record, ProfileFields(), row, 0, kProfileLayout);
  if (record.Starfold_StdLevels > 1) Decode(record, ProfileFields(), row, kLevelsAt, kLevelLayout);
  record.Starfold_IFS_Points = 0;
  record.Starfold_Atoms = 0;
  if (FieldInteger(row, kCountAt) <= 0) return;
  if (record.Style() == FoldStyle::UserIfs) DecodeIfs(record, row);
  if (record.Style() == FoldStyle::Molecule) DecodeAtoms(record, row);
}

void DecodeCompositeRow(CompositeProfile& composite, std::string_view row) {
  composite.CompFoldName = GetField(row, 0);
  composite.CompFoldPct = FieldInteger(row, 1);
  composite.CompFold_Count = FieldInteger(row, 2);
  for (int i = 0; i < composite.MemberCount(); ++i) {
    composite.CompFold_Type[i] = FieldInteger(row, 3 + i);
  }
}

void LoadFactoryComposites(CompositeArray& composites, FactorySet set) {
  for (int i = 0; i < kCompositeCount; ++i) {
    DecodeCompositeRow(composites[i], FactoryCompositeRow(set, i + 1));
  }
}

void LoadFactorySet(SettingsRecords& records, FactorySet set) {
  for (int i = 0; i < kProfileCount; ++i) LoadFactoryProfile(records.Profiles[i], set, i);
  LoadFactoryComposites(records.Composites, set);
}

void LoadFactoryTheme(UniverseSettings& universe, int theme, bool is20) {
  const std::string_view row = FactoryThemeRow(theme, is20);
  if (!row.empty()) DecodeThemeRow(universe, row);
}

void DecodeThemeRow(UniverseSettings& universe, std::string_view row) {
  Decode(universe, UniverseFields(), row, 0, kThemeLayout);
}

void LoadFactorySettings(SettingsRecords& records, FactorySet set, int theme) {
  LoadFactorySet(records, set);
  LoadFactoryTheme(records.Universe, theme, set == FactorySet::Starfolds20);
}

}  // namespace starfolds
