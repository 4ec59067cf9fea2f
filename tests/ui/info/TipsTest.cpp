#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>

#include "Tips.h"

namespace vesk {
namespace {

TEST(Tips, Zeilen) {
  const std::pair<std::string, std::vector<std::string>> faelle[] = {
      {"", {}},
      {" \r\n\t\r\n\n", {}},
      {"eins\r\nzwei\r\n", {"eins", "zwei"}},
      {"\n eins \n\nzwei", {"eins", "zwei"}},
      {"gr\xFC\xDF dich\r\n\x84hm\x93", {"grüß dich", "„hm“"}},
      {"grüß dich\n", {"grüß dich"}},
      {"\xEF\xBB\xBFgrüß\n", {"grüß"}},
      {std::string("a\0b\n", 4), {std::string("a\0b", 3)}},
  };
  for (const auto& [datei, tips] : faelle) EXPECT_EQ(TipsLesen(datei), tips) << datei;
}

TEST(Tips, MitgelieferteDatei) {
  std::ifstream datei(VESK_DATEN "/TIPOFDAY.TXT", std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(datei), {}};
  const std::vector<std::string> tips = TipsLesen(bytes);
  EXPECT_GE(tips.size(), 25U);
  EXPECT_EQ(std::set<std::string>(tips.begin(), tips.end()).size(), tips.size());
  std::size_t zeilenenden = 0;
  for (std::size_t i = 1; i < bytes.size(); ++i) {
    if (bytes[i] != '\n') continue;
    ++zeilenenden;
    ASSERT_EQ(bytes[i - 1], '\r');
  }
  EXPECT_EQ(zeilenenden, tips.size());
}

}  // namespace
}  // namespace vesk
