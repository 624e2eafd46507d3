#include "ustring/ustring.h"

#include <array>
#include <cstring>
#include <iterator>
#include <random>
#include <sstream>

#include "tests/support/scenario.h"

// The fuzz target. Decodes the data as operations, runs them on a string and on a model of it, and
// throws an exception when the two differ.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Units = std::vector<unsigned short>;
const Units kX = {'x', 0};
const unsigned short kE = 0xE9;  // e with acute
const Units kHalfAPair = {'a', 0xD83D, 0};
const char kDecomposed[] = "bibliothe\xCC\x80que";
const char kNotUtf8[] = "Warning: u_strFromUTF8: error code 10 at line 921\n";
const char kNotUtf16[] = "Warning: u_strToUTF8: error code 10 at line 888\n";

TEST(UString, AgreesWithItsModel) {
    std::mt19937 random(1);
    const std::uint8_t frequent[] = {0,   1,   2,    3,    4,    5,    6,    7,    ' ', 'a',
                                     'A', 'z', 0x81, 0x85, 0x87, 0xA9, 0xC3, 0xED, 0xFE};
    std::vector<std::uint8_t> program(200);
    for (int i = 0; i < 50000; ++i) {
        for (std::uint8_t& byte : program) {
            const auto any = random();
            byte = any % 2 == 0 ? static_cast<std::uint8_t>(any >> 8)
                                : frequent[any % std::size(frequent)];
        }
        LLVMFuzzerTestOneInput(program.data(), program.size());
    }
}

TEST(UString, ChangesAndWarns) {
#define CHANGE(...) [](ustring& text) { __VA_ARGS__; }
    const struct {
        const char* text;
        void (*change)(ustring& text);
        const char* expected;
        std::string printed = {};
    } cases[] = {
        {kDecomposed, CHANGE(text = text.normalize(ustring::NFC)), "biblioth\xC3\xA8que"},
        {"", CHANGE(text = Units{0xD83D, 0xDE00, 0}.data()), "\xF0\x9F\x98\x80"},
        {"a text", CHANGE(text = *&text; text.swap(text)), "a text"},
        {"a text", CHANGE(std::stringstream io; io << text; io >> text), "a"},
        {"a text", CHANGE(std::stringstream io(" "); io >> text), "a text"},
        {"ok\xC0\x80", CHANGE(text.c_str_utf16()), "ok\xC0\x80", kNotUtf8},
        {"a\xED\xA0\x80z", CHANGE(text = text.c_str_utf16()), "a\xED\xA0\x80z", kNotUtf8},
        {"\xFF", CHANGE(text.assign(text.c_str_utf16(), 9)), "\xFF",
         std::string(kNotUtf8) + kNotUtf8},
        {"\xFF", CHANGE(text = text.normalize(ustring::NFC)), "", std::string(kNotUtf8) + kNotUtf8},
        {"\xFF", CHANGE(text = kX.data()), "x", kNotUtf8},
        {"\xFF", CHANGE(text.assign(kX.data(), 1)), "x", kNotUtf8},
        {"\xFF", CHANGE(text = kX[0]), "x", kNotUtf8},
        {"\xFF", CHANGE(text.append(kX[0], 1)), "x", kNotUtf8},
        {"\xFF", CHANGE(text.append(kHalfAPair.data(), 2)), "", std::string(kNotUtf8) + kNotUtf16}};
    for (const auto& row : cases) {
        ustring text(row.text);
        EXPECT_EQ(CaptureStderr([&] { row.change(text); }), row.printed) << row.expected;
        EXPECT_EQ(text, row.expected);
    }
}

TEST(UString, KeepsABufferThatItFillsByHalf) {
    const auto fields = [](const ustring& text) {  // pointer, length, capacity of each form
        std::array<std::size_t, 6> values{};
        static_assert(sizeof values == sizeof text);
        std::memcpy(values.data(), static_cast<const void*>(&text), sizeof values);
        return values;
    };
    ustring text;
    EXPECT_EQ(fields(text)[2], 4u);
    EXPECT_EQ(fields(text)[5], 4u);
    const std::pair<std::size_t, std::size_t> cases[] = {{40, 41}, {19, 41}, {40, 41},
                                                         {18, 19}, {0, 1},   {10, 11}};
    for (const auto& [length, capacity] : cases) {
        text.assign(kX[0], length);
        EXPECT_EQ(fields(text)[2], capacity);
        EXPECT_EQ(fields(text)[5], capacity);
    }
    const auto before = fields(text);
    text.ltrim("y").rtrim("y").assign(text.c_str(), 10);
    EXPECT_EQ(fields(text), before) << "an operation that changes nothing must keep both forms";
    EXPECT_EQ(fields(text.assign(text.c_str(), 3))[2], 4u);
    text.clear();
    EXPECT_EQ(fields(text.assign(text.c_str_utf16(), 1))[2], 4u) << "an empty one keeps its buffer";
}

TEST(UString, HoldsALongText) {
    ustring text;
    text.assign(kE, 70000);
    EXPECT_EQ(text.size(), 140000u);
    EXPECT_EQ(text.normalize(ustring::NFD).size(), 210000u);
}

}  // namespace
