// The functions that the worker calls. One engine per module: its settings, its surface and at most
// one run. Texts go through two buffers, one of each direction; they are UTF-8, or bytes of files.
#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

#include "host_calls.h"
#include "named_settings.h"
#include "numbers/conversions.h"
#include "platform/files.h"
#include "process/process_state.h"
#include "settings/factory.h"
#include "settings/registry.h"
#include "settings/share_link.h"
#include "settings/stored_records.h"
#include "settings/templates.h"
#include "settings_json.h"
#include "universe/host_surface.h"
#include "universe/single_body_run.h"
#include "universe/universe_run.h"
#include "web_surface.h"

namespace starfolds::web {
namespace {

using Kind = LinkedScene::Kind;

constexpr char kTemplatePath[] = "page.sfd";

struct Engine {
  Engine() {
    LoadFactorySettings(*Records, FactorySet::Starfolds4x, 1);
    Process->Tree = &Tree;
    Process->Events = &Clock;
    Process->Desktop = &Desktop;
    Process->Screen.hDCDraw = &Canvas;
  }

  // Large; kept off the stack.
  std::unique_ptr<SettingsRecords> Records = std::make_unique<SettingsRecords>();
  std::unique_ptr<ProcessState> Process = std::make_unique<ProcessState>();
  WebSurface Canvas;
  WebPump Clock;
  MemoryDesktop Desktop;
  /// The advanced values as texts: a template that is saved has those of the one that was opened.
  MemoryTree Tree;
  LinkedScene Scene;
  std::string Input;
  std::string Output;
};

Engine& TheEngine() {
  static Engine engine;
  return engine;
}

/// The first `size` bytes of the input.
std::string_view InputStart(std::int32_t size) {
  const std::string& input = TheEngine().Input;
  return std::string_view(input).substr(0, static_cast<std::size_t>(std::max(size, 0)));
}

std::string_view InputRest(std::int32_t size) {
  return std::string_view(TheEngine().Input).substr(InputStart(size).size());
}

void Answer(std::string text) { TheEngine().Output = std::move(text); }

/// An empty answer means success.
void AnswerFault(const std::optional<std::string>& fault) { Answer(fault.value_or(std::string())); }

void AnswerValues(SettingsRecords& records) {
  std::string json;
  ForEachSetting(records, InputStart(INT32_MAX),
                 [&](const std::string& name, const std::string& text) {
                   json += (json.empty() ? "" : ",") + JsonText(name) + ":" + JsonText(text);
                 });
  Answer("{" + json + "}");
}

/// Stores the advanced values that are not the defaults.
void StoreAdvanced(KeyValueTree& tree, const AdvancedSettings& advanced) {
  for (const Field<AdvancedSettings>& field : AdvancedFields()) {
    const std::string text = FieldText(advanced, field);
    if (text == FieldText(AdvancedSettings(), field)) continue;
    RegistryWrite(tree, sections::kAdvanced, field.Name, text);
  }
}

bool Has(std::string_view name, std::string_view word) { return name.starts_with(word); }

/// Whether the run shows a change of the setting only after it has begun anew.
bool RestartsRun(std::string_view name) {
  const LinkedScene& scene = TheEngine().Scene;
  if (name == "Adv_TimeDelay" || name == "LockMessage" || Has(name, "Adv_Font") ||
      name == "Adv_WinResize" || name == "Adv_MouseMove" || name == "Adv_DispBackG") {
    return false;
  }
  const std::size_t slash = name.find('/');
  if (scene.What == Kind::Universe || slash == std::string_view::npos) return true;
  const std::string_view record = name.substr(0, slash);
  const std::string body = std::to_string(scene.Body);
  if (scene.What == Kind::Profile) return record == "Starfold" + body;
  return record == "CompFold" + body || Has(record, "Starfold");
}

void ReadSettings(ProcessState& process, const SettingsRecords& records) {
  process.Advanced = records.Advanced;
  SetupDisplay(process, TheEngine().Canvas, TheEngine().Scene.Seed.value_or(0));
  TakeUniverseSettings(process, records, false);
}

void RunBody(ProcessState& process, const LinkedScene& scene) {
  SingleBodyRun(process, {.Body = scene.Body,
                          .IsComposite = scene.What == Kind::Composite,
                          .Stars = ClampTo<Long>(process.Universe.Universe_Stars, 10, 30000),
                          .Trail = ClampTo<Integer>(process.Universe.Universe_STrail, 1, 999)});
}

Kind KindOfNumber(std::int32_t kind) {
  if (kind == 1) return Kind::Profile;
  return kind == 2 ? Kind::Composite : Kind::Universe;
}

std::string SceneJson(const LinkedScene& scene) {
  const char* kinds[] = {"universe", "profile", "composite"};
  std::string json =
      "{\"fault\":\"\",\"scene\":{\"kind\":" + JsonText(kinds[static_cast<int>(scene.What)]);
  if (scene.What != Kind::Universe) json += ",\"index\":" + std::to_string(scene.Body);
  json += "}";
  if (scene.Seed) json += ",\"seed\":\"" + std::to_string(*scene.Seed) + "\"";
  if (scene.Surface) {
    json += ",\"size\":{\"width\":" + std::to_string(scene.Surface->Width) +
            ",\"height\":" + std::to_string(scene.Surface->Height) + "}";
  }
  return json + "}";
}

}  // namespace
}  // namespace starfolds::web

// The interface. Numbers beyond their range are clamped or ignored.
namespace {
using namespace starfolds;
using namespace starfolds::web;
}  // namespace

extern "C" {

/// Makes room for so many bytes of input, and returns where they are written.
STARFOLDS_EXPORT(input) char* EngineInput(std::int32_t size) {
  std::string& input = TheEngine().Input;
  input.assign(static_cast<std::size_t>(std::max(size, 0)), '\0');
  return input.data();
}

STARFOLDS_EXPORT(output) const char* EngineOutput() { return TheEngine().Output.data(); }

STARFOLDS_EXPORT(outputSize) std::int32_t EngineOutputSize() {
  return static_cast<std::int32_t>(TheEngine().Output.size());
}

STARFOLDS_EXPORT(table) void EngineTable() { Answer(SettingsTableJson()); }

/// Input: a name. Output: the text of the setting, or nothing.
STARFOLDS_EXPORT(get) void EngineGet() {
  Answer(SettingText(*TheEngine().Records, InputStart(INT32_MAX)).value_or(std::string()));
}

/// Input: a name of `nameSize` bytes and the value. Output: a message or nothing. Returns whether
/// the run must begin anew to show the change.
STARFOLDS_EXPORT(set) std::int32_t EngineSet(std::int32_t nameSize) {
  Engine& engine = TheEngine();
  const std::string name(InputStart(nameSize));
  const auto fault = ChangeSetting(*engine.Records, name, InputRest(nameSize));
  AnswerFault(fault);
  if (fault) return 0;
  if (const auto* field = FindField(AdvancedFields(), name)) {
    RegistryWrite(engine.Tree, sections::kAdvanced, name,
                  FieldText(engine.Records->Advanced, *field));
  }
  engine.Process->Screen.FrameDelayMs = engine.Records->Advanced.Adv_TimeDelay;
  return RestartsRun(name) ? 1 : 0;
}

/// Input: a record, see `ForEachSetting`. Output: an object of names and texts.
STARFOLDS_EXPORT(values) void EngineValues() { AnswerValues(*TheEngine().Records); }

/// The same for the settings of factory set 4.x.
STARFOLDS_EXPORT(factoryValues) void EngineFactoryValues() {
  const auto records = std::make_unique<SettingsRecords>();
  LoadFactorySettings(*records, FactorySet::Starfolds4x, 1);
  AnswerValues(*records);
}

/// Input: the bytes of a template. Output: a message or nothing.
STARFOLDS_EXPORT(openTemplate) void EngineOpenTemplate() {
  Engine& engine = TheEngine();
  MemoryFiles files;
  files.Contents[kTemplatePath] = std::move(engine.Input);
  TemplateFile file(files);
  file.TemplateFileName = kTemplatePath;
  const auto fault = ReadTemplate(file, kTemplatePath, *engine.Records);
  if (!fault) CopyAdvancedFromTemplate(file, engine.Tree);
  AnswerFault(fault);
}

/// Output: the bytes of a template.
STARFOLDS_EXPORT(saveTemplate) void EngineSaveTemplate() {
  SettingsRecords& records = *TheEngine().Records;
  MemoryFiles files;
  TemplateFile file(files);
  file.TemplateFileName = kTemplatePath;
  WriteTemplate(file, TheEngine().Tree, records.Universe, records.Profiles, records.Composites, {});
  Answer(std::move(files.Contents[kTemplatePath]));
}

STARFOLDS_EXPORT(useFactory) void EngineUseFactory(std::int32_t set) {
  SettingsRecords& records = *TheEngine().Records;
  TheEngine().Tree = MemoryTree();
  records = SettingsRecords();
  LoadFactorySettings(records, set == 1 ? FactorySet::Starfolds20 : FactorySet::Starfolds4x, 1);
}

STARFOLDS_EXPORT(applyTheme) void EngineApplyTheme(std::int32_t theme) {
  LoadFactoryTheme(TheEngine().Records->Universe, theme, false);
}

STARFOLDS_EXPORT(applyFactoryProfile)
void EngineApplyFactoryProfile(std::int32_t profile, std::int32_t set, std::int32_t from) {
  if (profile < 0 || profile >= kProfileCount) return;
  StarfoldProfile& record = TheEngine().Records->Profiles[static_cast<std::size_t>(profile)];
  LoadFactoryProfile(record, set == 1 ? FactorySet::Starfolds20 : FactorySet::Starfolds4x, from);
  ClampProfile(record);
}

/// Output: the text of a link to the present scene.
STARFOLDS_EXPORT(linkText) void EngineLinkText(std::int32_t withSeed, std::int32_t withSize) {
  Engine& engine = TheEngine();
  LinkedScene scene = engine.Scene;
  if (withSeed == 0) scene.Seed.reset();
  if (withSize != 0 && engine.Canvas.Width() > 0 && engine.Canvas.Height() > 0) {
    scene.Surface = {static_cast<Integer>(engine.Canvas.Width()),
                     static_cast<Integer>(engine.Canvas.Height())};
  }
  Answer(LinkText(*engine.Records, scene));
}

/// Input: the text of a link. Output: `LinkContents` of protocol.ts as JSON, the seed as text.
STARFOLDS_EXPORT(openLinkText) void EngineOpenLinkText() {
  Engine& engine = TheEngine();
  LinkedScene scene;
  const auto fault = ReadLinkText(InputStart(INT32_MAX), *engine.Records, scene);
  if (!fault) {
    engine.Tree = MemoryTree();
    StoreAdvanced(engine.Tree, engine.Records->Advanced);
  }
  Answer(fault ? "{\"fault\":" + JsonText(*fault) + ",\"scene\":{\"kind\":\"universe\"}}"
               : SceneJson(scene));
}

STARFOLDS_EXPORT(resize) void EngineResize(std::int32_t width, std::int32_t height) {
  TheEngine().Canvas.Resize(RoundedToLimits<Integer>(width), RoundedToLimits<Integer>(height));
}

/// Runs a scene: 0 universes, 1 profile `body`, 2 composite `body`. Returns after `stop` only; but
/// until then each `wait` of the page unwinds the stack.
STARFOLDS_EXPORT(run)
void EngineRun(std::int32_t kind, std::int32_t body, std::uint32_t seedHigh,
               std::uint32_t seedLow) {
  Engine& engine = TheEngine();
  ProcessState& process = *engine.Process;
  engine.Scene.What = KindOfNumber(kind);
  const int most = engine.Scene.What == Kind::Composite ? kCompositeCount : kProfileCount;
  engine.Scene.Body = static_cast<Integer>(std::clamp<std::int32_t>(body, 0, most - 1));
  engine.Scene.Seed = std::uint64_t{seedHigh} << 32U | seedLow;
  ReadSettings(process, *engine.Records);
  process.Requests.BeginRun();
  engine.Canvas.BeginRun();
  ResetSurface(engine.Canvas);
  if (engine.Scene.What == Kind::Universe) {
    UniverseRun(process);
  } else {
    RunBody(process, engine.Scene);
  }
}

/// The run returns when it is resumed.
STARFOLDS_EXPORT(stop) void EngineStop() { TheEngine().Process->Requests.AskStop(); }

STARFOLDS_EXPORT(frames) std::int32_t EngineFrames() { return TheEngine().Canvas.Frames(); }

/// Output: 16 hexadecimal digits.
STARFOLDS_EXPORT(hash) void EngineHash() {
  char digits[17];
  std::snprintf(digits, sizeof digits, "%016" PRIx64, TheEngine().Canvas.Hash());
  Answer(digits);
}

}  // extern "C"
