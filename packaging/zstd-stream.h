#ifndef PACKAGING_ZSTD_STREAM_H
#define PACKAGING_ZSTD_STREAM_H

#include <zstd.h>

#include <functional>
#include <memory>
#include <vector>

// Compresses with Zstandard and appends its checksum over the content, which libarchive's own
// writer leaves out. Throws std::runtime_error when the library fails.
class ZstdStream {
  public:
    // Called with each piece of the result.
    using Sink = std::function<void(const char* data, std::size_t size)>;

    explicit ZstdStream(Sink sink);

    void write(const void* data, std::size_t size) { compress({data, size, 0}, ZSTD_e_continue); }
    void finish() { compress({nullptr, 0, 0}, ZSTD_e_end); }  // nothing may be written afterwards

  private:
    struct Freer {
        void operator()(ZSTD_CCtx* context) const { ZSTD_freeCCtx(context); }
    };

    void compress(ZSTD_inBuffer in, ZSTD_EndDirective directive);

    const std::unique_ptr<ZSTD_CCtx, Freer> context_;
    const Sink sink_;
    std::vector<char> block_;
};

#endif
