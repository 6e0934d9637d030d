#include "settings_json.h"

#include <algorithm>
#include <memory>
#include <variant>
#include <vector>

#include "body_editors/atom_rows.h"
#include "numbers/text.h"
#include "numbers/utf8.h"
#include "settings/dialog_rows.h"
#include "settings/elements.h"
#include "settings/factory.h"
#include "settings/fields.h"
#include "widgets/editor_ranges.h"

namespace starfolds::web {
namespace {

using P = StarfoldProfile;
using U = UniverseSettings;

// --- JSON ---

/// An object or a list; the members are texts of JSON.
class Json {
 public:
  explicit Json(char open) : text_(1, open), close_(open == '{' ? '}' : ']') {}

  void Put(std::string_view key, const std::string& value) { Add(JsonText(key) + ":" + value); }
  void Add(const std::string& value) {
    if (text_.size() > 1) text_ += ',';
    text_ += value;
  }
  bool Empty() const { return text_.size() == 1; }
  std::string Text() const { return text_ + close_; }

 private:
  std::string text_;
  char close_;
};

std::string JsonNumber(double number) { return NumberText(static_cast<Single>(number)); }

std::string JsonLimits(const Limits& limits) {
  return "[" + JsonNumber(limits.Low) + "," + JsonNumber(limits.High) + "]";
}

template <class Texts>
std::string JsonTexts(const Texts& texts) {
  Json list('[');
  for (const auto& text : texts) list.Add(JsonText(text));
  return list.Text();
}

// --- Labels ---

/// "Bands (1 - 99), Fill % (0 - 100):" as "Bands" and "Fill %".
std::vector<std::string> LabelParts(std::string_view caption) {
  std::string plain;
  int depth = 0;
  for (const char c : caption) {
    if (c == '(') ++depth;
    if (depth == 0 && c != ':') plain += c;
    if (c == ')') --depth;
  }
  std::vector<std::string> parts;
  std::string_view rest = plain;
  while (!rest.empty()) {
    const std::size_t comma = std::min(rest.find(", "), rest.size());
    parts.emplace_back(Trimmed(rest.substr(0, comma)));
    rest.remove_prefix(std::min(comma + 2, rest.size()));
  }
  return parts;
}

/// The label of a setting without ranges. Two settings that share the caption "Hue Start, End" are
/// "Hue Start" and "Hue End".
template <class Record>
std::string LabelOfField(std::span<const Field<Record>> fields, const Field<Record>& field) {
  std::vector<std::string> parts = LabelParts(field.Label);
  if (parts.size() < 2) return parts.empty() ? std::string(field.Name) : parts.front();
  std::size_t place = 0;
  for (const Field<Record>& other : fields) {
    if (&other == &field) break;
    place += other.Label == field.Label;
  }
  const auto sharers = std::count_if(fields.begin(), fields.end(), [&](const Field<Record>& other) {
    return other.Label == field.Label;
  });
  if (sharers < 2 || place == 0) return sharers < 2 ? std::string(field.Label) : parts.front();
  const std::string& first = parts.front();
  return first.substr(0, first.rfind(' ') + 1) + parts[std::min(place, parts.size() - 1)];
}

// --- Rows ---

/// What the dialogs say of a setting beside the field table.
struct Shown {
  std::string_view Page;
  std::optional<NumberKind> Kind = {};  // else by the type of the member
  std::optional<StyleBox> Box = {};     // the styles that show it; else all
  bool IsFlag = false;
  std::vector<std::string_view> Choices = {};
  bool ProfileChoices = false;  // the profiles before `Choices`
  std::optional<Limits> Range = {};
};

std::string_view KindName(NumberKind kind) {
  switch (kind) {
    case NumberKind::AsInteger: return "integer";
    case NumberKind::AsLong: return "long";
    case NumberKind::AsSingle: break;
  }
  return "single";
}

template <class Record>
std::string_view KindName(const Field<Record>& field, const Shown& shown) {
  if (std::holds_alternative<std::string Record::*>(field.Where)) return "text";
  if (std::holds_alternative<bool Record::*>(field.Where) || shown.IsFlag) return "flag";
  if (!shown.Choices.empty() || shown.ProfileChoices) return "choice";
  return KindName(shown.Kind.value_or(KindOf(field)));
}

template <class Record>
Limits RangeOfField(const Field<Record>& field, const Shown& shown) {
  if (shown.Range) return *shown.Range;
  if (field.Rule == RangeRule::Fixed)
    return {field.Low, std::max(field.High, field.Odd.DialogHigh)};
  return StyleLimits(field.Rule, 0);
}

/// The ranges of the styles for which it is not `usual`.
std::string RangesOfStyles(RangeRule rule, const Limits& usual) {
  Json ranges('{');
  for (Integer style = 0; style < kStyleCount; ++style) {
    const Limits limits = StyleLimits(rule, style);
    if (limits.Low == usual.Low && limits.High == usual.High) continue;
    ranges.Put(std::to_string(style), JsonLimits(limits));
  }
  return ranges.Text();
}

bool IsByStyle(RangeRule rule) { return rule != RangeRule::None && rule != RangeRule::Fixed; }

template <class Record>
Json RowOf(std::span<const Field<Record>> fields, const Field<Record>& field, const Shown& shown) {
  const std::string_view kind = KindName(field, shown);
  Json row('{');
  row.Put("name", JsonText(field.Name));
  row.Put("label", JsonText(LabelOfField(fields, field)));
  row.Put("kind", JsonText(kind));
  row.Put("default", JsonText(DefaultText(field)));
  row.Put("page", JsonText(shown.Page));
  if (!shown.Choices.empty()) row.Put("choices", JsonTexts(shown.Choices));
  if (shown.ProfileChoices) row.Put("profileChoices", "true");
  if (kind == "text" || kind == "flag") return row;
  const Limits limits = RangeOfField(field, shown);
  row.Put("low", JsonNumber(limits.Low));
  row.Put("high", JsonNumber(limits.High));
  if (IsByStyle(field.Rule)) row.Put("ranges", RangesOfStyles(field.Rule, limits));
  return row;
}

// --- The universe ---

Shown ShownInUniverse(const Field<U>& field) {
  for (const UniverseRow& row : UniverseRows()) {
    if (row.What != field.Where) continue;
    const NumberRange range = RangeOf(row);
    const bool isAlways = row.Page == UniversePage::Always;
    return {.Page = isAlways ? std::string_view() : UniversePageName(static_cast<int>(row.Page)),
            .Kind = row.Kind,
            .Range = Limits{range.Low, range.High}};
  }
  if (field.Where == Setting<U>(&U::Universe_Profile)) {
    return {.Page = UniversePageName(static_cast<int>(UniversePage::Creation)),
            .Choices = {"Cycle All Randomly", "Cycle All Sequentially"},
            .ProfileChoices = true};
  }
  return {.Page = UniversePageName(static_cast<int>(UniversePage::Tour))};
}

std::string UniverseJson() {
  Json rows('[');
  for (const Field<U>& field : UniverseFields()) {
    rows.Add(RowOf(UniverseFields(), field, ShownInUniverse(field)).Text());
  }
  return rows.Text();
}

// --- The profiles ---

/// The settings of a profile that are edited in another way than in a number box of a page.
std::optional<Shown> ShownBeside(const Setting<P>& setting) {
  const std::string_view shape = StarfoldPageName(static_cast<int>(StarfoldPage::Shape));
  const std::string_view flares = StarfoldPageName(static_cast<int>(StarfoldPage::Flares));
  const auto list = [](std::string_view page, std::span<const std::string_view> names,
                       std::optional<StyleBox> box = {}) {
    return Shown{.Page = page, .Box = box, .Choices = {names.begin(), names.end()}};
  };
  const auto flag = [&](StyleBox box) { return Shown{.Page = shape, .Box = box, .IsFlag = true}; };
  const auto level = [&] {
    const NumberRange range = RangeIn(RangedEditor::Levels, setting);
    return Shown{.Page = shape, .Box = StyleBox::Levels, .Range = Limits{range.Low, range.High}};
  };
  const auto is = [&](const Setting<P>& other) { return setting == other; };
  if (is(&P::UniFoldName) || is(&P::UniFoldPct)) return Shown{};
  if (is(&P::Starfold_FoldStyle)) return list({}, StyleNames());
  if (is(&P::Starfold_AxisPlane)) return list(shape, PlaneNames());
  if (is(&P::Starfold_ColorComp)) return list(shape, ColorRuleNames(), StyleBox::ColorRule);
  if (is(&P::Starfold_Profile)) return list(shape, ShapeNames(), StyleBox::Shape);
  if (is(&P::Starfold_PulsarShape)) return list(flares, PulsarShapeNames());
  if (is(&P::Starfold_CP_Close) || is(&P::Starfold_CP_AdvHW)) return flag(StyleBox::Spline);
  if (is(&P::Starfold_StdLevDRad) || is(&P::Starfold_StdLevHSca)) return level();
  if (is(&P::Starfold_StdLevB_HS) || is(&P::Starfold_StdLevB_A0) || is(&P::Starfold_StdLevB_A1)) {
    return flag(StyleBox::Levels);
  }
  return std::nullopt;
}

std::vector<StarfoldRow> BoxRows() {
  std::vector<StarfoldRow> rows(StarfoldRows().begin(), StarfoldRows().end());
  rows.insert(rows.end(), PixHueRows().begin(), PixHueRows().end());
  return rows;
}

/// The styles for which a page or list shows the setting.
std::vector<int> StylesOf(const Field<P>& field, const Shown& shown) {
  const std::vector<StarfoldRow> rows = BoxRows();
  std::vector<int> styles;
  for (int style = 0; style < kStyleCount; ++style) {
    const auto edits = [&](const StarfoldRow& row) {
      return IsShown(row, style) && &FieldOf(row, style) == &field;
    };
    const bool isBeside = ShownBeside(field.Where).has_value();
    const bool hasBox = !shown.Box || FactsOf(static_cast<Integer>(style)).Boxes.Has(*shown.Box);
    if (isBeside ? hasBox : std::any_of(rows.begin(), rows.end(), edits)) styles.push_back(style);
  }
  if (styles.empty()) {  // the numbers of points and atoms, in editors of their own
    const FoldStyle style = field.Where == Setting<P>(&P::Starfold_IFS_Points)
                                ? FoldStyle::UserIfs
                                : FoldStyle::Molecule;
    styles.push_back(static_cast<int>(style));
  }
  return styles;
}

Shown ShownInProfile(const Field<P>& field) {
  if (auto beside = ShownBeside(field.Where)) return *std::move(beside);
  for (const StarfoldRow& row : BoxRows()) {
    for (int style = 0; style < kStyleCount; ++style) {
      if (&FieldOf(row, style) != &field) continue;
      return {.Page = StarfoldPageName(static_cast<int>(row.Page)), .Kind = row.Kind};
    }
  }
  return {.Page = StarfoldPageName(static_cast<int>(StarfoldPage::Shape))};
}

std::string ProfileJson() {
  Json rows('[');
  for (const Field<P>& field : ProfileFields()) {
    const Shown shown = ShownInProfile(field);
    const std::vector<int> styles = StylesOf(field, shown);
    Json row = RowOf(ProfileFields(), field, shown);
    if (styles.size() < kStyleCount) {
      Json list('[');
      for (const int style : styles) list.Add(std::to_string(style));
      row.Put("styles", list.Text());
    }
    rows.Add(row.Text());
  }
  return rows.Text();
}

/// The captions that a style has of its own, by the setting.
std::string CaptionsOf(Integer style) {
  const StyleFacts& facts = FactsOf(style);
  Json captions('{');
  for (const StyleCaption& caption : facts.Captions) {
    const std::vector<std::string> parts = LabelParts(caption.Text);
    std::size_t place = 0;
    for (const StarfoldRow& row : StarfoldRows()) {
      if (row.Label != caption.Label || !IsShown(row, style) || place >= parts.size()) continue;
      captions.Put(FieldOf(row, style).Name, JsonText(parts[place++]));
    }
  }
  if (!facts.OwnColorCaption.empty()) {
    captions.Put(FieldOf(Setting<P>(&P::Starfold_ColorMult)).Name,
                 JsonText(LabelParts(facts.OwnColorCaption).front()));
  }
  return captions.Text();
}

std::string AllCaptions() {
  Json styles('{');
  for (Integer style = 0; style < kStyleCount; ++style) {
    styles.Put(std::to_string(style), CaptionsOf(style));
  }
  return styles.Text();
}

// --- Points, atoms, composites, advanced settings ---

template <class Record>
std::string PlainRows(std::span<const Field<Record>> fields) {
  Json rows('[');
  for (const Field<Record>& field : fields) {
    if (field.Odd.InDialog) rows.Add(RowOf(fields, field, {}).Text());
  }
  return rows.Text();
}

std::string IfsPointJson() {
  Json rows('[');
  for (const Field<IfsPoint>& field : IfsPointFields()) {
    Shown shown;
    if (field.Where == Setting<IfsPoint>(&IfsPoint::IFS_Axis)) shown.Choices = {"X", "Y", "Z"};
    rows.Add(RowOf(IfsPointFields(), field, shown).Text());
  }
  return rows.Text();
}

std::string AtomPointJson() {
  Json rows('[');
  for (const Field<AtomPoint>& field : AtomPointFields()) {
    Shown shown;
    if (field.Where == Setting<AtomPoint>(&AtomPoint::Atom_Element)) {
      for (int i = 1; i <= kElementCount; ++i) shown.Choices.push_back(ElementInfo(i).Name);
    }
    if (field.Where == Setting<AtomPoint>(&AtomPoint::Atom_Structure)) {
      for (int i = 0; i < kAtomStructureCount; ++i) {
        shown.Choices.push_back(Trimmed(AtomStructureName(i)));
      }
    }
    rows.Add(RowOf(AtomPointFields(), field, shown).Text());
  }
  return rows.Text();
}

std::string CompositeJson() {
  const std::string_view page = UniversePageName(static_cast<int>(UniversePage::Composites));
  Json rows('[');
  for (const Field<CompositeProfile>& field : CompositeFields()) {
    Shown shown{.Page = page};
    if (field.Where == Setting<CompositeProfile>(&CompositeProfile::CompFold_Count)) {
      shown.Range = Limits{0, kMaxMembers};
    }
    rows.Add(RowOf(CompositeFields(), field, shown).Text());
  }
  return rows.Text();
}

std::string MostJson() {
  Json most('{');
  most.Put("ifsPoints", std::to_string(kMaxIfsPoints));
  most.Put("atoms", std::to_string(kMaxAtoms));
  most.Put("members", std::to_string(kMaxMembers));
  return most.Text();
}

std::string SetJson(FactorySet set, std::string_view name) {
  const auto records = std::make_unique<SettingsRecords>();
  LoadFactorySet(*records, set);
  Json profiles('['), composites('['), themes('[');
  for (const P& profile : records->Profiles) profiles.Add(JsonText(profile.UniFoldName));
  for (const auto& composite : records->Composites) {
    composites.Add(JsonText(composite.CompFoldName));
  }
  for (int i = 1; i <= kThemeCount; ++i) themes.Add(JsonText(FactoryThemeName(i)));
  Json json('{');
  json.Put("name", JsonText(name));
  json.Put("profiles", profiles.Text());
  json.Put("composites", composites.Text());
  json.Put("themes", themes.Text());
  return json.Text();
}

}  // namespace

std::string JsonText(std::string_view text) {
  const std::string valid = IsUtf8(text) ? std::string(text) : FromWindows1252(text);
  std::string json = "\"";
  for (const char c : valid) {
    if (c == '"' || c == '\\') json += '\\';
    if (static_cast<unsigned char>(c) < ' ') {
      constexpr char digits[] = "0123456789abcdef";
      json.append("\\u00").append(1, digits[c >> 4]).append(1, digits[c & 15]);
    } else {
      json += c;
    }
  }
  return json + "\"";
}

std::string SettingsTableJson() {
  Json sets('[');
  sets.Add(SetJson(FactorySet::Starfolds4x, "Starfolds 4.x"));
  sets.Add(SetJson(FactorySet::Starfolds20, "Starfolds 2.0"));
  Json table('{');
  table.Put("universe", UniverseJson());
  table.Put("profile", ProfileJson());
  table.Put("composite", CompositeJson());
  table.Put("advanced", PlainRows(AdvancedFields()));
  table.Put("ifsCenter", PlainRows(IfsCenterFields()));
  table.Put("ifsPoint", IfsPointJson());
  table.Put("atomCenter", PlainRows(AtomCenterFields()));
  table.Put("atomPoint", AtomPointJson());
  table.Put("most", MostJson());
  table.Put("styles", JsonTexts(StyleNames()));
  table.Put("captions", AllCaptions());
  table.Put("sets", sets.Text());
  return table.Text();
}

}  // namespace starfolds::web
