#include "lib/config/config.h"

#include <climits>

#include "tests/support/folder-test.h"

namespace {

class ConfigTest : public FolderTest {
  protected:
    int read(const std::string& text) {
        MakeFile("file", text);
        return config_.read("file");
    }

    Config config_;
};

TEST_F(ConfigTest, Accepts) {
    const std::pair<const char*, std::map<ustring, ustring>> cases[] = {
        {"pid=1234\n", {{"pid", "1234"}}},
        {"pid=1234", {{"pid", "1234"}}},
        {" \t a.b-c_d \v= value  # note\n", {{"a.b-c_d", "value"}}},
        {"a='two words'\nb=\"it's\"#note\nc=''\n", {{"a", "two words"}, {"b", "it's"}, {"c", ""}}},
        {"a=abc#def\nb=abc #def\nc= #x\n", {{"a", "abc#def"}, {"b", "abc"}, {"c", "#x"}}},
        {"a=a=b\nb=it's\nc=\xC3\xA9\r\n", {{"a", "a=b"}, {"b", "it's"}, {"c", "\xC3\xA9"}}},
        {"=x\n", {{"", "x"}}},
        {"\n  \n# comment\nlast#comment\nkey=1\nkey=2\nrest", {{"key", "2"}}}};
    for (const auto& [text, entries] : cases) {
        config_.entries.clear();
        EXPECT_EQ(read(text), 0) << text;
        EXPECT_EQ(config_.entries, entries) << text;
    }
}

TEST_F(ConfigTest, RefusesTheWholeFile) {
    for (const char* const text :
         {"key=two words\n", "key=\n", "key=   \n", "a/b=1\n", "key= # comment\n",
          "\xEF\xBB\xBFkey=1\n", "[Version]\n", "key\n", "key 1\n", "key='open\n", "key='a\tb'\n",
          "key='a'b\n", "key=a\x01\n", "key=a\x7F", "key:1\n", "\xC3\xA9=1\n"}) {
        config_.entries = {{"earlier", "entry"}};
        EXPECT_EQ(read(std::string("good=1\n") + text), -1) << text;
        EXPECT_TRUE(config_.entries.empty()) << text;
    }
}

TEST_F(ConfigTest, AddsToWhatItHolds) {
    EXPECT_EQ(read("a=1\nb=2\n"), 0);
    EXPECT_EQ(read("b=3\nc=4\nignored"), 0);
    EXPECT_EQ(config_.read(""), -1);
    EXPECT_EQ(config_.read("missing"), -1);
    EXPECT_EQ(config_.entries, (std::map<ustring, ustring>{{"a", "1"}, {"b", "3"}, {"c", "4"}}));
}

TEST_F(ConfigTest, ReadsALongLineInPieces) {
    const std::string piece = "k=" + std::string(8189, 'v');  // the longest unsplit line
    EXPECT_EQ(read(piece + "\n"), 0);
    EXPECT_EQ(config_.entries["k"].size(), 8189u);
    EXPECT_EQ(read(piece + "x=1\n"), 0);
    EXPECT_EQ(config_.entries["x"], "1");
    EXPECT_EQ(read(piece + "/\n"), -1);
}

TEST_F(ConfigTest, ANulEndsALineAndAFailingDiskTheFile) {
    EXPECT_EQ(read(std::string("a=1\0b=2\nc=3\n", 12)), 0);
    EXPECT_EQ(config_.read("/proc/self/mem"), Exists("/proc/self/mem") ? 0 : -1);
    EXPECT_EQ(config_.entries, (std::map<ustring, ustring>{{"a", "1"}, {"c", "3"}}));
}

TEST_F(ConfigTest, OpensNothingButASmallRegularFileInside) {
    const std::string large = "a=1\n" + std::string(1024 * 1024 - 4, '\n');
    MakeFile("outside", "a=1\n");
    MakeFile("inside/file", "b=2\n");
    MakeLink("../outside", "inside/link out");
    MakeLink("file", "inside/link");
    MakeLink("/dev/zero", "device");
    for (const char* const refused :
         {"kinds/pipe", "device", "inside", "outside", "inside/link out"}) {
        EXPECT_EQ(config_.read(refused, "inside"), -1) << refused;
    }
    EXPECT_EQ(config_.read("kinds/pipe"), -1);
    EXPECT_EQ(read(large + "\n"), -1);
    EXPECT_TRUE(config_.entries.empty());
    EXPECT_EQ(config_.read("inside/link", "inside"), 0);
    EXPECT_EQ(read(large), 0);
    EXPECT_EQ(config_.entries.size(), 2u);
}

TEST_F(ConfigTest, ReadsIntegers) {
    const std::pair<const char*, int> cases[] = {{"2147483647", INT_MAX},
                                                 {"2147483648", 0},
                                                 {"-2147483648", INT_MIN},
                                                 {"+12abc", 12},
                                                 {"' -8'", -8},
                                                 {"abc", 0},
                                                 {"''", 0},
                                                 {"0x10", 0}};
    for (const auto& [text, number] : cases) {
        ASSERT_EQ(read(std::string("x= ") + text + "\n"), 0) << text;
        EXPECT_EQ(config_.get_int("x"), number) << text;
    }
    EXPECT_EQ(config_.get_int("absent"), 0);
    EXPECT_EQ(config_.entries.count("absent"), 1u);
}

}  // namespace
