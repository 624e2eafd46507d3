// What the string type does when an allocation fails.

#include <cstdlib>
#include <new>

#include "tests/support/scenario.h"
#include "ustring/ustring.h"

// The linker redirects the string type's allocations to these functions.
static int allocations_until_failure = -1;  // negative: none fails
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

// Runs the code and makes its n-th allocation, counted from 0, fail. Returns false if the code made
// that many allocations and threw std::bad_alloc.
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

const unsigned short kX[] = {'x', 0};
const char kDecomposed[] = "bibliothe\xCC\x80que";

TEST(UStringMemory, ReturnsBothForms) {
    ustring (*const makes[])(const ustring& text) = {
        [](const ustring& text) { return text.normalize(ustring::NFC); },
        [](const ustring& text) { return text.normalize(ustring::NFD); },
        [](const ustring& text) { return text + kX; },
        [](const ustring& text) { return text + kX[0]; }};
    for (const auto make : makes) {
        ustring made = make(kDecomposed);
        const ustring result = std::move(made);
        EXPECT_TRUE(RunsWithout(0, [&] { result.c_str_utf16(); })) << result;
    }
}

TEST(UStringMemory, StaysAsItWasWhenMemoryRunsOut) {
#define CHANGE(...) [](ustring& text) { __VA_ARGS__; }
    void (*const changes[])(ustring & text) = {CHANGE(text = "a longer text than this one"),
                                               CHANGE(text.assign(text, 1, 2)),
                                               CHANGE(text.assign('x', 40)),
                                               CHANGE(text.append('x', 1)),
                                               CHANGE(text.assign(text.c_str_utf16(), 2)),
                                               CHANGE(text = kX),
                                               CHANGE(text.assign(kX[0], 40)),
                                               CHANGE(text.append(kX[0], 40)),
                                               CHANGE(text = text + kX),
                                               CHANGE(text = text.normalize(ustring::NFC))};
    for (const auto& change : changes) {
        int allocation = 0;
        for (bool done = false; !done; ++allocation) {
            ustring text(kDecomposed);
            done = RunsWithout(allocation, [&] { change(text); });
            EXPECT_TRUE(done || text == kDecomposed) << &change - changes << ": " << text;
            EXPECT_EQ(ustring(text.c_str_utf16()), text) << &change - changes;
        }
        EXPECT_GT(allocation, 1) << &change - changes << " allocates nothing";
    }
    ustring text("kept");
    EXPECT_THROW(text.append('x', ustring::npos), std::bad_alloc);
    EXPECT_THROW(text.assign(kX[0], ustring::npos / 2), std::bad_alloc);
    EXPECT_EQ(text, "kept");
}

}  // namespace
