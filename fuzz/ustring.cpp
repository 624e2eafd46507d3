// Compares the string type with a model of it. The input is a program of operations on a string.
// After each operation the string's fields, warnings and exceptions must be those of the model.

#include "ustring/ustring.h"

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "fuzz/support.h"

namespace {

using Size = std::size_t;
using Bytes = std::string;
using Units = std::u16string;
const Size npos = Bytes::npos;

Bytes expected_warnings;

// Both replace ill-formed sequences, so converting an ill-formed text there and back changes it.
Units UnitsOf(const Bytes& bytes) {
    const auto text = icu::UnicodeString::fromUTF8(bytes);
    return Units(text.getBuffer(), static_cast<Size>(text.length()));
}
Bytes BytesOf(const Units& units) {
    Bytes bytes;
    return icu::UnicodeString(units.data(), static_cast<int>(units.size())).toUTF8String(bytes);
}

// The fields of a string, with the UTF-8 form as the std::string that this is.
struct Model : Bytes {
    Units units;  // empty when not built
    Size bytes_cap = 4;
    Size units_cap = 4;

    static void fit(Size& cap, Size need) { cap = need <= cap && cap / 2 <= need ? cap : need; }
    bool valid() const { return BytesOf(UnitsOf(*this)) == *this; }
    Model& drop() { return units.clear(), *this; }
    Model& build() {
        if (units.empty()) {
            units = valid() ? UnitsOf(*this) : Units();
            fit(units_cap, units.size() + 1);
            expected_warnings +=
                valid() ? "" : "Warning: u_strFromUTF8: error code 10 at line 921\n";
        }
        return *this;
    }
    Model& set(const Units& changed) {
        const bool is_valid = UnitsOf(BytesOf(changed)) == changed;
        fit(units_cap, changed.size() + 1);
        put(is_valid ? BytesOf(changed) : "").units = is_valid ? changed : Units();
        expected_warnings += is_valid ? "" : "Warning: u_strToUTF8: error code 10 at line 888\n";
        return *this;
    }
    Model& put(const Bytes& bytes) {
        assign(bytes);
        fit(bytes_cap, size() + 1);
        return drop();
    }
    Model& put(const Units& changed) { return build().set(changed); }
    Model& add(const Bytes& more) { return put(*this + more); }
    Model& add(const Units& more) { return build().set(units + more); }
    Model& trim(const Bytes& set, bool left, bool right) {
        const Size before = size();
        erase(0, left ? find_first_not_of(set) : 0);
        erase(right ? find_last_not_of(set) + 1 : size());
        return size() != before ? drop() : *this;
    }
    Model normalized(const icu::Normalizer2* (*form)(UErrorCode&)) {
        UErrorCode error = U_ZERO_ERROR;
        Bytes bytes;
        icu::StringByteSink<Bytes> sink(&bytes);
        if (!empty()) {
            form(error)->normalizeUTF8(0, BytesOf(build().build().units), sink, nullptr, error);
        }
        return empty() ? Model() : Model().set(UnitsOf(bytes));
    }
};

// The operands of an operation: the string, another string, their models, and texts.
ustring a, b;
Model m, mb;
Size pos, n;
Bytes x, longer;          // the text of b; the same with a terminator and more behind it
Units y;                  // a text of units
const char* p;            // the bytes of x, or the part of a that x is a copy of
const unsigned short* q;  // the same for y
bool p_is_a, q_is_a;      // the part is all of a
char c, d;
unsigned short u;

Bytes Part(const Bytes& text, const char* error) {
    return pos > text.size() ? throw std::out_of_range(error) : text.substr(pos, n).c_str();
}

int Difference(const Bytes& l, const Bytes& r, Size most, bool ignore_case) {
    Size i = 0;
    const auto at = [&](const Bytes& text) {
        const auto byte = static_cast<unsigned char>(text[i]);
        return ignore_case ? std::tolower(byte) : byte;
    };
    while (i < most && i < l.size() && at(l) == at(r)) {
        ++i;
    }
    return i == most ? 0 : at(l) - at(r);
}

// Changes the string, and its model in the same way; or compares what both say.
struct Operation {
    void (*run)();
    void (*expect)();
    const char* name;
};
#define DO(run, ...) Operation({[] { run; }, [] { __VA_ARGS__; }, #run})

// The operations with a text of bytes or of units.
// NOLINTBEGIN(bugprone-macro-parentheses)
#define TEXT(p, x, p_is_a, c, Text)                                                              \
    DO(a = p, p_is_a ? m : m.put(x)), DO(a += p, m.add(x)),                                      \
        DO(a.append(p, n), m.add(x.substr(0, n))), DO(a = a + p, m = Model().add(m).add(x)),     \
        DO(a = ustring(p), m = Model().add(x)), DO(a.assign(c, n % 64), m.put(Text(n % 64, c))), \
        DO(a.append(c, n % 64), m.add(Text(n % 64, c))),                                         \
        DO(a = a + c, m = Model().add(m).add(Text(1, c))),                                       \
        DO(a = c; a += c, m.put(Text(1, c)).add(Text(1, c)))
// NOLINTEND(bugprone-macro-parentheses)

#define FOUND(name, nowhere, needle) \
    ((nowhere) ? npos : m.name(needle, std::min(pos, m.size() - 1)))
#define SEARCH(name, nowhere)                                   \
    DO({}, REQUIRE(a.name(p, pos) == FOUND(name, nowhere, x));  \
       REQUIRE(a.name(longer, pos) == FOUND(name, nowhere, x)); \
       REQUIRE(a.name(b, pos) == FOUND(name, nowhere, x));      \
       REQUIRE(a.name(c, pos) == FOUND(name, nowhere, Bytes(1, c))))

const Operation kOperations[] = {
    DO(q = a.c_str_utf16(), m.build()),
    TEXT(p, x, p_is_a, c, Bytes),
    TEXT(q, y, q_is_a, u, Units),
    DO(a.assign(p, n), (p_is_a && n >= x.size()) ? m : m.put(x.substr(0, n))),
    DO(a.assign(q, n), (q_is_a && n >= y.size()) ? m.build() : m.put(y.substr(0, n))),
    DO(a.append("", 0).assign(q, n),
       (q_is_a && n >= y.size()) ? m.add("").build() : m.add("").put(y.substr(0, n))),
    DO(a.append("", 0).append(q, n), m.add("").add(y.substr(0, n))),
    DO(a = longer; a += longer, m.put(x).add(x)),
    DO(a = ustring(longer), m = Model().add(x)),
    DO(a = ustring(std::string_view(longer.data(), x.size())), m = Model().add(x)),
    DO(a.assign(longer, pos, n), m.put(Part(longer, "basic_string::substr"))),
    DO(a.append(longer, pos, n), m.add(Part(longer, "basic_string::substr"))),
    DO(a.assign(a, pos, n), m.put(Part(m, "substr"))),
    DO(a.append(a, pos, n), m.add(Part(m, "substr"))),
    DO(a.assign(b, pos, n), m.put(Part(x, "substr"))),
    DO(a.append(b, pos, n), m.add(Part(x, "substr"))),
    DO(a = a.substr(pos, n), m = Model().add(Part(m, "substr"))),
    DO(a = b; a += b, m.put(x).add(x)),
    DO(a = a + b, m = Model().add(m).add(x)),
    DO(swap(a, b), std::swap(m, mb)),
    DO(a.clear(), m.drop().clear()),
    DO(a.replace(c, d), std::replace(m.begin(), m.end(), c, d); m.drop()),
    DO(if (!a.empty()) a[n % a.size()] = c, if (!m.empty()) m.drop()[n % m.size()] = c),
    DO(a = a.normalize(ustring::NFC), m = m.normalized(icu::Normalizer2::getNFCInstance)),
    DO(a = ustring::normalize(b, ustring::NFD),
       m = mb.normalized(icu::Normalizer2::getNFDInstance)),
    DO(n % 2 == 0 ? a.ltrim(p) : a.ltrim(b), m.trim(x, true, false)),
    DO(n % 2 == 0 ? a.rtrim(p) : a.rtrim(b), m.trim(x, false, true)),
    DO(n % 2 == 0 ? a.trim(p) : a.trim(b), m.trim(x, true, true)),
    SEARCH(find, pos >= m.size()),
    SEARCH(rfind, m.empty()),
    SEARCH(find_first_of, pos >= m.size()),
    SEARCH(find_first_not_of, pos >= m.size()),
    SEARCH(find_last_of, m.empty()),
    SEARCH(find_last_not_of, m.empty()),
    DO({}, REQUIRE(a.compare(b) == Difference(m, x, npos, false));
       REQUIRE(a.compare(b, n) == Difference(m, x, n, false));
       REQUIRE(ustring::compare(a, b, true) == Difference(m, x, npos, true))),
    DO({}, REQUIRE((a == b) == (m == x) && (a != b) == (m != x));
       REQUIRE((a < b) == (m < x) && (a > b) == (m > x));
       REQUIRE(a != b || std::hash<ustring>()(a) == std::hash<ustring>()(b));
       REQUIRE(ustring::is_valid(a) == m.valid()))};

bool Matches(const ustring& text, const Model& model) {
    Size fields[6];  // pointer, length and capacity of each form
    static_assert(sizeof fields == sizeof text);
    std::memcpy(fields, static_cast<const void*>(&text), sizeof fields);
    return text.size() == model.size() && text.length() == model.size() &&
           text.empty() == model.empty() && text[0] == *model.c_str() && text.c_str() == model &&
           text.c_str_utf8() == model && fields[2] == model.bytes_cap &&
           fields[4] == model.units.size() && fields[5] == model.units_cap &&
           (fields[4] == 0 || model.units == reinterpret_cast<const char16_t*>(text.c_str_utf16()));
}

Bytes Error(void (*code)()) {
    try {
        code();
        return "";
    } catch (const std::out_of_range& error) {
        return error.what();
    }
}

// Runs an operation and compares. Redirects standard error to memory meanwhile.
void Run(const Operation& operation) {
    static char* printed = nullptr;
    static Size length = 0;
    static std::FILE* const memory = open_memstream(&printed, &length);
    std::FILE* const shown = std::exchange(stderr, memory);
    const Bytes error = Error(operation.run);
    stderr = shown;
    const Bytes expected_error = Error(operation.expect);
    REQUIRE(std::fflush(memory) == 0);
    const Bytes warnings(printed, length);
    std::rewind(memory);
    const bool as_expected =
        error == expected_error && warnings == expected_warnings && Matches(a, m) && Matches(b, mb);
    Require(as_expected, operation.name, __FILE__, __LINE__);
    expected_warnings.clear();
}

// Reads the operands from the program. Past its end there are only zeros.
void ReadOperands(const std::uint8_t*& at, const std::uint8_t* end) {
    const auto byte = [&] { return at == end ? 0U : *at++; };
    const auto number = [&] {  // mostly small; also npos and npos - 1
        const Size value = byte();
        return value >= 254 ? npos - (255 - value) : value % 64;
    };
    pos = number();
    n = number();
    const unsigned source = byte() % 4;
    x.resize(byte() % 8);
    y.resize(x.size());
    for (Size i = 0; i < x.size(); ++i) {
        const unsigned low = std::max(byte(), 1U);
        x[i] = static_cast<char>(low);
        y[i] = static_cast<char16_t>(byte() << 8 | low);
    }
    c = x.empty() ? 'x' : x.front();
    d = x.empty() ? 'x' : x.back();
    u = y.empty() ? 'x' : y.front();
    p = source == 1 ? a.c_str() + std::min(pos, a.size()) : x.c_str();
    p_is_a = p == a.c_str();
    x = p;
    q = reinterpret_cast<const unsigned short*>(y.c_str());
    if (source == 2) {
        Run(kOperations[0]);  // sets q
        q += std::min(pos, m.units.size());
    }
    q_is_a = source == 2 && (pos == 0 || m.units.empty());
    y = reinterpret_cast<const char16_t*>(q);
    longer = x + Bytes("\0rest", 5);
    b = ustring(x);
    mb = Model().add(x);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, Size size) {
    a = ustring();
    m = Model();
    for (const std::uint8_t* at = data; at != data + size && m.size() < 2000;) {
        const unsigned operation = *at++;
        ReadOperands(at, data + size);
        Run(kOperations[operation % std::size(kOperations)]);
    }
    return 0;
}
