#include "settings/factory.h"

#include <optional>

#include "numbers/conversions.h"
#include "numbers/text.h"
#include "platform/user_text.h"
#include "settings/factory_rows.h"
#include "settings/fields.h"

namespace starfolds {
namespace {

using P = StarfoldProfile;
using U = UniverseSettings;

/// The setting at each position of a row; nullopt for a position that is not read.
template <class Record>
using Layout = std::optional<Setting<Record>>;

constexpr Layout<P> kProfileLayout[] = {
    &P::Starfold_Radius,
    &P::Starfold_Rotation,
    &P::Starfold_Distance,
    &P::Starfold_FoldStyle,
    &P::Starfold_AxisPlane,
    &P::Starfold_RadSegs,
    &P::Starfold_RadFill,
    &P::Starfold_RadBands,
    &P::Starfold_RadBFill,
    &P::Starfold_ColorMult,
    &P::Starfold_GHW_Ratio,
    &P::Starfold_RadiusExp,
    &P::Starfold_HeightExp,
    &P::Starfold_AngleTilt,
    &P::Starfold_AngleTInc,
    &P::Starfold_HueStart,
    &P::Starfold_HWheelInc,
    &P::Starfold_ColorComp,
    &P::Starfold_Profile,
    &P::Starfold_NewFreq,
    &P::Starfold_NewFrames,
    &P::Starfold_NewExtMult,
    &P::Starfold_NovaFreq,
    &P::Starfold_NovaFrames,
    &P::Starfold_NovaExtMult,
    &P::Starfold_PulsarFreq,
    &P::Starfold_PulsarDepth,
    &P::Starfold_PulsarCycles,
    &P::Starfold_PulsarFrames,
    &P::Starfold_PulsarMinExt,
    &P::Starfold_PulsarMaxExt,
    &P::Starfold_PulsarShape,
    std::nullopt,
    std::nullopt,
    std::nullopt,
    &P::Starfold_CometFreq,
    &P::Starfold_CometStars,
    &P::Starfold_CometOrbit,
    &P::Starfold_CometSpeed,
    &P::Starfold_CometSWind,
    &P::Starfold_CometCPersist,
    &P::Starfold_CometSPersist,
    &P::Starfold_HWC_Start,
    &P::Starfold_HWC_End,
    &P::Starfold_HWC_Inc,
    &P::Starfold_HueRed,
    &P::Starfold_HueGrn,
    &P::Starfold_HueBlu,
    &P::Starfold_HueBase,
    &P::Starfold_HueBlend,
    &P::Starfold_CP_Points,
    &P::Starfold_CP_Steps,
    &P::Starfold_CP_B_Pts,
    &P::Starfold_CP_B_Exp,
    &P::Starfold_CP_B_Spd,
    &P::Starfold_CP_Close,
    &P::Starfold_CP_AdvHW,
    &P::Starfold_QG_Force,
    &P::Starfold_StdLevels,
};
constexpr Layout<P> kLevelLayout[] = {&P::Starfold_StdLevDRad, &P::Starfold_StdLevHSca,
                                      &P::Starfold_StdLevB_HS, &P::Starfold_StdLevB_A0,
                                      &P::Starfold_StdLevB_A1};
constexpr int kLevelsAt = 59;
constexpr int kCountAt = 67;
constexpr int kCenterAt = 68;
constexpr int kEntriesAt = 71;

constexpr Layout<IfsRecord> kIfsCenterLayout[] = {&IfsRecord::IFS_CenterX, &IfsRecord::IFS_CenterY,
                                                  &IfsRecord::IFS_CenterZ};
constexpr Layout<IfsPoint> kIfsLayout[] = {
    &IfsPoint::IFS_LocX, &IfsPoint::IFS_LocY,  &IfsPoint::IFS_LocZ,  &IfsPoint::IFS_Scale,
    &IfsPoint::IFS_Axis, &IfsPoint::IFS_Angle, &IfsPoint::IFS_RelPct};
constexpr Layout<AtomRecord> kAtomCenterLayout[] = {
    &AtomRecord::Atom_CenterX, &AtomRecord::Atom_CenterY, &AtomRecord::Atom_CenterZ};
/// Not the packed order of the record: the structure comes second.
constexpr Layout<AtomPoint> kAtomLayout[] = {&AtomPoint::Atom_Element, &AtomPoint::Atom_Structure,
                                             &AtomPoint::Atom_LocX,    &AtomPoint::Atom_LocY,
                                             &AtomPoint::Atom_LocZ,    &AtomPoint::Atom_Size,
                                             &AtomPoint::Atom_Radius};

constexpr Layout<U> kThemeLayout[] = {
    &U::Universe_Stars,      &U::Universe_Starfold, &U::Universe_STrail,
    &U::Universe_Expand,     &U::Universe_ESteps,   &U::Universe_Persist,
    &U::Universe_Damping,    &U::Universe_HW_Start, &U::Universe_HW_End,
    &U::Universe_Recycle,    &U::Universe_Profile,  &U::Universe_NewFreq,
    &U::Universe_NewPctStEx, &U::Universe_GSteps,   &U::Universe_GPCtrl,
    &U::Universe_GCCtrl,     &U::Universe_DstCen,   &U::Universe_Tour,
    &U::Universe_GVisit,     &U::Universe_RotCam,   std::nullopt,
    &U::Universe_AmStar,     &U::Universe_AmPers,   &U::Universe_AmCAge,
    &U::Universe_AmFrames,   &U::Universe_AmMaxExt, &U::Universe_GravForce,
    &U::Universe_GravFrame,  &U::Universe_GS_Idx};

/// Reads the settings of `layout` from the fields of a row, from `first` on. A field that is no
/// number leaves its setting as it was.
template <class Record, std::size_t Size>
void Decode(Record& record, std::string_view row, int first, const Layout<Record> (&layout)[Size]) {
  for (std::size_t i = 0; i < Size; ++i) {
    if (!layout[i]) continue;
    SetFieldText(record, FieldOf(*layout[i]), GetField(row, first + static_cast<int>(i)));
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
  Decode(record.IFS, row, kCenterAt, kIfsCenterLayout);
  for (int k = 0; k < record.Starfold_IFS_Points; ++k) {
    Decode(record.IFS.Points[k], row, EntryAt(k), kIfsLayout);
  }
}

void DecodeAtoms(StarfoldProfile& record, std::string_view row) {
  record.Starfold_Atoms = EntryCount(row, kMaxAtoms);
  Decode(record.Atom, row, kCenterAt, kAtomCenterLayout);
  for (int k = 0; k < record.Starfold_Atoms; ++k) {
    AtomPoint& atom = record.Atom.Atoms[k];
    Decode(atom, row, EntryAt(k), kAtomLayout);
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
  if (entry == 0) return STARFOLDS_TEXT("< NONE >");
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
  Decode(record, row, 0, kProfileLayout);
  if (record.Starfold_StdLevels > 1) Decode(record, row, kLevelsAt, kLevelLayout);
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
  Decode(universe, row, 0, kThemeLayout);
}

void LoadFactorySettings(SettingsRecords& records, FactorySet set, int theme) {
  LoadFactorySet(records, set);
  LoadFactoryTheme(records.Universe, theme, set == FactorySet::Starfolds20);
}

}  // namespace starfolds
