#include "lib/libtmpname/tmp_name_gen.h"

#include <cstring>
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

// The names were computed by an independent program from the published cipher.
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
    const long before = static_cast<long>(std::time(nullptr));
    const int length = TmpNameGen::get_key(key, sizeof key);
    EXPECT_EQ(std::strlen(reinterpret_cast<char*>(key)), static_cast<std::size_t>(length));
    long seconds = 0;
    long microseconds = -1;
    ASSERT_EQ(std::sscanf(reinterpret_cast<char*>(key), "%ld-%ld", &seconds, &microseconds), 2);
    EXPECT_NEAR(static_cast<double>(seconds), static_cast<double>(before), 5);
    EXPECT_LT(microseconds, 1000000);
    EXPECT_GT(TmpNameGen::get_key(key, 4), 4);
    EXPECT_EQ(key[3], 0);
}

TEST(TmpNameGen, ThreadsGetDistinctNames) {
    std::vector<std::set<std::string>> names(4);
    std::vector<std::thread> threads;
    for (std::set<std::string>& mine : names) {
        threads.emplace_back([&mine] {
            for (int i = 0; i < 1000; ++i) {
                mine.insert(TmpNameGen::getInstance().getTmpPath("/tmp").c_str());
            }
        });
    }
    std::set<std::string> all;
    for (std::size_t i = 0; i < threads.size(); ++i) {
        threads[i].join();
        all.insert(names[i].begin(), names[i].end());
    }
    EXPECT_EQ(all.size(), 4000u);
    const std::string alphabet = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
    for (const std::string& path : all) {
        EXPECT_EQ(path.size(), 13u);
        EXPECT_EQ(path.find_first_not_of(alphabet, 5), std::string::npos) << path;
    }
    EXPECT_EQ(TmpNameGen::getInstance().getTmpPath("").find('/'), 0u);
}

}  // namespace
