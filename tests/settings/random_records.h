// Records with random contents in their ranges, made by walking the field table.
#pragma once

#include <random>
#include <string>

#include "numbers/text.h"
#include "platform/key_value_tree.h"
#include "settings/fields.h"
#include "settings/stored_records.h"

namespace starfolds {

class RandomRecords {
 public:
  explicit RandomRecords(unsigned seed) : engine_(seed) {}

  SettingsRecords Make() {
    SettingsRecords records;
    Fill(records.Universe, UniverseFields());
    Fill(records.Advanced, AdvancedFields());
    ClampAdvanced(records.Advanced);
    for (StarfoldProfile& profile : records.Profiles) FillProfile(profile);
    for (CompositeProfile& composite : records.Composites) {
      Fill(composite, CompositeFields());
      ClampComposite(composite);
      for (int i = 0; i < composite.MemberCount(); ++i) {
        composite.CompFold_Type[i] = static_cast<Integer>(Draw(0, kProfileCount - 1));
      }
    }
    return records;
  }

 private:
  double Draw(double low, double high) {
    return std::round(std::uniform_real_distribution<double>(low, high)(engine_));
  }

  std::string Name() {
    const char* names[] = {"Rings", "a = b", "Größe 東京", "\xC3\xA9toile  2", "", "x"};
    return names[static_cast<int>(Draw(0, 5))];
  }

  template <class Record>
  void Fill(Record& record, std::span<const Field<Record>> fields) {
    for (const Field<Record>& field : fields) {
      const double high = field.Rule == RangeRule::Fixed ? field.High : 1;
      const double step = high - field.Low < 20 ? 0.001 : 1;
      SetFieldNumber(record, field, Draw(field.Low / step, high / step) * step);
      if (std::holds_alternative<std::string Record::*>(field.Where)) {
        SetFieldText(record, field, Name());
      }
    }
  }

  void FillProfile(StarfoldProfile& profile) {
    Fill(profile, ProfileFields());
    Fill(profile.IFS, IfsCenterFields());
    Fill(profile.Atom, AtomCenterFields());
    for (IfsPoint& point : profile.IFS.Points) Fill(point, IfsPointFields());
    for (AtomPoint& atom : profile.Atom.Atoms) {
      Fill(atom, AtomPointFields());
      atom.Atom_Count = AtomPoints(atom.Atom_Structure);
    }
    ClampProfile(profile);
  }

  std::mt19937 engine_;
};

/// Copies the advanced settings that no template holds.
inline void CopyUntemplated(const AdvancedSettings& from, AdvancedSettings& to) {
  to.Adv_DispBackG = from.Adv_DispBackG;
  to.Adv_PerfMult = from.Adv_PerfMult;
  to.Adv_EffectFPC = from.Adv_EffectFPC;
}

/// All that the records hold, in a form that compares.
inline MemoryTree Contents(SettingsRecords records) {
  MemoryTree tree;
  SaveSettings(tree, records);
  return tree;
}

}  // namespace starfolds
