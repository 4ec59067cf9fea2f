#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "persistence/Itemleser.h"
#include "persistence/Tips.h"
#include "station/Text.h"
#include "tests/Tabelle.h"
#include "tests/persistence/Ordner.h"

namespace vesk {
namespace {

TEST(Itemleser, Items) {
  for (const Tabellenzeile& zeile : Tabelle("persistence/Items.csv")) {
    for (const char* zeilenende : {"\n", "\r\n"}) {
      const std::string bytes = Ersetzt(zeile["datei"], "\n", zeilenende);
      Itemleser leser{bytes};
      std::string items;
      while (const auto item = leser.Naechstes()) items += '<' + std::string(*item) + '>';
      EXPECT_EQ(Ersetzt(items, "\r", ""), zeile["items"]) << zeile.text;
      EXPECT_TRUE(leser.AmEnde());
    }
  }
}

TEST(Windows1252, AlleBytesHinUndZurueck) {
  std::string alle;
  for (int byte = 0; byte < 256; ++byte) alle += static_cast<char>(byte);
  const std::string utf8 = NachUtf8(alle);
  EXPECT_EQ(Zeichenzahl(utf8), 256U);
  EXPECT_EQ(NachWindows1252(utf8), alle);
  EXPECT_EQ(utf8.substr(128, 85), "€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ\u00A0¡");
}

TEST(Windows1252, WasFehltWirdFragezeichen) {
  const std::pair<const char*, const char*> faelle[] = {
      {"Ω=1", "?=1"},
      {"😀!", "?!"},
      {"\xC2\x80", "?"},             // U+0080 is no character of Windows-1252, its byte is the euro sign
      {"\xE4", "?"},                 // bare byte
      {"a\xE2\x82", "a??"},          // cut off
      {"\xC0\xAF", "??"},            // overlong
      {"\xED\xA0\x80", "???"},       // surrogate
      {"\xF4\x90\x80\x80", "????"},  // beyond Unicode
      {"\xC3\x28", "?("},            // no continuation
  };
  for (const auto& [utf8, bytes] : faelle) EXPECT_EQ(NachWindows1252(utf8), bytes) << utf8;
  EXPECT_FALSE(IstUtf8("abc"));
  EXPECT_FALSE(IstUtf8("\xE4 ndern"));
}

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
  const std::string bytes = Inhalt(VESK_DATEN "/TIPOFDAY.TXT");
  const std::vector<std::string> tips = TipsLesen(bytes);
  EXPECT_GE(tips.size(), 25U);
  EXPECT_EQ(std::set<std::string>(tips.begin(), tips.end()).size(), tips.size());
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), std::ssize(tips));
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\r'), std::ssize(tips)) << "CR LF";
}

}  // namespace
}  // namespace vesk
