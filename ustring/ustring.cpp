#include "ustring/ustring.h"

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <istream>
#include <limits>
#include <new>
#include <ostream>
#include <stdexcept>
#include <vector>

static_assert(sizeof(UChar) == sizeof(unsigned short), "unsigned short is ICU's code unit");

namespace {

const std::size_t kFirstCapacity = 4;  // of both buffers of a new object

// Line numbers that are a fixed part of the warnings.
const int kFromUtf8Line = 921;
const int kToUtf8Line = 888;
const int kInstanceLine = 1014;
const int kNormalizeLine = 1026;

void Warn(const char* function, UErrorCode error, int line) {
    static_cast<void>(std::fprintf(stderr, "Warning: %s: error code %d at line %d\n", function,
                                   static_cast<int>(error), line));
    static_cast<void>(std::fflush(stderr));
}

// Returns the capacity if the text fits and fills at least half of it, otherwise what the text
// needs.
std::size_t NewCapacity(std::size_t capacity, std::size_t need) {
    return need <= capacity && capacity / 2 <= need ? capacity : need;
}

// Resizes a buffer and keeps as much of its content as fits. If that fails the buffer is unchanged.
template <typename Unit>
Unit* Resize(Unit* buffer, std::size_t need) {
    // NOLINTNEXTLINE(clang-analyzer-optin.portability.UnixAPI): the terminator makes need positive
    void* const resized = std::realloc(buffer, need * sizeof(Unit));
    if (resized == nullptr) {
        throw std::bad_alloc();
    }
    return static_cast<Unit*>(resized);
}

// Like Resize, but drops the content, which is faster for a small buffer.
template <typename Unit>
Unit* Renew(Unit* buffer, std::size_t need) {
    Unit* const fresh = Resize<Unit>(nullptr, need);
    std::free(buffer);
    return fresh;
}

// Returns an object that ICU owns, or null after a warning.
const UNormalizer2* Normalizer(ustring::normalization_form form) {
    const UNormalization2Mode mode = form == ustring::NFC ? UNORM2_COMPOSE : UNORM2_DECOMPOSE;
    UErrorCode error = U_ZERO_ERROR;
    const UNormalizer2* const normalizer = unorm2_getInstance(nullptr, "nfc", mode, &error);
    if (U_FAILURE(error) || normalizer == nullptr) {
        Warn("unorm2_getInstance", error, kInstanceLine);
        return nullptr;
    }
    return normalizer;
}

// The length of an array that ends at its first zero or after n elements.
template <typename Unit>
std::size_t BoundedLength(const Unit* text, std::size_t n) {
    std::size_t length = 0;
    while (length < n && text[length] != 0) {
        ++length;
    }
    return length;
}

std::size_t BoundedLength(const char* text, std::size_t n) {
    return n == ustring::npos ? std::strlen(text) : ::strnlen(text, n);
}

template <typename Unit>
bool PointsInto(const Unit* pointer, const Unit* buffer, std::size_t length) {
    const std::less<const Unit*> before;
    return !before(pointer, buffer) && !before(buffer + length, pointer);
}

// The capacity for a text that grows by n units. Throws std::bad_alloc if no buffer can be so
// large.
template <typename Unit>
std::size_t Needed(std::size_t length, std::size_t n) {
    if (n >= std::numeric_limits<std::ptrdiff_t>::max() / sizeof(Unit) - length) {
        throw std::bad_alloc();
    }
    return length + n + 1;
}

class ByteSet {
  public:
    explicit ByteSet(std::string_view bytes) {
        for (const char byte : bytes) {
            has_[static_cast<unsigned char>(byte)] = true;
        }
    }
    bool has(char byte) const { return has_[static_cast<unsigned char>(byte)]; }

  private:
    std::array<bool, 256> has_{};
};

// Where a backward search of a non-empty text starts.
std::size_t BackwardStart(std::size_t length, std::size_t pos) {
    return std::min(pos, length - 1);
}

std::size_t FindForward(std::string_view text, std::string_view needle, std::size_t pos) {
    return pos >= text.size() ? ustring::npos : text.find(needle, pos);
}

std::size_t FindBackward(std::string_view text, std::string_view needle, std::size_t pos) {
    return text.empty() ? ustring::npos : text.rfind(needle, BackwardStart(text.size(), pos));
}

std::size_t FindMemberForward(std::string_view text, std::string_view set, std::size_t pos,
                              bool member) {
    const ByteSet bytes(set);
    for (; pos < text.size(); ++pos) {
        if (bytes.has(text[pos]) == member) {
            return pos;
        }
    }
    return ustring::npos;
}

std::size_t FindMemberBackward(std::string_view text, std::string_view set, std::size_t pos,
                               bool member) {
    if (text.empty()) {
        return ustring::npos;
    }
    const ByteSet bytes(set);
    for (std::size_t i = BackwardStart(text.size(), pos) + 1; i-- > 0;) {
        if (bytes.has(text[i]) == member) {
            return i;
        }
    }
    return ustring::npos;
}

unsigned char FoldAscii(unsigned char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte - 'A' + 'a') : byte;
}

std::string_view UpToNul(const std::string& bytes) {
    return std::string_view(bytes.c_str());
}

std::string Part(const std::string& bytes, std::size_t pos, std::size_t n) {
    if (pos > bytes.size()) {
        throw std::out_of_range("basic_string::substr");
    }
    return bytes.substr(pos, n);
}

}  // namespace

ustring::ustring() : ustring(Unallocated()) {
    init(kFirstCapacity);
}

ustring::ustring(const ustring& other) : ustring(other.view()) {}

ustring::ustring(const char* bytes) : ustring(std::string_view(bytes)) {}

ustring::ustring(const unsigned short* units) : ustring() {
    assign(units);
}

ustring::ustring(const std::string& bytes) : ustring(bytes.c_str()) {}

ustring::ustring(std::string_view bytes) : ustring(bytes, std::string_view()) {}

ustring::ustring(char byte) : ustring() {
    assign(byte, 1);
}

// Copies a and appends b in one step. The capacity is what the two steps would give.
ustring::ustring(std::string_view a, std::string_view b) : ustring(Unallocated()) {
    data_cap = NewCapacity(data_cap, a.size() + 1);
    init(a.size() + b.size() + 1);
    b.copy(data + a.copy(data, a.size()), b.size());
    set_data_len(a.size() + b.size());
}

ustring::ustring(Unallocated)
    : data(nullptr),
      data_len(0),
      data_cap(kFirstCapacity),
      wdata(nullptr),
      wdata_len(0),
      wdata_cap(kFirstCapacity) {}

ustring::~ustring() {
    std::free(data);
    std::free(wdata);
    data = nullptr;
    wdata = nullptr;
}

ustring& ustring::operator=(ustring&& other) noexcept {
    swap(other);
    return *this;
}

// Allocates both buffers of a new object and makes it empty.
void ustring::init(size_type data_need) {
    realloc_data(data_need);
    realloc_wdata(kFirstCapacity);
    clear();
}

void ustring::realloc_data(size_type need, Content content) {
    const size_type capacity = NewCapacity(data_cap, need);
    if (capacity != data_cap || data == nullptr) {
        data = content == Kept ? Resize(data, capacity) : Renew(data, capacity);
        data_cap = capacity;
    }
}

void ustring::realloc_wdata(size_type need, Content content) const {
    const size_type capacity = NewCapacity(wdata_cap, need);
    if (capacity != wdata_cap || wdata == nullptr) {
        wdata = content == Kept ? Resize(wdata, capacity) : Renew(wdata, capacity);
        wdata_cap = capacity;
    }
}

void ustring::clear_data() {
    data_len = 0;
    data[0] = 0;
}

void ustring::clear_wdata() const {
    wdata_len = 0;
    wdata[0] = 0;
}

void ustring::clear() {
    clear_data();
    clear_wdata();
}

void ustring::swap(ustring& other) noexcept {
    std::swap(data, other.data);
    std::swap(data_len, other.data_len);
    std::swap(data_cap, other.data_cap);
    std::swap(wdata, other.wdata);
    std::swap(wdata_len, other.wdata_len);
    std::swap(wdata_cap, other.wdata_cap);
}

// Ends the UTF-8 text after len bytes and drops the UTF-16 form.
void ustring::set_data_len(size_type len) {
    data_len = len;
    data[len] = 0;
    clear_wdata();
}

int ustring::convert_from_data() const {
    int32_t length = 0;
    UErrorCode error = U_ZERO_ERROR;
    u_strFromUTF8(nullptr, 0, &length, data, -1, &error);
    realloc_wdata(static_cast<size_type>(length) + 1, Replaced);
    error = U_ZERO_ERROR;
    u_strFromUTF8(wdata, static_cast<int32_t>(wdata_cap), &length, data, -1, &error);
    if (U_FAILURE(error)) {
        Warn("u_strFromUTF8", error, kFromUtf8Line);
        clear_wdata();
        return -1;
    }
    wdata_len = static_cast<size_type>(length);
    wdata[wdata_len] = 0;
    return 0;
}

int ustring::convert_from_wdata() {
    int32_t length = 0;
    UErrorCode error = U_ZERO_ERROR;
    u_strToUTF8(nullptr, 0, &length, wdata, -1, &error);
    try {
        realloc_data(static_cast<size_type>(length) + 1, Replaced);
    } catch (const std::bad_alloc&) {
        clear_wdata();  // the UTF-8 form is still the old text
        throw;
    }
    error = U_ZERO_ERROR;
    u_strToUTF8(data, static_cast<int32_t>(data_cap), &length, wdata, -1, &error);
    if (U_FAILURE(error)) {
        Warn("u_strToUTF8", error, kToUtf8Line);
        clear();
        return -1;
    }
    data_len = static_cast<size_type>(length);
    data[data_len] = 0;
    return 0;
}

// Ends the UTF-16 text after len units and rebuilds the UTF-8 form.
void ustring::set_wdata_len(size_type len) {
    wdata_len = len;
    wdata[len] = 0;
    convert_from_wdata();
}

void ustring::build_wdata() const {
    if (wdata_len == 0) {
        convert_from_data();
    }
}

const unsigned short* ustring::c_str_utf16() const {
    build_wdata();
    return wdata;
}

// The bytes must not be in this object's buffer, except at its start.
ustring& ustring::assign_bytes(const char* bytes, size_type n) {
    if (bytes == data) {
        if (n < data_len) {
            realloc_data(n + 1);
            set_data_len(n);
        }
        return *this;
    }
    realloc_data(n + 1, Replaced);
    if (n != 0) {
        std::memcpy(data, bytes, n);
    }
    set_data_len(n);
    return *this;
}

ustring& ustring::assign(const ustring& other, size_type pos, size_type n) {
    if (this == &other) {
        const ustring part = substr(pos, n);
        return assign_bytes(part.data, part.data_len);
    }
    if (pos > other.data_len) {
        throw std::out_of_range("substr");
    }
    return assign_bytes(other.data + pos, std::min(n, other.data_len - pos));
}

ustring& ustring::assign(const char* bytes) {
    return bytes == data ? *this : assign(bytes, npos);
}

ustring& ustring::assign(const char* bytes, size_type n) {
    const size_type length = BoundedLength(bytes, n);
    if (bytes != data && PointsInto<char>(bytes, data, data_len)) {
        return assign(ustring(std::string_view(bytes, length)), 0, npos);
    }
    return assign_bytes(bytes, length);
}

ustring& ustring::assign(const std::string& bytes, size_type pos, size_type n) {
    return assign(Part(bytes, pos, n).c_str());
}

ustring& ustring::assign(char byte, size_type n) {
    realloc_data(Needed<char>(0, n), Replaced);
    std::memset(data, byte, n);
    set_data_len(n);
    return *this;
}

// Builds the UTF-16 form and copies at most n of its units, from the position that an argument
// points to. The form may have been dropped since the caller got the pointer; its buffer wasn't.
std::vector<unsigned short> ustring::own_units(const unsigned short* from, size_type n) const {
    const auto offset = static_cast<size_type>(from - wdata);
    build_wdata();  // may move the buffer
    const size_type pos = std::min(offset, wdata_len);
    return std::vector<unsigned short>(wdata + pos, wdata + pos + std::min(n, wdata_len - pos));
}

// The UTF-16 form must be built, and the units must not be in its buffer.
ustring& ustring::assign_units(const unsigned short* units, size_type n) {
    realloc_wdata(n + 1, Replaced);
    std::copy_n(units, n, wdata);
    set_wdata_len(n);
    return *this;
}

ustring& ustring::assign(const unsigned short* units) {
    return units == wdata ? *this : assign(units, npos);
}

ustring& ustring::assign(const unsigned short* units, size_type n) {
    if (PointsInto<unsigned short>(units, wdata, wdata_cap - 1)) {
        const auto own = own_units(units, n);
        return own.size() == wdata_len ? *this : assign_units(own.data(), own.size());
    }
    build_wdata();
    return assign_units(units, BoundedLength(units, n));
}

ustring& ustring::assign(unsigned short unit, size_type n) {
    build_wdata();
    realloc_wdata(Needed<unsigned short>(0, n), Replaced);
    std::fill_n(wdata, n, unit);
    set_wdata_len(n);
    return *this;
}

// The bytes may be in this object's buffer, which can move when it grows.
ustring& ustring::append_bytes(const char* bytes, size_type n) {
    const bool own = PointsInto<char>(bytes, data, data_len);
    const std::ptrdiff_t offset = own ? bytes - data : 0;
    realloc_data(data_len + n + 1);
    if (n != 0) {
        std::memcpy(data + data_len, own ? data + offset : bytes, n);
    }
    set_data_len(data_len + n);
    return *this;
}

ustring& ustring::append(const ustring& other, size_type pos, size_type n) {
    if (pos > other.data_len) {
        throw std::out_of_range("substr");
    }
    return append_bytes(other.data + pos, std::min(n, other.data_len - pos));
}

ustring& ustring::append(const char* bytes) {
    return append(bytes, npos);
}

ustring& ustring::append(const char* bytes, size_type n) {
    return append_bytes(bytes, BoundedLength(bytes, n));
}

ustring& ustring::append(const std::string& bytes, size_type pos, size_type n) {
    return append(Part(bytes, pos, n).c_str());
}

ustring& ustring::append(char byte, size_type n) {
    realloc_data(Needed<char>(data_len, n));
    std::memset(data + data_len, byte, n);
    set_data_len(data_len + n);
    return *this;
}

// The UTF-16 form must be built, and the units must not be in its buffer.
ustring& ustring::append_units(const unsigned short* units, size_type n) {
    realloc_wdata(wdata_len + n + 1);
    std::copy_n(units, n, wdata + wdata_len);
    set_wdata_len(wdata_len + n);
    return *this;
}

ustring& ustring::append(const unsigned short* units) {
    return append(units, npos);
}

ustring& ustring::append(const unsigned short* units, size_type n) {
    if (PointsInto<unsigned short>(units, wdata, wdata_cap - 1)) {
        const auto own = own_units(units, n);
        return append_units(own.data(), own.size());
    }
    build_wdata();
    return append_units(units, BoundedLength(units, n));
}

ustring& ustring::append(unsigned short unit, size_type n) {
    build_wdata();
    realloc_wdata(Needed<unsigned short>(wdata_len, n));
    std::fill_n(wdata + wdata_len, n, unit);
    set_wdata_len(wdata_len + n);
    return *this;
}

#define USTRING_SEARCH(name, search, ...)                                         \
    ustring::size_type ustring::name(const ustring& x, size_type pos) const {     \
        return search(view(), x.view(), pos __VA_ARGS__);                         \
    }                                                                             \
    ustring::size_type ustring::name(const std::string& x, size_type pos) const { \
        return search(view(), UpToNul(x), pos __VA_ARGS__);                       \
    }                                                                             \
    ustring::size_type ustring::name(const char* x, size_type pos) const {        \
        return search(view(), std::string_view(x), pos __VA_ARGS__);              \
    }                                                                             \
    ustring::size_type ustring::name(char x, size_type pos) const {               \
        return search(view(), std::string_view(&x, 1), pos __VA_ARGS__);          \
    }

#define COMMA ,
USTRING_SEARCH(find, FindForward, )
USTRING_SEARCH(rfind, FindBackward, )
USTRING_SEARCH(find_first_of, FindMemberForward, COMMA true)
USTRING_SEARCH(find_first_not_of, FindMemberForward, COMMA false)
USTRING_SEARCH(find_last_of, FindMemberBackward, COMMA true)
USTRING_SEARCH(find_last_not_of, FindMemberBackward, COMMA false)
#undef COMMA
#undef USTRING_SEARCH

ustring& ustring::ltrim(const char* set) {
    const size_type first = std::min(find_first_not_of(set), data_len);
    if (first != 0) {
        std::memmove(data, data + first, data_len - first);
        set_data_len(data_len - first);
    }
    return *this;
}

ustring& ustring::rtrim(const char* set) {
    const size_type end = find_last_not_of(set) + 1;  // npos + 1 is 0
    if (end != data_len) {
        set_data_len(end);
    }
    return *this;
}

ustring& ustring::trim(const char* set) {
    if (PointsInto<char>(set, data, data_len)) {
        return trim(ustring(set));  // because ltrim() moves the bytes of the set
    }
    ltrim(set);
    return rtrim(set);
}

ustring& ustring::replace(char from, char to) {
    std::replace(data, data + data_len, from, to);
    clear_wdata();
    return *this;
}

ustring ustring::substr(size_type pos, size_type n) const {
    if (pos > data_len) {
        throw std::out_of_range("substr");
    }
    return ustring(view().substr(pos, n));
}

int ustring::compare(const ustring& other, size_type n) const {
    const char* const end = data + std::min(n, std::max(data_len, other.data_len));
    const char* a = data;
    const char* b = other.data;
    while (a != end && *a == *b && *a != 0) {
        ++a, ++b;
    }
    return a == end ? 0 : static_cast<unsigned char>(*a) - static_cast<unsigned char>(*b);
}

int ustring::compare(const ustring& a, const ustring& b, bool ignore_case) {
    if (!ignore_case) {
        return a.compare(b, npos);
    }
    const auto* x = reinterpret_cast<const unsigned char*>(a.data);
    const auto* y = reinterpret_cast<const unsigned char*>(b.data);
    while (*x != 0 && FoldAscii(*x) == FoldAscii(*y)) {
        ++x, ++y;
    }
    return FoldAscii(*x) - FoldAscii(*y);
}

bool ustring::is_valid(const ustring& text) {
    if (text.empty()) {
        return true;
    }
    int32_t length = 0;
    UErrorCode error = U_ZERO_ERROR;
    u_strFromUTF8(nullptr, 0, &length, text.data, -1, &error);
    return error != U_INVALID_CHAR_FOUND;
}

ustring ustring::normalize(const ustring& source, normalization_form form) {
    ustring result{Unallocated()};
    const UNormalizer2* const normalizer = source.empty() ? nullptr : Normalizer(form);
    if (normalizer == nullptr) {
        result.init(kFirstCapacity);
        return result;
    }
    source.build_wdata();
    const int32_t units = u_strlen(source.wdata);  // looking for the end costs the normalizer more
    UErrorCode error = U_ZERO_ERROR;
    const int32_t needed = unorm2_normalize(normalizer, source.wdata, units, nullptr, 0, &error);
    result.realloc_wdata(static_cast<size_type>(needed) + 1);
    error = U_ZERO_ERROR;
    source.build_wdata();
    int32_t length = unorm2_normalize(normalizer, source.wdata, units, result.wdata,
                                      static_cast<int32_t>(result.wdata_cap), &error);
    if (U_FAILURE(error)) {
        Warn("unorm2_normalize", error, kNormalizeLine);
        length = 0;
    }
    result.set_wdata_len(static_cast<size_type>(length));
    return result;
}

ustring operator+(const ustring& a, const ustring& b) {
    return ustring(a.view(), b.view());
}

ustring operator+(const ustring& a, const char* b) {
    return ustring(a.view(), b);
}

ustring operator+(const ustring& a, char b) {
    return ustring(a.view(), std::string_view(&b, 1));
}

ustring operator+(const ustring& a, const unsigned short* b) {
    ustring result(a);
    result += b;
    return result;
}

ustring operator+(const ustring& a, unsigned short b) {
    ustring result(a);
    result += b;
    return result;
}

std::ostream& operator<<(std::ostream& out, const ustring& text) {
    return out.write(text.c_str(), static_cast<std::streamsize>(text.size()));
}

std::istream& operator>>(std::istream& in, ustring& text) {
    std::string word;
    if (in >> word) {
        text = word;
    }
    return in;
}
