#include "ustring/ustring.h"

#include <cstdlib>
#include <iostream>
#include <new>
#include <random>
#include <string>
#include <vector>

#include "tests/support/scenario.h"

// The fuzz target: runs a program of operations on the class and on a model of it, std::string, and
// ends the process with a message when they differ.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// The linker redirects the string type's allocations to here.
static int allocations_until_failure = -1;  // negative when none is to fail
// NOLINTBEGIN(bugprone-reserved-identifier): the linker's names
extern "C" void* __real_malloc(std::size_t size);
extern "C" void* __wrap_malloc(std::size_t size) {
    return allocations_until_failure-- == 0 ? nullptr : __real_malloc(size);
}
extern "C" void* __real_realloc(void* buffer, std::size_t size);
extern "C" void* __wrap_realloc(void* buffer, std::size_t size) {
    return allocations_until_failure-- == 0 ? nullptr : __real_realloc(buffer, size);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

// Runs the code with its n-th allocation, counted from 0, failing. False when that was reached.
template <typename Code>
bool RunsWithout(int allocation, const Code& code) {
    allocations_until_failure = allocation;
    try {
        code();
    } catch (const std::bad_alloc&) {
        return false;
    }
    allocations_until_failure = -1;
    return true;
}

using Units = std::vector<unsigned short>;

Units UnitsOf(const ustring& text) {
    const unsigned short* const begin = text.c_str_utf16();
    const unsigned short* end = begin;
    while (*end != 0) {
        ++end;
    }
    return Units(begin, end);
}

const char kAccented[] = "\xC3\xA9";       // e with acute, one character
const char kDecomposed[] = "e\xCC\x81";    // the same as two
const char kEmoji[] = "\xF0\x9F\x98\x80";  // outside the basic plane

TEST(UString, AgreesWithItsModel) {
    std::streambuf* const shown = std::cerr.rdbuf(nullptr);  // what ICU refuses is told there
    std::mt19937 random(1);
    const std::string bytes("\0\1\2\3\4\5\6\7\x8\x9\xA\xB\xC\xD aAz\x81\x85\x87\xA9\xC3\xED\xFE",
                            25);
    std::vector<std::uint8_t> program(200);
    for (int i = 0; i < 20000; ++i) {
        for (std::uint8_t& byte : program) {
            const auto any = random();
            byte = i % 2 == 0 ? static_cast<std::uint8_t>(any)
                              : static_cast<std::uint8_t>(bytes[any % bytes.size()]);
        }
        LLVMFuzzerTestOneInput(program.data(), program.size());
    }
    std::cerr.rdbuf(shown);
}

TEST(UString, TakesBytesUnitsAndItself) {
    EXPECT_EQ(UnitsOf(kEmoji), (Units{0xD83D, 0xDE00}));
    EXPECT_EQ(ustring(Units{0xD83D, 0xDE00, 'x', 0}.data()), ustring(kEmoji) + 'x');
    EXPECT_EQ(UnitsOf(ustring()), Units());
    EXPECT_EQ(ustring('c'), "c");
    ustring text("its own");
    text = *&text;
    text.swap(text);
    EXPECT_EQ(text, "its own");
    EXPECT_EQ(text.trim(text), "");
}

TEST(UString, WarnsAboutWhatIsIllFormed) {
    for (const char* const bytes :
         {"\xFF", "\xC3", "\xC0\x80", "a\xED\xA0\x80z", "\xF5\x80\x80\x80", "ok\x80"}) {
        ustring text(bytes);
        EXPECT_FALSE(ustring::is_valid(text)) << bytes;
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(CaptureStderr([&] { EXPECT_EQ(*text.c_str_utf16(), 0); }),
                      "Warning: u_strFromUTF8: error code 10 at line 921\n");
        }
        CaptureStderr([&] { EXPECT_TRUE((text = text.c_str_utf16()) == bytes) << "unchanged"; });
    }
    for (const Units& units :
         {Units{0xD83D, 0}, Units{'a', 0xDE00, 'b', 0}, Units{0xDE00, 0xD83D, 0}}) {
        ustring text("kept");
        EXPECT_EQ(CaptureStderr([&] { EXPECT_EQ(text += units.data(), ""); }),
                  "Warning: u_strToUTF8: error code 10 at line 888\n");
        EXPECT_EQ(*text.c_str_utf16(), 0);
    }
}

TEST(UString, Normalizes) {
    EXPECT_EQ(ustring(kAccented).normalize(ustring::NFD), kDecomposed);
    EXPECT_EQ(ustring(kDecomposed).normalize(ustring::NFC), kAccented);
    EXPECT_EQ(CaptureStderr([] { EXPECT_TRUE(ustring().normalize(ustring::NFC).empty()); }), "");
}

TEST(UString, ReturnsBothForms) {
    using Make = ustring (*)(const ustring& text);
    for (const Make make :
         {Make([](const ustring& text) { return text.normalize(ustring::NFC); }),
          Make([](const ustring& text) { return text.normalize(ustring::NFD); }),
          Make([](const ustring& text) { return text + Units{'x', 0}.data(); }),
          Make([](const ustring& text) { return text + Units{'x'}.front(); })}) {
        ustring made = make("bibliothe\xCC\x80que");
        const ustring result = std::move(made);
        EXPECT_TRUE(RunsWithout(0, [&] { result.c_str_utf16(); })) << result;
    }
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
    text.assign(text.c_str_utf16(), 1);
    EXPECT_EQ(text, kAccented);
}

}  // namespace
