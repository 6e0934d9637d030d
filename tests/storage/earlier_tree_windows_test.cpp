#include "storage/earlier_tree.h"

#include "settings/first_run.h"
#include "settings/stored_records.h"
#include "storage/stored_tree.h"
#include "storage/windows_path.h"

namespace starfolds {
namespace {

const std::wstring kPlace = L"SOFTWARE\\Tessellane\\TSLN_Starfold\\";
const std::wstring kVirtualPlace =
    L"SOFTWARE\\Classes\\VirtualStore\\MACHINE\\SOFTWARE\\WOW6432Node\\Tessellane\\TSLN_Starfold\\";

/// Two empty keys take the places of the hives in this process.
class EarlierTreeTest : public TreeTest {
 protected:
  EarlierTreeTest() {
    for (const auto& [hive, name] : kHives) {
      HKEY instead = nullptr;
      EXPECT_EQ(RegCreateKeyW(HKEY_CURRENT_USER, name, &instead), ERROR_SUCCESS);
      EXPECT_EQ(RegOverridePredefKey(hive, instead), ERROR_SUCCESS);
      RegCloseKey(instead);
    }
  }
  ~EarlierTreeTest() override {
    for (const auto& [hive, name] : kHives) RegOverridePredefKey(hive, nullptr);
    for (const auto& [hive, name] : kHives) RegDeleteTreeW(HKEY_CURRENT_USER, name);
  }

  static void Put(HKEY hive, const std::wstring& section, const wchar_t* name,
                  const std::wstring& text, DWORD type = REG_SZ, int moreBytes = 0) {
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyW(hive, section.c_str(), &key), ERROR_SUCCESS);
    const auto* const bytes = reinterpret_cast<const BYTE*>(text.c_str());
    const DWORD size = static_cast<DWORD>(text.size() * sizeof(wchar_t)) + moreBytes;
    EXPECT_EQ(RegSetValueExW(key, name, 0, type, bytes, size), ERROR_SUCCESS);
    RegCloseKey(key);
  }

  // The machine's first: afterwards HKEY_CURRENT_USER is another key.
  static inline const std::pair<HKEY, const wchar_t*> kHives[] = {
      {HKEY_LOCAL_MACHINE, L"StarfoldsTestMachine"}, {HKEY_CURRENT_USER, L"StarfoldsTestUser"}};

  const std::unique_ptr<KeyValueTree> Earlier = EarlierTree();
};

TEST_F(EarlierTreeTest, HasTextsAndNothingElse) {
  struct Case {
    std::wstring Text;
    DWORD Type;
    int MoreBytes;  // 2: with the terminator
    std::optional<std::string> Expected;
  };
  for (const Case& c :
       {Case{L"5000", REG_SZ, 2, "5000"}, Case{L"5000", REG_SZ, 0, "5000"},
        Case{L"", REG_SZ, 2, ""}, Case{L"", REG_SZ, 0, ""}, Case{L"ab", REG_SZ, -1, "a"},
        Case{L"%A%", REG_EXPAND_SZ, 2, "%A%"}, Case{L"\u00E4\u65E5", REG_SZ, 2, "\u00E4\u65E5"},
        Case{L"12", REG_DWORD, 0, {}}, Case{L"12", REG_BINARY, 0, {}},
        Case{L"12", REG_MULTI_SZ, 2, {}}, Case{L"\xD800 x", REG_SZ, 2, {}},
        Case{std::wstring(4095, 'x'), REG_SZ, 2, std::string(4095, 'x')},
        Case{std::wstring(4096, 'x'), REG_SZ, 2, {}},
        Case{std::wstring(500'000, 'x'), REG_SZ, 2, {}}}) {
    Put(HKEY_CURRENT_USER, kPlace + L"General", L"x", c.Text, c.Type, c.MoreBytes);
    EXPECT_EQ(Earlier->Read(kUser, "SOFTWARE\\Tessellane\\TSLN_Starfold\\General", "X"),
              c.Expected);
  }
  EXPECT_EQ(Earlier->Read(kUser, "", "x"), std::nullopt);
  EXPECT_EQ(Earlier->Read(kUser, "SOFTWARE\\\xFF", "x"), std::nullopt);
  EXPECT_FALSE(Earlier->Write(kUser, "SOFTWARE\\Tessellane", "x", "1"));
}

TEST_F(EarlierTreeTest, IsImportedFromAllItsPlaces) {
  const std::pair<HKEY, std::wstring> places[] = {{HKEY_LOCAL_MACHINE, kPlace},
                                                  {HKEY_CURRENT_USER, kVirtualPlace},
                                                  {HKEY_CURRENT_USER, kPlace}};
  Long stars = 700;
  for (const auto& [hive, place] : places) {  // each one comes before those that are filled already
    std::filesystem::remove(File);
    Put(hive, place + L"General", L"AnimationType", L"0");
    Put(hive, place + L"Universe", L"Universe_Stars", std::to_wstring(++stars));
    Put(hive, place + L"Universe\\Starfold49", L"_UniFoldName", L"\u65E5\u672C");
    Put(hive, place + L"Universe\\Starfold49", L"Starfold_Radius", L"1e999");
    Put(hive, place + L"Universe\\Starfold49", L"Starfold_NumLevels", L"x", REG_BINARY);
    StoredTree stored(File);
    ImportEarlierSettings(stored.Tree, *Earlier);
    EXPECT_TRUE(HasMark(stored.Tree, kAnimationType));
    const SettingsRecords records = LoadSettings(stored.Tree);
    EXPECT_EQ(records.Universe.Universe_Stars, stars);
    EXPECT_EQ(records.Profiles[49].UniFoldName, "\u65E5\u672C");
  }
}

}  // namespace
}  // namespace starfolds
