// What libarchive calls for zlib's functions: this program's calls of them are led there as well.

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace {

const int kRaw = -MAX_WBITS;

class InflateTest : public testing::Test {
  protected:
    std::size_t below(std::size_t limit) { return random_() % limit; }

    // Text, runs, bytes that can't be compressed, and repetitions from as far back as it goes.
    std::string makeData(std::size_t size) {
        const std::size_t kind = below(4);
        std::string data;
        while (data.size() < size) {
            if (kind == 0) {
                data += "word" + std::to_string(below(50));
            } else if (kind == 1) {
                data.append(below(3000), 'x') += static_cast<char>(random_());
            } else if (kind == 2 && data.size() > 33000) {
                data += data.substr(data.size() - 32768 + below(500), 3 + below(300));
            } else {
                data += static_cast<char>(random_());
            }
        }
        return data.substr(0, size);
    }

    static const Bytef* bytesOf(const std::string& text) {
        return reinterpret_cast<const Bytef*>(text.data());
    }

    std::string deflated(const std::string& data, int window_bits = kRaw,
                         const std::string& dictionary = "") {
        z_stream stream = {};
        const int strategy = below(5) == 0 ? Z_FIXED : Z_DEFAULT_STRATEGY;
        const int level = dictionary.empty() ? static_cast<int>(below(10)) : 9;
        deflateInit2(&stream, level, Z_DEFLATED, window_bits, 8, strategy);
        if (!dictionary.empty()) {
            deflateSetDictionary(&stream, bytesOf(dictionary), 32768);
        }
        std::string packed(deflateBound(&stream, data.size()), 0);
        give(stream, data, 0, data.size());
        stream.next_out = reinterpret_cast<Bytef*>(packed.data());
        stream.avail_out = static_cast<uInt>(packed.size());
        EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
        packed.resize(stream.total_out);
        deflateEnd(&stream);
        return packed;
    }

    static void give(z_stream& stream, const std::string& bytes, std::size_t pos,
                     std::size_t size) {
        stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data())) + pos;
        stream.avail_in = static_cast<uInt>(std::min(size, bytes.size() - pos));
    }

    struct Result {
        int status;        // the last one
        std::size_t read;  // bytes of the packed ones
        std::string data;
    };

    // Gives at most so many bytes at a time and takes at most so many.
    static Result inflateAll(z_stream& stream, const std::string& packed, std::size_t in,
                             std::size_t out) {
        Result result = {Z_OK, 0, ""};
        std::vector<Bytef> buffer(out);
        while (result.status == Z_OK) {
            give(stream, packed, result.read, in);
            const uInt given = stream.avail_in;
            stream.next_out = buffer.data();
            stream.avail_out = static_cast<uInt>(out);
            result.status = inflate(&stream, 0);
            EXPECT_FALSE(result.status == Z_OK && stream.avail_in > 0 && stream.avail_out > 0);
            result.read += given - stream.avail_in;
            result.data.append(buffer.begin(), buffer.end() - stream.avail_out);
        }
        EXPECT_EQ(stream.total_in, result.read);
        EXPECT_EQ(stream.total_out, result.data.size());
        return result;
    }

    std::mt19937 random_{20};
};

TEST_F(InflateTest, GivesBackTheDataAndLeavesTheBytesBehindIt) {
    z_stream stream = {};
    ASSERT_EQ(inflateInit2(&stream, kRaw), Z_OK);
    EXPECT_NE(dlopen("libisal.so.2", RTLD_LAZY | RTLD_NOLOAD), nullptr);
    for (int i = 0; i < 3000; ++i) {
        SCOPED_TRACE(i);
        const std::string data = makeData(below(i % 50 == 0 ? 200000 : 3000));
        const std::string packed = deflated(data);
        const std::string behind(below(20), 'T');
        const std::size_t in = below(4) == 0 ? 1 : 1 + below(below(2) == 0 ? 50 : 100000);
        // The exact size is a trap: the end is then seen only after the last byte is given.
        const std::size_t out = below(4) == 0 ? std::max<std::size_t>(data.size(), 1)
                                              : 1 + below(below(2) == 0 ? 100 : 100000);
        const Result whole = inflateAll(stream, packed + behind, in, out);
        ASSERT_EQ(whole.status, Z_STREAM_END);
        ASSERT_EQ(whole.read, packed.size());
        ASSERT_TRUE(whole.data == data);
        inflateReset(&stream);

        const Result cut = inflateAll(stream, packed.substr(0, below(packed.size())), in, out);
        ASSERT_EQ(cut.status, Z_BUF_ERROR);
        ASSERT_TRUE(data.compare(0, cut.data.size(), cut.data) == 0);
        inflateReset(&stream);

        std::string damaged = packed;
        char& byte = damaged[below(damaged.size())];
        byte = static_cast<char>(byte ^ 1 << below(8));
        inflateAll(stream, damaged, in, out);  // ends, whatever that is
        inflateReset(&stream);
    }
    inflateEnd(&stream);
}

TEST_F(InflateTest, KnowsWhatIsNoDeflateData) {
    z_stream stream = {};
    ASSERT_EQ(inflateInit2(&stream, kRaw), Z_OK);
    EXPECT_EQ(inflateAll(stream, "\x07 a block of no type", 100, 100).status, Z_DATA_ERROR);
    inflateReset(&stream);
    // A fixed block that begins with a repetition.
    EXPECT_EQ(inflateAll(stream, std::string("\x03\x02\x00\x00\x00", 5), 5, 100).status,
              Z_DATA_ERROR);
    inflateEnd(&stream);
}

TEST_F(InflateTest, TakesADictionary) {
    const std::string dictionary = makeData(32768);
    const std::string data = dictionary.substr(1000, 20000);
    const std::string packed = deflated(data, kRaw, dictionary);
    ASSERT_LT(packed.size(), data.size() / 50);

    z_stream stream = {};
    ASSERT_EQ(inflateInit2(&stream, kRaw), Z_OK);
    ASSERT_EQ(inflateSetDictionary(&stream, bytesOf(dictionary), 32768), Z_OK);
    EXPECT_TRUE(inflateAll(stream, packed, 1000, 1000).data == data);
    inflateEnd(&stream);
}

TEST_F(InflateTest, LeavesHeadersToZlib) {
    for (const int window_bits : {MAX_WBITS, MAX_WBITS + 16}) {
        const std::string data = makeData(50000);
        const std::string packed = deflated(data, window_bits);
        z_stream stream = {};
        ASSERT_EQ(inflateInit2(&stream, window_bits), Z_OK);
        EXPECT_TRUE(inflateAll(stream, packed, 1000, 1000).data == data);
        inflateReset(&stream);
        EXPECT_TRUE(inflateAll(stream, packed, 70000, 70000).data == data);
        EXPECT_EQ(inflateEnd(&stream), Z_OK);
    }
}

TEST_F(InflateTest, AddsUpChecksums) {
    const auto* const digits = reinterpret_cast<const Bytef*>("123456789");
    EXPECT_EQ(crc32(0, nullptr, 0), 0U);
    EXPECT_EQ(crc32(0, digits, 9), 0xCBF43926U);
    EXPECT_EQ(crc32(crc32(0, digits, 4), digits + 4, 5), 0xCBF43926U);
}

}  // namespace
