#include "lib/libtmpname/tmp_name_gen.h"

#include <cstring>
#include <mutex>
#include <regex>
#include <set>
#include <thread>

#include "tests/support/scenario.h"

namespace {

class FixedKey : public TmpNameGen {
  public:
    explicit FixedKey(const char* text) {
        std::memset(key, 0, sizeof key);
        std::memcpy(key, text, std::strlen(text));
        rc4_init(state, key);
    }
};

// The expected names were computed with an independent implementation of the cipher.
TEST(TmpNameGen, NamesFollowFromTheKey) {
    FixedKey names("0-0");
    for (const char* const name : {"EEY1bPcw", "5e0xjjZW", "5o0WkhbR", "F2EknMve", "xC_e5dxx"}) {
        EXPECT_EQ(names.getTmpName(), name);
    }
}

TEST(TmpNameGen, AnEmptyKeyIsFilled) {
    unsigned char key[256] = {};
    unsigned char state[256];
    TmpNameGen::rc4_init(state, key);
    EXPECT_GT(std::set<unsigned char>(key, key + 256).size(), 50u);
    EXPECT_EQ(std::set<unsigned char>(state, state + 256).size(), 256u);
    unsigned char out = 7;
    TmpNameGen::rc4_randomize(state, &out, 0);
    TmpNameGen::rc4_randomize(state, &out, -1);
    EXPECT_EQ(out, 7);
}

TEST(TmpNameGen, TheKeyIsTheTime) {
    unsigned char key[256];
    const int length = TmpNameGen::get_key(key, sizeof key);
    const std::string text = reinterpret_cast<char*>(key);
    EXPECT_EQ(text.size(), static_cast<std::size_t>(length));
    EXPECT_TRUE(std::regex_match(text, std::regex("\\d+-\\d{1,6}"))) << text;
    EXPECT_NEAR(std::stod(text), double(std::time(nullptr)), 5);
    EXPECT_GT(TmpNameGen::get_key(key, 4), 4);
    EXPECT_EQ(key[3], 0);
}

TEST(TmpNameGen, ThreadsGetDistinctNames) {
    const std::regex expected("/tmp/[-_0-9a-zA-Z]{8}");
    std::set<std::string> names;
    std::mutex mutex;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&] {
            for (int i = 0; i < 1000; ++i) {
                const std::string path = TmpNameGen::getInstance().getTmpPath("/tmp").c_str();
                const std::lock_guard<std::mutex> lock(mutex);
                EXPECT_TRUE(names.insert(path).second && std::regex_match(path, expected)) << path;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

}  // namespace
