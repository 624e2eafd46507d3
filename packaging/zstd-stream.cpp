#include "packaging/zstd-stream.h"

#include <stdexcept>
#include <utility>

namespace {

// Measured, see docs/shipping.md.
const int kLevel = 9;
const int kWindowLog = 21;  // 2 MiB, which the launcher needs as memory

std::size_t Checked(std::size_t result) {
    if (ZSTD_isError(result) != 0) {
        throw std::runtime_error(ZSTD_getErrorName(result));
    }
    return result;
}

}  // namespace

ZstdStream::ZstdStream(Sink sink)
    : context_(ZSTD_createCCtx()), sink_(std::move(sink)), block_(ZSTD_CStreamOutSize()) {
    if (context_ == nullptr) {
        throw std::bad_alloc();
    }
    Checked(ZSTD_CCtx_setParameter(context_.get(), ZSTD_c_compressionLevel, kLevel));
    Checked(ZSTD_CCtx_setParameter(context_.get(), ZSTD_c_windowLog, kWindowLog));
    Checked(ZSTD_CCtx_setParameter(context_.get(), ZSTD_c_checksumFlag, 1));
}

void ZstdStream::compress(ZSTD_inBuffer in, ZSTD_EndDirective directive) {
    std::size_t left = 0;
    do {
        ZSTD_outBuffer out = {block_.data(), block_.size(), 0};
        left = Checked(ZSTD_compressStream2(context_.get(), &out, &in, directive));
        sink_(block_.data(), out.pos);
    } while (directive == ZSTD_e_end ? left > 0 : in.pos < in.size);
}
