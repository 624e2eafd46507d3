#include "ustring/ustring.h"

#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <unordered_set>
#include <vector>

#include "tests/support/scenario.h"

namespace {

typedef std::vector<unsigned short> Units;

Units UnitsOf(const ustring& text) {
    Units units;
    for (const unsigned short* unit = text.c_str_utf16(); *unit != 0; ++unit) {
        units.push_back(*unit);
    }
    return units;
}

ustring FromUnits(Units units) {
    units.push_back(0);
    return ustring(units.data());
}

const char kAccented[] = "\xC3\xA9";         // e with acute, one character
const char kDecomposed[] = "e\xCC\x81";      // the same as two
const char kEmoji[] = "\xF0\x9F\x98\x80";    // outside the basic plane
const char kSurrogate[] = "a\xED\xA0\x80z";  // a surrogate's bytes, ill-formed
const char* const kIllFormed[] = {"\xFF",  "\xC3", "\xC0\x80", kSurrogate, "\xF5\x80\x80\x80",
                                  "ok\x80"};

TEST(UString, HoldsBytesAndUnits) {
    EXPECT_EQ(ustring(kAccented).size(), 2u);
    EXPECT_EQ(ustring(kAccented).length(), 2u);
    EXPECT_EQ(UnitsOf(kAccented), Units{0xE9});
    EXPECT_EQ(UnitsOf(kEmoji), (Units{0xD83D, 0xDE00}));
    EXPECT_EQ(FromUnits({0xD83D, 0xDE00, 'x'}), ustring(kEmoji) + 'x');
    EXPECT_TRUE(ustring().empty());
    EXPECT_EQ(UnitsOf(ustring()), Units());
    EXPECT_EQ(ustring('c'), "c");
    EXPECT_EQ(ustring(std::string("ab\0cd", 5)), "ab");
    EXPECT_EQ(ustring(std::string_view("abcd", 3)), "abc");
}

TEST(UString, DropsTheUnitsWhenTheBytesChange) {
    const std::vector<std::pair<const char*, void (*)(ustring&)>> changes = {
        {"append", [](ustring& s) { s.append("abc"); }},
        {"append byte", [](ustring& s) { s += 'x'; }},
        {"append ustring", [](ustring& s) { s += s; }},
        {"assign", [](ustring& s) { s = "new"; }},
        {"replace", [](ustring& s) { s.replace('/', ':'); }},
        {"trim", [](ustring& s) { s.trim(" "); }},
        {"index", [](ustring& s) { s[0] = '-'; }},
        {"clear", [](ustring& s) { s.clear(); }}};
    for (const auto& [name, change] : changes) {
        ustring text(" a/b ");
        text.c_str_utf16();
        change(text);
        EXPECT_EQ(UnitsOf(text), UnitsOf(ustring(text.c_str()))) << name;
    }
}

TEST(UString, WarnsAboutIllFormedBytesAtEachRequest) {
    for (const char* const bytes : kIllFormed) {
        const ustring text(bytes);
        EXPECT_FALSE(ustring::is_valid(text));
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(CaptureStderr([&] { EXPECT_EQ(*text.c_str_utf16(), 0); }),
                      "Warning: u_strFromUTF8: error code 10 at line 921\n");
        }
        EXPECT_STREQ(text.c_str(), bytes);
    }
    EXPECT_TRUE(ustring::is_valid(""));
    EXPECT_TRUE(ustring::is_valid(kEmoji));
}

TEST(UString, LoneSurrogatesGiveTheEmptyString) {
    for (const Units& units : {Units{0xD83D}, Units{'a', 0xDE00, 'b'}, Units{0xDE00, 0xD83D}}) {
        EXPECT_EQ(CaptureStderr([&] {
                      const ustring text = FromUnits(units);
                      EXPECT_TRUE(text.empty());
                      EXPECT_EQ(*text.c_str_utf16(), 0);
                  }),
                  "Warning: u_strToUTF8: error code 10 at line 888\n");
    }
    ustring text("kept");
    CaptureStderr([&] { text += static_cast<unsigned short>(0xD800); });
    EXPECT_TRUE(text.empty());
}

TEST(UString, AppendsToBothForms) {
    const Units more = {0xE9, 'x', 0};
    ustring text("a");
    text += more.data();
    EXPECT_EQ(text, "a\xC3\xA9x");
    EXPECT_EQ(UnitsOf(text), (Units{'a', 0xE9, 'x'}));
    text.append(more.data(), 1).append(static_cast<unsigned short>('y'), 3).append("zzz", 2);
    text.append('b', 2).append(ustring("012345"), 2, 3).append(std::string("6789"), 1, 2);
    EXPECT_EQ(text, "a\xC3\xA9x\xC3\xA9yyyzzbb23478");
    EXPECT_EQ(ustring("a") + static_cast<unsigned short>(0xE9) + more.data() + "s" + 'c',
              "a\xC3\xA9\xC3\xA9xsc");
}

TEST(UString, AssignsPartsAndCopies) {
    ustring text;
    const Units units = {'u', 0xE9, 'v', 0};
    EXPECT_EQ(text.assign("bytes", 3), "byt");
    EXPECT_EQ(text.assign(units.data(), 2), "u\xC3\xA9");
    EXPECT_EQ(text.assign('x', 3), "xxx");
    EXPECT_EQ(text.assign(static_cast<unsigned short>(0xE9), 2), "\xC3\xA9\xC3\xA9");
    EXPECT_EQ(text.assign(std::string("012345"), 2, 3), "234");
    EXPECT_EQ(text.assign(ustring("012345"), 4, ustring::npos), "45");
    EXPECT_EQ(text = static_cast<unsigned short>('u'), "u");
    EXPECT_EQ(text = units.data(), "u\xC3\xA9v");
    EXPECT_EQ(text = std::string("s"), "s");
    EXPECT_EQ(text = 'c', "c");
    EXPECT_EQ(text.assign('x', 0), "");
}

// Every operation that takes text may be given a part of the object itself.
TEST(UString, TakesItsOwnBuffers) {
    const std::vector<std::pair<const char*, void (*)(ustring&)>> cases = {
        {"abcdef", [](ustring& s) { s = s; }},
        {"abcdef", [](ustring& s) { s = s.c_str(); }},
        {"abcdef", [](ustring& s) { s = s.c_str_utf16(); }},
        {"abcdef", [](ustring& s) { s.assign(s.c_str(), 100); }},
        {"ab", [](ustring& s) { s.assign(s.c_str(), 2); }},
        {"ab", [](ustring& s) { s.assign(s.c_str_utf16(), 2); }},
        {"a", [](ustring& s) { s.append('x', 5000).assign(s.c_str_utf16(), 1); }},
        {"ef", [](ustring& s) { s = s.c_str() + 4; }},
        {"ef", [](ustring& s) { s = s.c_str_utf16() + 4; }},
        {"cd", [](ustring& s) { s.assign(s, 2, 2); }},
        {"abcdefabcdef", [](ustring& s) { s += s; }},
        {"abcdefabcdef", [](ustring& s) { s += s.c_str(); }},
        {"abcdefabcdef", [](ustring& s) { s += s.c_str_utf16(); }},
        {"abcdefef", [](ustring& s) { s += s.c_str() + 4; }},
        {"abcdefef", [](ustring& s) { s += s.c_str_utf16() + 4; }},
        {"abcdefbc", [](ustring& s) { s.append(s, 1, 2); }},
        {"", [](ustring& s) { s.trim(s); }},
        {"abcdef", [](ustring& s) { s.swap(s); }}};
    for (std::size_t i = 0; i < cases.size(); ++i) {
        ustring text("abcdef");
        cases[i].second(text);
        EXPECT_EQ(text, cases[i].first) << "case " << i;
    }
}

TEST(UString, ThrowsForAStartBeyondTheEnd) {
    const auto message = [](const std::function<void()>& code) -> std::string {
        try {
            code();
        } catch (const std::out_of_range& error) {
            return error.what();
        }
        return "";
    };
    ustring text("abc");
    EXPECT_EQ(text.substr(3, ustring::npos), "");
    EXPECT_EQ(message([&] { text.substr(4, 0); }), "substr");
    EXPECT_EQ(message([&] { text.assign(text, 4, 0); }), "substr");
    EXPECT_EQ(message([&] { text.append(ustring("x"), 2, 1); }), "substr");
    EXPECT_EQ(message([&] { text.assign(std::string("x"), 2, 1); }), "basic_string::substr");
    EXPECT_EQ(message([&] { text.append(std::string("x"), 2, 1); }), "basic_string::substr");
    EXPECT_EQ(text, "abc");
}

TEST(UString, SearchesLikeThis) {
    const ustring text("a/b/c");
    const ustring::size_type none = ustring::npos;
    EXPECT_EQ(text.find_last_of("/"), 3u);
    EXPECT_EQ(text.find_last_of("/", 2), 1u);
    EXPECT_EQ(ustring().find_last_of("/"), none);
    EXPECT_EQ(text.find("/b"), 1u);
    EXPECT_EQ(text.find("", 2), 2u);
    EXPECT_EQ(text.find("", 5), none);
    EXPECT_EQ(text.find("c", 5), none);
    EXPECT_EQ(text.rfind("/", 2), 1u);
    EXPECT_EQ(text.rfind("c/"), none);
    EXPECT_EQ(text.rfind(""), 4u);
    EXPECT_EQ(text.rfind("a/b/c/d"), none);
    EXPECT_EQ(text.find_first_of(""), none);
    EXPECT_EQ(text.find_last_of(""), none);
    EXPECT_EQ(text.find_first_not_of("", 2), 2u);
    EXPECT_EQ(text.find_last_not_of(""), 4u);
    EXPECT_EQ(ustring(kAccented).find_first_of("\xA9"), 1u) << "sets are sets of bytes";
}

// The searches agree with the standard string's, but for starts at or beyond the end.
TEST(UString, SearchesAgreeWithTheStandardString) {
    std::mt19937 random(1);
    for (int i = 0; i < 3000; ++i) {
        const auto letters = [&](unsigned most) {
            std::string s(random() % (most + 1), ' ');
            for (char& c : s) {
                c = static_cast<char>('a' + random() % 3);
            }
            return s;
        };
        const std::string text = letters(12);
        const std::string needle = letters(3);
        const std::size_t pos = random() % 15;
        const std::size_t start = text.empty() ? 0 : std::min(pos, text.size() - 1);
        const ustring u(text);
        const auto forward = [&](std::size_t expected) {
            return pos >= text.size() ? ustring::npos : expected;
        };
        const auto backward = [&](std::size_t expected) {
            return text.empty() ? ustring::npos : expected;
        };
#define CHECK_SEARCH(name, direction, from)                                                  \
    for (const std::size_t found :                                                           \
         {u.name(ustring(needle), pos), u.name(needle, pos), u.name(needle.c_str(), pos)}) { \
        EXPECT_EQ(found, direction(text.name(needle, from)))                                 \
            << #name << " '" << needle << "' in '" << text << "' from " << pos;              \
    }                                                                                        \
    EXPECT_EQ(u.name('b', pos), direction(text.name('b', from)));
        CHECK_SEARCH(find, forward, pos)
        CHECK_SEARCH(rfind, backward, start)
        CHECK_SEARCH(find_first_of, forward, pos)
        CHECK_SEARCH(find_first_not_of, forward, pos)
        CHECK_SEARCH(find_last_of, backward, start)
        CHECK_SEARCH(find_last_not_of, backward, start)
#undef CHECK_SEARCH
    }
}

TEST(UString, Trims) {
    const struct {
        const char* text;
        const char* set;
        const char* left;
        const char* right;
        const char* both;
    } cases[] = {{"   ", " ", "", "", ""},           {" a ", " ", "a ", " a", "a"},
                 {"xyaxy", "yx", "axy", "xya", "a"}, {"abc", "", "abc", "abc", "abc"},
                 {"abc", "x", "abc", "abc", "abc"},  {"", "x", "", "", ""}};
    for (const auto& row : cases) {
        EXPECT_EQ(ustring(row.text).ltrim(row.set), row.left);
        EXPECT_EQ(ustring(row.text).rtrim(ustring(row.set)), row.right);
        EXPECT_EQ(ustring(row.text).trim(row.set), row.both);
    }
}

TEST(UString, Compares) {
    EXPECT_TRUE(ustring("Z") < "a");
    EXPECT_TRUE(ustring("ab") < "abc");
    EXPECT_TRUE(ustring("\xC3") > "z") << "bytes are unsigned";
    EXPECT_FALSE(ustring("a") < "a");
    EXPECT_TRUE(ustring("a") != "b");
    EXPECT_EQ(ustring("abc").compare("abd"), 'c' - 'd');
    EXPECT_EQ(ustring("abc").compare("ab"), 'c');
    EXPECT_EQ(ustring("ab").compare("ab\xC3"), -0xC3);
    EXPECT_EQ(ustring("abc").compare("abd", 2), 0);
    EXPECT_EQ(ustring("abc").compare("abd", 3), -1);
    EXPECT_EQ(ustring("x").compare("y", 0), 0);
    EXPECT_EQ(ustring("x").compare("x", 100), 0);
    EXPECT_EQ(ustring::compare("ABC", "abc", true), 0);
    EXPECT_EQ(ustring::compare("ABC", "abc", false), 'A' - 'a');
    EXPECT_NE(ustring::compare("\xC3\x84", "\xC3\xA4", true), 0) << "only ASCII letters fold";
    EXPECT_EQ(ustring::compare("A[", "a{", true), '[' - '{');
}

TEST(UString, Normalizes) {
    EXPECT_EQ(ustring(kAccented).normalize(ustring::NFD), kDecomposed);
    EXPECT_EQ(ustring(kDecomposed).normalize(ustring::NFC), kAccented);
    EXPECT_EQ(ustring::normalize("/plain/path", ustring::NFC), "/plain/path");
    EXPECT_EQ(ustring(kEmoji).normalize(ustring::NFC), kEmoji);
    EXPECT_EQ(CaptureStderr([] { EXPECT_TRUE(ustring().normalize(ustring::NFC).empty()); }), "");
    CaptureStderr([] { EXPECT_TRUE(ustring("\xFF").normalize(ustring::NFC).empty()); });
}

TEST(UString, HoldsTextFarBeyondItsFirstBuffers) {
    ustring text;
    std::string expected;
    for (int i = 0; i < 20000; ++i) {
        text += kAccented;
        expected += kAccented;
    }
    EXPECT_EQ(text, expected);
    EXPECT_EQ(UnitsOf(text).size(), 20000u);
    EXPECT_EQ(text.normalize(ustring::NFD).size(), 60000u);
    text = "short";
    EXPECT_EQ(UnitsOf(text).size(), 5u);
    EXPECT_EQ(text += ustring('x').assign('y', 100000), "short" + std::string(100000, 'y'));
}

TEST(UString, StreamsSwapsAndHashes) {
    std::ostringstream out;
    out << ustring("two ") << ustring(kAccented);
    EXPECT_EQ(out.str(), "two \xC3\xA9");
    std::istringstream in("  first second");
    ustring a;
    ustring b("second");
    in >> a;
    EXPECT_EQ(a, "first");
    b.c_str_utf16();
    swap(a, b);
    EXPECT_EQ(a, "second");
    EXPECT_EQ(UnitsOf(b), UnitsOf("first"));
    b = std::move(a);
    EXPECT_EQ(b, "second");
    EXPECT_EQ(std::unordered_set<ustring>({"x", "y", "x"}).size(), 2u);
}

}  // namespace
