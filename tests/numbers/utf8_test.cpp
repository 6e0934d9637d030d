#include "numbers/utf8.h"

#include <gtest/gtest.h>

namespace starfolds {
namespace {

TEST(Utf8, WellFormedTextIsToldFromBytes) {
  for (const char* good : {"", "plain", "\xC3\xA4", "\xE2\x82\xAC", "\xF0\x9F\x8C\x8C",
                           "\xEF\xBF\xBF", "\xF4\x8F\xBF\xBF", "\xED\x9F\xBF"}) {
    EXPECT_TRUE(IsUtf8(good)) << good;
  }
  for (const char* bad : {"\x80", "a\xE4", "\xC0\x80", "\xC3", "\xE2\x82", "\xE0\x80\x80",
                          "\xED\xA0\x80", "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xFF"}) {
    EXPECT_FALSE(IsUtf8(bad)) << bad;
  }
}

TEST(Utf8, OldBytesBecomeTheirCharacters) {
  EXPECT_EQ(FromWindows1252("a\x80\x99\xE4\xFF"), "a\xE2\x82\xAC\xE2\x84\xA2\xC3\xA4\xC3\xBF");
  for (int byte = 0; byte < 256; ++byte) {
    EXPECT_TRUE(IsUtf8(FromWindows1252(std::string(1, static_cast<char>(byte))))) << byte;
  }
}

}  // namespace
}  // namespace starfolds
