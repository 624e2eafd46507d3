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

const char kAccented[] = "\xC3\xA9";     // e with acute, one character
const char kDecomposed[] = "e\xCC\x81";  // the same as two
const char kDecomposedWord[] = "bibliothe\xCC\x80que";
const char kEmoji[] = "\xF0\x9F\x98\x80";  // outside the basic plane
const Units kX = {'x', 0};

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
    ustring (*const makes[])(const ustring& text) = {
        [](const ustring& text) { return text.normalize(ustring::NFC); },
        [](const ustring& text) { return text.normalize(ustring::NFD); },
        [](const ustring& text) { return text + kX.data(); },
        [](const ustring& text) { return text + kX[0]; }};
    for (const auto make : makes) {
        ustring made = make(kDecomposedWord);
        const ustring result = std::move(made);
        EXPECT_TRUE(RunsWithout(0, [&] { result.c_str_utf16(); })) << result;
    }
}

// A way to change a string; the results of the tests name it by its place in their tables.
using Change = void (*)(ustring& text, const unsigned short* own);

TEST(UString, BuildsTheUtf16FormBeforeItChanges) {
    const Change changes[] = {[](ustring& text, auto) { text = kX.data(); },
                              [](ustring& text, auto) { text.assign(kX.data(), 1); },
                              [](ustring& text, auto) { text = kX[0]; },
                              [](ustring& text, auto) { text.assign(kX[0], 1); },
                              [](ustring& text, auto) { text += kX.data(); },
                              [](ustring& text, auto) { text.append(kX[0], 1); }};
    for (const Change& change : changes) {
        ustring text("ill-formed: \xFF");
        EXPECT_EQ(CaptureStderr([&] { change(text, nullptr); }),
                  "Warning: u_strFromUTF8: error code 10 at line 921\n");
        EXPECT_EQ(text, "x") << &change - changes;
    }
}

TEST(UString, FindsItsUnitsInAFormThatWasDropped) {
    const std::pair<Change, const char*> changes[] = {
        {[](ustring& text, auto own) { text = own; }, "a text!"},
        {[](ustring& text, auto own) { text.assign(own, 6); }, "a text"},
        {[](ustring& text, auto own) { text.assign(own + 2, 4); }, "text"},
        {[](ustring& text, auto own) { text += own; }, "a text!a text!"},
        {[](ustring& text, auto own) { text.append(own, 2); }, "a text!a "},
        {[](ustring& text, auto own) { text.append(own + 2, ustring::npos); }, "a text!text!"}};
    for (const auto& [change, expected] : changes) {
        ustring text("a text");
        const unsigned short* const own = text.c_str_utf16();
        text += '!';
        change(text, own);
        EXPECT_EQ(text, expected);
    }
}

TEST(UString, StaysAsItWasWhenMemoryRunsOut) {
    const Change changes[] = {[](ustring& text, auto) { text = "a longer text than this one"; },
                              [](ustring& text, auto) { text.assign(text, 1, 2); },
                              [](ustring& text, auto) { text.assign('x', 40); },
                              [](ustring& text, auto) { text.append('x', 1); },
                              [](ustring& text, auto own) { text.assign(own, 2); },
                              [](ustring& text, auto) { text = kX.data(); },
                              [](ustring& text, auto) { text.assign(kX[0], 40); },
                              [](ustring& text, auto) { text.append(kX[0], 40); },
                              [](ustring& text, auto) { text = text + kX.data(); },
                              [](ustring& text, auto) { text = text.normalize(ustring::NFC); }};
    for (const Change& change : changes) {
        int allocation = 0;
        for (bool done = false; !done; ++allocation) {
            ustring text(kDecomposedWord);
            const unsigned short* const own = text.c_str_utf16();
            done = RunsWithout(allocation, [&] { change(text, own); });
            EXPECT_TRUE(done || text == kDecomposedWord) << &change - changes << ": " << text;
            EXPECT_EQ(UnitsOf(text), UnitsOf(text.c_str())) << &change - changes;
        }
        EXPECT_GT(allocation, 1) << &change - changes << " allocates nothing";
    }
    ustring text("kept");
    EXPECT_THROW(text.append('x', ustring::npos), std::bad_alloc);
    EXPECT_THROW(text.assign(kX[0], ustring::npos / 2), std::bad_alloc);
    EXPECT_EQ(text, "kept");
}

TEST(UString, KeepsABufferThatItFillsByHalf) {
    ustring text("0123456789");
    const void* const units = text.c_str_utf16();
    const void* const bytes = text.c_str();
    EXPECT_EQ(text.assign(text, 2, ustring::npos).c_str(), bytes);
    EXPECT_EQ(text.assign(text.c_str() + 1, 4).c_str(), bytes);
    EXPECT_EQ(text, "3456");
    EXPECT_EQ(text.assign(kX[0], 4).c_str_utf16(), units);
    EXPECT_EQ(text.c_str(), bytes);
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
