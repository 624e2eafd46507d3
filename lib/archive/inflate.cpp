// Inflates raw deflate data, and adds up CRC-32 checksums, with ISA-L, which takes 0.6 of the time
// that zlib does. The linker leads libarchive's calls of zlib here (--wrap), and only those: zlib
// itself is the same for everything else in the process. It also gets what ISA-L isn't for, which
// is data with a header of zlib's own, and everything where ISA-L isn't installed.

#include <dlfcn.h>
#include <isa-l/crc.h>
#include <isa-l/igzip_lib.h>
#include <zlib.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>
#include <optional>

// A function of zlib under the name that the linker gives it, and ours that is called in its place.
#define LED(type, name, symbol, ...)                    \
    type Zlib##name(__VA_ARGS__) asm("__real_" symbol); \
    type name(__VA_ARGS__) asm("__wrap_" symbol)

extern "C" {
LED(int, Init, "inflateInit2_", z_stream* stream, int window_bits, const char* version, int size);
LED(int, Inflate, "inflate", z_stream* stream, int flush);
LED(int, Reset, "inflateReset", z_stream* stream);
LED(int, SetDictionary, "inflateSetDictionary", z_stream* stream, const Bytef* bytes, uInt size);
LED(int, End, "inflateEnd", z_stream* stream);
LED(uLong, Crc32, "crc32", uLong crc, const Bytef* bytes, uInt size);
}

namespace {

// ISA-L, loaded when it is first needed: a run with nothing to unpack does without.
struct Isal {
    decltype(&isal_inflate_init) init;
    decltype(&isal_inflate_reset) reset;
    decltype(&isal_inflate_set_dict) set_dictionary;
    decltype(&isal_inflate) inflate;
    decltype(&crc32_gzip_refl) crc32;
};

template <typename Function>
bool Find(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

std::optional<Isal> LoadIsal() {
    void* const library = dlopen("libisal.so.2", RTLD_LAZY | RTLD_LOCAL);
    Isal isal = {};
    const bool complete = library != nullptr && Find(library, "isal_inflate_init", isal.init) &&
                          Find(library, "isal_inflate_reset", isal.reset) &&
                          Find(library, "isal_inflate_set_dict", isal.set_dictionary) &&
                          Find(library, "isal_inflate", isal.inflate) &&
                          Find(library, "crc32_gzip_refl", isal.crc32);
    return complete ? std::optional<Isal>(isal) : std::nullopt;
}

const std::optional<Isal>& TheIsal() {
    static const std::optional<Isal> isal = LoadIsal();
    return isal;
}

const char kOurs = 0;

// What a stream's state points to. zlib's begins with a pointer to the stream.
struct State {
    explicit State(const Isal& the_isal) : isal(the_isal) {}

    const void* const mark = &kOurs;
    const Isal& isal;
    inflate_state inflate;
};

// null for a stream of zlib's.
State* StateOf(const z_stream* stream) {
    const void* mark = nullptr;
    if (stream != nullptr && stream->state != nullptr) {
        std::memcpy(&mark, stream->state, sizeof mark);
    }
    return mark == &kOurs ? reinterpret_cast<State*>(stream->state) : nullptr;
}

void Begin(z_stream* stream) {
    stream->total_in = stream->total_out = 0;
    stream->msg = nullptr;
}

// ISA-L reads ahead by up to eight bytes, but who calls takes what isn't read for the bytes behind
// the data. So those that weren't needed go back, whenever this call may have been the last to take
// any: all of them are of this call, as what an earlier one has left was too little to go on with.
// In the middle of a block's header, which is kept behind those bytes, they have to stay.
void HandBack(inflate_state& inflate, uInt taken) {
    const uInt bytes = std::min(static_cast<uInt>(std::max(inflate.read_in_length, 0)) / 8, taken);
    if (bytes == 0 || inflate.tmp_in_size > 0) {
        return;
    }
    inflate.next_in -= bytes;
    inflate.avail_in += bytes;
    inflate.read_in_length -= static_cast<int>(bytes * 8);
    inflate.read_in &= (std::uint64_t{1} << inflate.read_in_length) - 1;
}

}  // namespace

int Init(z_stream* stream, int window_bits, const char* version, int size) {
    const std::optional<Isal>& isal = TheIsal();
    if (window_bits != -MAX_WBITS || !isal) {
        return ZlibInit(stream, window_bits, version, size);
    }
    auto* const state = new (std::nothrow) State(*isal);
    if (state == nullptr) {
        return Z_MEM_ERROR;
    }
    isal->init(&state->inflate);
    stream->state = reinterpret_cast<internal_state*>(state);
    Begin(stream);
    return Z_OK;
}

int Inflate(z_stream* stream, int flush) {
    State* const state = StateOf(stream);
    if (state == nullptr) {
        return ZlibInflate(stream, flush);
    }
    inflate_state& inflate = state->inflate;
    inflate.next_in = stream->next_in;
    inflate.avail_in = stream->avail_in;
    inflate.next_out = stream->next_out;
    inflate.avail_out = stream->avail_out;
    const int result = state->isal.inflate(&inflate);
    const bool finished = inflate.block_state == ISAL_BLOCK_FINISH;
    if (finished || inflate.avail_out == 0) {
        HandBack(inflate, stream->avail_in - inflate.avail_in);
    }
    const uInt taken = stream->avail_in - inflate.avail_in;
    const uInt given = stream->avail_out - inflate.avail_out;
    stream->next_in = inflate.next_in;
    stream->avail_in = inflate.avail_in;
    stream->total_in += taken;
    stream->next_out = inflate.next_out;
    stream->avail_out = inflate.avail_out;
    stream->total_out += given;
    if (result != ISAL_DECOMP_OK) {
        return Z_DATA_ERROR;
    }
    if (finished) {
        return Z_STREAM_END;
    }
    return taken > 0 || given > 0 ? Z_OK : Z_BUF_ERROR;
}

int Reset(z_stream* stream) {
    State* const state = StateOf(stream);
    if (state == nullptr) {
        return ZlibReset(stream);
    }
    state->isal.reset(&state->inflate);
    Begin(stream);
    return Z_OK;
}

int SetDictionary(z_stream* stream, const Bytef* bytes, uInt size) {
    State* const state = StateOf(stream);
    if (state == nullptr) {
        return ZlibSetDictionary(stream, bytes, size);
    }
    const int result = state->isal.set_dictionary(&state->inflate, const_cast<Bytef*>(bytes), size);
    return result == COMP_OK ? Z_OK : Z_STREAM_ERROR;
}

int End(z_stream* stream) {
    State* const state = StateOf(stream);
    if (state == nullptr) {
        return ZlibEnd(stream);
    }
    delete state;
    stream->state = nullptr;
    return Z_OK;
}

uLong Crc32(uLong crc, const Bytef* bytes, uInt size) {
    const std::optional<Isal>& isal = TheIsal();
    return bytes != nullptr && isal ? isal->crc32(static_cast<std::uint32_t>(crc), bytes, size)
                                    : ZlibCrc32(crc, bytes, size);
}
