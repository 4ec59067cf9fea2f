#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Itemleser.h"
#include "Windows1252.h"

namespace vesk {
namespace {

TEST(Itemleser, Items) {
  using Items = std::vector<std::string>;
  const std::pair<const char*, Items> faelle[] = {
      {"", {}},
      {" \r\n\r\n ", {}},
      {"a,b\r\nc\nd", {"a", "b", "c", "d"}},
      {" a b , \tc\t\r\n", {"a b", "c"}},
      {"\" a \",\"b,c\"\r\n", {" a ", "b,c"}},
      {"a,,b\r\n\r\nc\r\n\r\n", {"a", "", "b", "", "c"}},
      {"\"\",\"\"", {"", ""}},
      {"a,", {"a"}},
      {"\"a\" ,b", {"a", "b"}},
      {"\"Haus \"Erika\" 5\",b", {"Haus ", "b"}},
      {"\"a\r\nb\",c", {"a\r\nb", "c"}},
      {"\"a\r\n\",c", {"a\r\n", "c"}},
      {"\"offen\r\n\"b\"\r\nc", {"offen", "b", "c"}},
      {"\"offen\r\n\"\"\r\nc", {"offen", "", "c"}},
      {"\"offen, auch hier\r\n  \"b\",c", {"offen, auch hier", "b", "c"}},
      {"a\r\n\"offen", {"a", "offen"}},
      {"\"", {""}},
      {"a\"b,c", {"a\"b", "c"}},
  };
  for (const auto& [bytes, soll] : faelle) {
    Itemleser leser{bytes};
    Items ist;
    while (const auto item = leser.Naechstes()) ist.emplace_back(*item);
    EXPECT_EQ(ist, soll) << bytes;
    EXPECT_TRUE(leser.AmEnde());
  }
}

TEST(Windows1252, AlleBytesHinUndZurueck) {
  std::string alle;
  for (int byte = 0; byte < 256; ++byte) alle += static_cast<char>(byte);
  const std::string utf8 = NachUtf8(alle);
  EXPECT_TRUE(IstUtf8(utf8));
  EXPECT_EQ(Zeichenzahl(utf8), 256U);
  EXPECT_EQ(NachWindows1252(utf8), alle);
}

TEST(Windows1252, WasFehltWirdFragezeichen) {
  const std::pair<const char*, const char*> faelle[] = {
      {"äöüß€", "\xE4\xF6\xFC\xDF\x80"},
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

}  // namespace
}  // namespace vesk
