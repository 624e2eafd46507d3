// The string type against std::string: the input is a program of operations on two strings, and
// after each of them both must hold what the model holds.

#include "ustring/ustring.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "fuzz/support.h"

namespace {

typedef std::vector<unsigned short> Units;

const std::size_t kMaxLength = 2000;  // bytes; a longer text is emptied
const std::size_t npos = std::string::npos;

// The input as a tape. Past its end there are only zeros.
class Program {
  public:
    Program(const std::uint8_t* data, std::size_t size) : at_(data), end_(data + size) {}

    bool ended() const { return at_ == end_; }
    unsigned byte() { return ended() ? 0 : *at_++; }
    char character() { return static_cast<char>(byte()); }
    char letter() { return static_cast<char>(std::max(byte(), 1u)); }  // no terminator
    // A position or a count: small ones, npos and its neighbour.
    std::size_t number() {
        const std::size_t value = byte();
        return value >= 254 ? npos - (255 - value) : value % 64;
    }
    // A text without terminators: its length, then its bytes.
    std::string text() {
        std::string result(byte() % 32, 0);
        std::generate(result.begin(), result.end(), [this] { return letter(); });
        return result;
    }
    unsigned short unit() {
        const unsigned high = byte();
        return static_cast<unsigned short>(std::max(high << 8 | byte(), 1u));
    }
    Units units() {
        Units result(byte() % 16);
        std::generate(result.begin(), result.end(), [this] { return unit(); });
        return result;
    }

  private:
    const std::uint8_t* at_;
    const std::uint8_t* const end_;
};

// The length of the sequence that the byte begins, 0 when it begins none; the bits of the code
// point that it holds, and the least code point that needs the length.
struct Lead {
    std::size_t length;
    unsigned bits;
    unsigned least;
};

Lead LeadOf(unsigned byte) {
    return byte < 0x80                   ? Lead{1, byte, 0}
           : byte >= 0xC0 && byte < 0xE0 ? Lead{2, byte & 0x1F, 0x80}
           : byte >= 0xE0 && byte < 0xF0 ? Lead{3, byte & 0x0F, 0x800}
           : byte >= 0xF0 && byte < 0xF8 ? Lead{4, byte & 0x07, 0x10000}
                                         : Lead{0, 0, 0};
}

bool IsSurrogate(unsigned code) {
    return code >= 0xD800 && code <= 0xDFFF;
}

// Converts UTF-8 to UTF-16; false when it is ill-formed.
bool ToUnits(const std::string& text, Units& units) {
    units.clear();
    for (std::size_t at = 0; at < text.size();) {
        const Lead lead = LeadOf(static_cast<unsigned char>(text[at]));
        if (lead.length == 0 || lead.length > text.size() - at) {
            return false;
        }
        unsigned code = lead.bits;
        for (std::size_t i = 1; i < lead.length; ++i) {
            const unsigned byte = static_cast<unsigned char>(text[at + i]);
            if ((byte & 0xC0) != 0x80) {
                return false;
            }
            code = code << 6 | (byte & 0x3F);
        }
        if (code < lead.least || code > 0x10FFFF || IsSurrogate(code)) {
            return false;
        }
        if (code > 0xFFFF) {
            units.push_back(static_cast<unsigned short>(0xD7C0 + (code >> 10)));
            code = 0xDC00 + (code & 0x3FF);
        }
        units.push_back(static_cast<unsigned short>(code));
        at += lead.length;
    }
    return true;
}

// Converts UTF-16 to UTF-8; empty for an unpaired surrogate.
std::string ToText(const Units& units) {
    std::string text;
    const auto put = [&text](unsigned byte) { text += static_cast<char>(byte); };
    const auto put_rest = [&put](unsigned bits) { put(0x80 | (bits & 0x3F)); };
    for (std::size_t i = 0; i < units.size(); ++i) {
        unsigned code = units[i];
        if (IsSurrogate(code)) {
            if (code >= 0xDC00 || i + 1 == units.size() || units[i + 1] < 0xDC00 ||
                units[i + 1] > 0xDFFF) {
                return std::string();
            }
            code = 0x10000 + ((code - 0xD800) << 10) + (units[++i] - 0xDC00u);
        }
        if (code < 0x80) {
            put(code);
        } else if (code < 0x800) {
            put(0xC0 | code >> 6);
            put_rest(code);
        } else if (code < 0x10000) {
            put(0xE0 | code >> 12);
            put_rest(code >> 6);
            put_rest(code);
        } else {
            put(0xF0 | code >> 18);
            put_rest(code >> 12);
            put_rest(code >> 6);
            put_rest(code);
        }
    }
    return text;
}

// The UTF-16 form as the class has it: empty for ill-formed text.
Units UnitsOf(const std::string& text) {
    Units units;
    if (!ToUnits(text, units)) {
        units.clear();
    }
    return units;
}

Units UnitsOf(const ustring& text) {
    const unsigned short* const begin = text.c_str_utf16();
    const unsigned short* end = begin;
    while (*end != 0) {
        ++end;
    }
    return Units(begin, end);
}

struct Subject {
    ustring text;
    std::string model;

    void check() const {
        REQUIRE(text.size() == model.size() && text.length() == model.size());
        REQUIRE(text.empty() == model.empty());
        REQUIRE(model == text.c_str() && model == text.c_str_utf8());
    }
    void append_to_model(const Units& units) {
        Units all = UnitsOf(model);
        all.insert(all.end(), units.begin(), units.end());
        model = ToText(all);
    }
};

// What a step works with.
struct State {
    Program& program;
    Subject& a;  // the one that most steps change
    Subject& b;
};

// Whether the operation threw, which it must do just when that is expected, and with that text.
template <typename Operation>
bool Throws(bool expected, const char* what, Operation operation) {
    try {
        operation();
    } catch (const std::out_of_range& error) {
        REQUIRE(expected && std::string(what) == error.what());
        return true;
    }
    REQUIRE(!expected);
    return false;
}

std::string Fold(std::string text) {
    for (char& byte : text) {
        if (byte >= 'A' && byte <= 'Z') {
            byte = static_cast<char>(byte + ('a' - 'A'));
        }
    }
    return text;
}

int CompareModels(const std::string& a, const std::string& b, std::size_t n) {
    for (std::size_t i = 0; i < n && i <= std::min(a.size(), b.size()); ++i) {
        const int difference =
            static_cast<unsigned char>(a.c_str()[i]) - static_cast<unsigned char>(b.c_str()[i]);
        if (difference != 0) {
            return difference;
        }
    }
    return 0;
}

std::size_t BackwardStart(const std::string& text, std::size_t pos) {
    return std::min(pos, text.size() - 1);
}

// What each search finds, with std::string's.
std::size_t Expected(int search, const std::string& text, const std::string& x, std::size_t pos) {
    const bool forward = search % 2 == 0;
    if (text.empty() || (forward && pos >= text.size())) {
        return npos;
    }
    switch (search) {
        case 0:
            return text.find(x, pos);
        case 1:
            return text.rfind(x, BackwardStart(text, pos));
        case 2:
            return text.find_first_of(x, pos);
        case 3:
            return text.find_last_of(x, BackwardStart(text, pos));
        case 4:
            return text.find_first_not_of(x, pos);
        default:
            return text.find_last_not_of(x, BackwardStart(text, pos));
    }
}

template <typename Needle>
std::size_t Found(int search, const ustring& text, const Needle& x, std::size_t pos) {
    switch (search) {
        case 0:
            return text.find(x, pos);
        case 1:
            return text.rfind(x, pos);
        case 2:
            return text.find_first_of(x, pos);
        case 3:
            return text.find_last_of(x, pos);
        case 4:
            return text.find_first_not_of(x, pos);
        default:
            return text.find_last_not_of(x, pos);
    }
}

void Search(State& s) {
    const int search = static_cast<int>(s.program.byte() % 6);
    const std::size_t pos = s.program.number();
    const std::string x = s.program.text();
    const std::size_t expected = Expected(search, s.a.model, x, pos);
    REQUIRE(Found(search, s.a.text, ustring(x), pos) == expected);
    REQUIRE(Found(search, s.a.text, x + '\0' + "rest", pos) == expected);
    REQUIRE(Found(search, s.a.text, x.c_str(), pos) == expected);
    REQUIRE(Found(search, s.a.text, s.b.text, pos) == Expected(search, s.a.model, s.b.model, pos));
    const char byte = s.program.character();
    REQUIRE(Found(search, s.a.text, byte, pos) ==
            Expected(search, s.a.model, std::string(1, byte), pos));
}

void Trim(State& s) {
    const unsigned way = s.program.byte();
    std::string set = s.program.text();
    const ustring other(set);
    const char* argument = set.c_str();
    if (way & 4) {  // a piece of the text itself
        const std::size_t pos = std::min(s.program.number(), s.a.model.size());
        argument = s.a.text.c_str() + pos;
        set = s.a.model.substr(pos);
    }
    if (way & 1) {
        s.a.model.erase(0, std::min(s.a.model.find_first_not_of(set), s.a.model.size()));
    }
    if (way & 2) {
        s.a.model.erase(s.a.model.find_last_not_of(set) + 1);
    }
    switch (way & 7) {
        case 1:
            s.a.text.ltrim(other);
            break;
        case 2:
            s.a.text.rtrim(other);
            break;
        case 3:
            s.a.text.trim(other);
            break;
        case 5:
            s.a.text.ltrim(argument);
            break;
        case 6:
            s.a.text.rtrim(argument);
            break;
        case 7:
            s.a.text.trim(argument);
            break;
        default:
            break;
    }
}

void AssignPart(State& s) {
    const std::size_t pos = s.program.number();
    const std::size_t n = s.program.number();
    if (!Throws(pos > s.b.model.size(), "substr", [&] { s.a.text.assign(s.b.text, pos, n); })) {
        s.a.model = s.b.model.substr(pos, n);
    }
}

void AppendPart(State& s) {
    const std::size_t pos = s.program.number();
    const std::size_t n = s.program.number();
    if (!Throws(pos > s.b.model.size(), "substr", [&] { s.a.text.append(s.b.text, pos, n); })) {
        s.a.model += s.b.model.substr(pos, n);
    }
}

void StdString(State& s) {
    const bool append = s.program.byte() % 2 != 0;
    const std::size_t pos = s.program.number();
    const std::size_t n = s.program.number();
    const std::string text = s.program.text();
    const auto change = [&] {
        append ? s.a.text.append(text, pos, n) : s.a.text.assign(text, pos, n);
    };
    if (!Throws(pos > text.size(), "basic_string::substr", change)) {
        s.a.model = (append ? s.a.model : std::string()) + text.substr(pos, n);
    }
}

void Bytes(State& s) {
    const unsigned way = s.program.byte() % 8;
    const std::string text = s.program.text();
    const std::size_t n = s.program.number();
    const std::string part = text.substr(0, n);
    switch (way) {
        case 0:
            s.a.text = text.c_str();
            break;
        case 1:
            s.a.text = text + '\0' + "rest";
            break;
        case 2:
            s.a.text = ustring(std::string_view(text));
            break;
        case 3:
            s.a.text.assign(text.c_str(), n);
            break;
        case 4:
            s.a.text += text.c_str();
            break;
        case 5:
            s.a.text += text + '\0' + "rest";
            break;
        case 6:
            s.a.text.append(text.c_str(), n);
            break;
        default:
            s.a.text = s.a.text + text.c_str();
            break;
    }
    s.a.model = (way < 4 ? std::string() : s.a.model) + (way == 3 || way == 6 ? part : text);
}

void Repeated(State& s) {
    const unsigned way = s.program.byte() % 8;
    const char byte = s.program.letter();
    const std::size_t n = way % 4 == 0 ? s.program.byte() % 64 : 1;
    switch (way) {
        case 0:
            s.a.text.assign(byte, n);
            break;
        case 1:
            s.a.text = byte;
            break;
        case 2:
            s.a.text = ustring(byte);
            break;
        case 4:
            s.a.text.append(byte, n);
            break;
        case 5:
            s.a.text += byte;
            break;
        case 6:
            s.a.text = s.a.text + byte;
            break;
        default:
            return;
    }
    s.a.model = (way < 4 ? std::string() : s.a.model) + std::string(n, byte);
}

// Arguments that point into the text itself.
void Alias(State& s) {
    const unsigned way = s.program.byte() % 6;
    const std::size_t pos = std::min(s.program.number(), s.a.model.size());
    const std::size_t n = s.program.number();
    const char* const inside = s.a.text.c_str() + pos;
    const std::string rest = s.a.model.substr(pos);
    switch (way) {
        case 0:
            s.a.text.assign(inside);
            s.a.model = rest;
            break;
        case 1:
            s.a.text.assign(inside, n);
            s.a.model = rest.substr(0, n);
            break;
        case 2:
            s.a.text.append(inside);
            s.a.model += rest;
            break;
        case 3:
            s.a.text.append(inside, n);
            s.a.model += rest.substr(0, n);
            break;
        case 4:
            s.a.text += s.a.text;
            s.a.model += s.a.model;
            break;
        default:
            if (!Throws(pos + n / 2 > s.a.model.size(), "substr",
                        [&] { s.a.text.assign(s.a.text, pos + n / 2, n); })) {
                s.a.model = s.a.model.substr(pos + n / 2, n);
            }
    }
}

void ChangeUnits(State& s) {
    const unsigned way = s.program.byte() % 8;
    Units units = s.program.units();
    const Units all = units;
    const std::size_t n = s.program.number();
    const Units part(units.begin(),
                     units.begin() + static_cast<std::ptrdiff_t>(std::min(n, units.size())));
    units.push_back(0);
    switch (way) {
        case 0:
            s.a.text = units.data();
            break;
        case 1:
            s.a.text = ustring(units.data());
            break;
        case 2:
            s.a.text.assign(units.data());
            break;
        case 3:
            s.a.text.assign(units.data(), n);
            break;
        case 4:
            s.a.text += units.data();
            break;
        case 5:
            s.a.text.append(units.data());
            break;
        case 6:
            s.a.text.append(units.data(), n);
            break;
        default:
            s.a.text = s.a.text + units.data();
            break;
    }
    if (way < 4) {
        s.a.model.clear();
    }
    s.a.append_to_model(way == 3 || way == 6 ? part : all);
}

void RepeatedUnits(State& s) {
    const unsigned way = s.program.byte() % 8;
    const unsigned short unit = s.program.unit();
    const std::size_t n = way % 4 == 0 ? s.program.byte() % 32 : 1;
    switch (way) {
        case 0:
            s.a.text.assign(unit, n);
            break;
        case 1:
            s.a.text = unit;
            break;
        case 4:
            s.a.text.append(unit, n);
            break;
        case 5:
            s.a.text += unit;
            break;
        case 6:
            s.a.text = s.a.text + unit;
            break;
        default:
            return;
    }
    if (way < 4) {
        s.a.model.clear();
    }
    s.a.append_to_model(Units(n, unit));
}

void AliasUnits(State& s) {
    const unsigned way = s.program.byte() % 4;
    const Units units = UnitsOf(s.a.text);
    const std::size_t pos = std::min(s.program.number(), units.size());
    const std::size_t n = way % 2 == 0 ? npos : s.program.number();
    const unsigned short* const inside = s.a.text.c_str_utf16() + pos;
    const Units part(
        units.begin() + static_cast<std::ptrdiff_t>(pos),
        units.begin() + static_cast<std::ptrdiff_t>(pos + std::min(n, units.size() - pos)));
    switch (way) {
        case 0:
            s.a.text.assign(inside);
            break;
        case 1:
            s.a.text.assign(inside, n);
            break;
        case 2:
            s.a.text.append(inside);
            break;
        default:
            s.a.text.append(inside, n);
            break;
    }
    if (way < 2 && pos == 0 && n >= units.size()) {
        return;  // the form as a whole changes nothing, that of an ill-formed text too
    }
    if (way < 2) {
        s.a.model.clear();
    }
    s.a.append_to_model(part);
}

void CheckUnits(State& s) {
    Units units;
    const bool valid = ToUnits(s.a.model, units);
    REQUIRE(UnitsOf(s.a.text) == (valid ? units : Units()));
    REQUIRE(ustring::is_valid(s.a.text) == valid);
}

void Normalize(State& s) {
    Units units;
    const bool valid = ToUnits(s.a.model, units);
    const ustring composed = s.a.text.normalize(ustring::NFC);
    const ustring decomposed = ustring::normalize(s.a.text, ustring::NFD);
    REQUIRE(composed.empty() == (!valid || s.a.model.empty()));
    REQUIRE(decomposed.empty() == composed.empty());
    REQUIRE(ustring::is_valid(composed) && ustring::is_valid(decomposed));
    REQUIRE(composed.normalize(ustring::NFC) == composed);
    REQUIRE(composed.normalize(ustring::NFD) == decomposed);
    REQUIRE(decomposed.normalize(ustring::NFC) == composed);
    REQUIRE(decomposed.normalize(ustring::NFD) == decomposed);
    REQUIRE(UnitsOf(decomposed) == UnitsOf(std::string(decomposed.c_str())));
    if (valid && std::all_of(units.begin(), units.end(), [](int unit) { return unit < 0x80; })) {
        REQUIRE(composed == s.a.text && decomposed == s.a.text);
    }
    if (s.program.byte() % 2 != 0) {
        s.a.text = decomposed;
        s.a.model = decomposed.c_str();
    }
}

void Substr(State& s) {
    const std::size_t pos = s.program.number();
    const std::size_t n = s.program.number();
    ustring part;
    if (!Throws(pos > s.a.model.size(), "substr", [&] { part = s.a.text.substr(pos, n); })) {
        REQUIRE(s.a.model.substr(pos, n) == part.c_str());
        s.a.text = std::move(part);
        s.a.model = s.a.model.substr(pos, n);
    }
}

void Compare(State& s) {
    const std::size_t n = s.program.number();
    const std::string& a = s.a.model;
    const std::string& b = s.b.model;
    REQUIRE(s.a.text.compare(s.b.text) == CompareModels(a, b, npos));
    REQUIRE(s.a.text.compare(s.b.text, n) == CompareModels(a, b, n));
    REQUIRE(ustring::compare(s.a.text, s.b.text, false) == CompareModels(a, b, npos));
    REQUIRE(ustring::compare(s.a.text, s.b.text, true) == CompareModels(Fold(a), Fold(b), npos));
    REQUIRE((s.a.text == s.b.text) == (a == b));
    REQUIRE((s.a.text != s.b.text) == (a != b));
    REQUIRE((s.a.text < s.b.text) == (a < b));
    REQUIRE((s.a.text > s.b.text) == (a > b));
    REQUIRE(a != b || std::hash<ustring>()(s.a.text) == std::hash<ustring>()(s.b.text));
}

void Stream(State& s) {
    std::stringstream stream;
    stream << s.a.text;
    REQUIRE(stream.str() == s.a.model);
    std::string word;
    std::stringstream(s.a.model) >> word;
    stream >> s.b.text;
    s.b.model = word.empty() ? s.b.model : word;
}

void Edit(State& s) {
    switch (s.program.byte() % 6) {
        case 0: {
            const char from = s.program.letter();
            const char to = s.program.letter();
            s.a.text.replace(from, to);
            std::replace(s.a.model.begin(), s.a.model.end(), from, to);
            break;
        }
        case 1:
            if (!s.a.model.empty()) {
                const std::size_t pos = s.program.byte() % s.a.model.size();
                const ustring& constant = s.a.text;
                REQUIRE(constant[pos] == s.a.model[pos]);
                s.a.text[pos] = s.a.model[pos] = s.program.letter();
            }
            break;
        case 2:
            s.a.text.clear();
            s.a.model.clear();
            break;
        case 3:
            swap(s.a.text, s.b.text);
            std::swap(s.a.model, s.b.model);
            break;
        case 4:
            s.a.text = ustring(s.b.text) + s.a.text;
            s.a.model.insert(0, s.b.model);
            break;
        default:
            s.a.text = s.b.text;
            s.a.model = s.b.model;
            break;
    }
}

// The seeds know the steps by their numbers.
void (*const kSteps[])(State&) = {
    Bytes,       AssignPart,    AppendPart, StdString,  Repeated,  Alias,
    Search,      Trim,          Substr,     Compare,    Stream,    Edit,
    ChangeUnits, RepeatedUnits, AliasUnits, CheckUnits, Normalize,
};

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    std::cerr.rdbuf(nullptr);  // what ICU refuses is told there
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Program program(data, size);
    Subject subjects[2];
    while (!program.ended()) {
        const unsigned step = program.byte();  // the first bit chooses the string
        State state{program, subjects[step >> 7], subjects[1 - (step >> 7)]};
        kSteps[step % 128 % std::size(kSteps)](state);
        for (Subject& subject : subjects) {
            subject.check();
            if (subject.model.size() > kMaxLength) {
                subject.text.clear();
                subject.model.clear();
            }
        }
    }
    return 0;
}
