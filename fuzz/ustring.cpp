// The string type against std::string: the input is a program of operations on two strings, and
// after each of them both must hold what the model holds.

#include "ustring/ustring.h"

#include <iconv.h>

#include <algorithm>
#include <iostream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "fuzz/support.h"

namespace {

using Size = std::size_t;
template <typename Unit>
using Text = std::basic_string<Unit>;
using Units = Text<unsigned short>;

const Size kMaxLength = 2000;  // bytes; a longer text is emptied
const Size npos = std::string::npos;

// The input as a tape. Past its end there are only zeros.
class Program {
  public:
    Program(const std::uint8_t* data, Size size) : at_(data), end_(data + size) {}

    bool ended() const { return at_ == end_; }
    unsigned byte() { return ended() ? 0 : *at_++; }
    // A position or a count: small ones, npos and its neighbour.
    Size number() {
        const Size value = byte();
        return value >= 254 ? npos - (255 - value) : value % 64;
    }
    // What texts consist of: no terminators.
    template <typename Unit>
    Unit unit() {
        const unsigned high = sizeof(Unit) > 1 ? byte() << 8 : 0;
        return static_cast<Unit>(std::max(high | byte(), 1U));
    }
    // A text: its length, then its units.
    template <typename Unit>
    Text<Unit> text() {
        Text<Unit> result(byte() % 32, 0);
        std::generate(result.begin(), result.end(), [this] { return unit<Unit>(); });
        return result;
    }

  private:
    const std::uint8_t* at_;
    const std::uint8_t* const end_;
};

// Converts between UTF-8 and UTF-16; false for what is ill-formed.
template <typename From, typename To>
bool Convert(const From& from, To& to) {
    static auto* const converter =
        sizeof from[0] == 1 ? iconv_open("UTF-16LE", "UTF-8") : iconv_open("UTF-8", "UTF-16LE");
    iconv(converter, nullptr, nullptr, nullptr, nullptr);  // forgets an earlier failure
    to.resize(4 * from.size());
    char* in = const_cast<char*>(reinterpret_cast<const char*>(from.data()));
    char* out = reinterpret_cast<char*>(to.data());
    Size left = from.size() * sizeof from[0];
    Size room = to.size() * sizeof to[0];
    const bool converted = iconv(converter, &in, &left, &out, &room) != npos;
    to.resize(converted ? to.size() - room / sizeof to[0] : 0);
    return converted;
}

// The two forms of a text as the class has them: empty for what can't be converted.
Units UnitsOf(const std::string& text) {
    Units units;
    Convert(text, units);
    return units;
}

struct Subject {
    ustring text;
    std::string model;

    void check() const {
        REQUIRE(text.size() == model.size() && text.length() == model.size());
        REQUIRE(text.empty() == model.empty());
        REQUIRE(model == text.c_str() && model == text.c_str_utf8());
    }
    // The forms in these units.
    const char* form(char) const { return text.c_str(); }
    const unsigned short* form(unsigned short) const { return text.c_str_utf16(); }
    std::string model_form(char) const { return model; }
    Units model_form(unsigned short) const { return UnitsOf(model); }
    void set_model(const std::string& value) { model = value; }
    void set_model(const Units& value) { Convert(value, model); }
};

// What a step works with.
struct State {
    Program& program;
    Subject& a;  // the one that most steps change
    Subject& b;
};

// A way to change a string by a text, on ours and on its model alike. It may take n units only.
template <typename Unit>
struct Change {
    template <typename Way>
    // NOLINTNEXTLINE(google-explicit-constructor): each row of the table below is a way alone
    Change(Way way) : subject(way), model(way) {}

    void (*subject)(ustring& s, const Unit* x, Size n);
    void (*model)(Text<Unit>& s, const Unit* x, Size n);
};

template <typename Unit>
const Change<Unit> kChanges[] = {
    [](auto& s, const Unit* x, Size) { s = x; },
    [](auto& s, const Unit* x, Size) { s.assign(x); },
    [](auto& s, const Unit* x, Size n) { s.assign(x, n); },
    [](auto& s, const Unit* x, Size) { s += x; },
    [](auto& s, const Unit* x, Size) { s.append(x); },
    [](auto& s, const Unit* x, Size n) { s.append(x, n); },
    [](auto& s, const Unit* x, Size) { s = s + x; },
    [](auto& s, const Unit* x, Size) { s = std::decay_t<decltype(s)>(x); },
    [](auto& s, const Unit* x, Size) { s = *x; },
    [](auto& s, const Unit* x, Size) { s += *x; },
    [](auto& s, const Unit* x, Size) { s = s + *x; }};

// By a text, or by a piece of the string itself.
template <typename Unit>
void ChangeByText(State& s) {
    const unsigned way = s.program.byte();
    const Change<Unit>& change = kChanges<Unit>[way % 128 % std::size(kChanges<Unit>)];
    Text<Unit> x = s.program.text<Unit>();
    const Unit* argument = x.c_str();
    const Size n = s.program.number();
    if (way >= 128) {
        argument = s.a.form(Unit());
        const Size pos = std::min(s.program.number(), Text<Unit>(argument).size());
        argument += pos;
        x = argument;
    }
    if (!x.empty()) {
        Text<Unit> model = s.a.model_form(Unit());
        change.subject(s.a.text, argument, n);
        change.model(model, x.c_str(), std::min(n, x.size()));
        s.a.set_model(model);
    }
}

template <typename Unit>
void Repeat(State& s) {
    const bool appends = s.program.byte() % 2 != 0;
    const Unit unit = s.program.unit<Unit>();
    const Size n = s.program.byte() % 64;
    appends ? s.a.text.append(unit, n) : s.a.text.assign(unit, n);
    s.a.set_model((appends ? s.a.model_form(Unit()) : Text<Unit>()) + Text<Unit>(n, unit));
}

// The forms that exist for bytes only, which end at a terminator or at the length of the view.
void ChangeByStdString(State& s) {
    const unsigned way = s.program.byte() % 4;
    const std::string x = s.program.text<char>();
    const std::string longer = x + std::string("\0rest", 5);
    way == 0   ? s.a.text = longer
    : way == 1 ? s.a.text = ustring(std::string_view(longer.data(), x.size()))
    : way == 2 ? s.a.text = ustring(longer)
               : s.a.text += longer;
    s.a.model = (way == 3 ? s.a.model : std::string()) + x;
}

// By a part of the other string or of itself.
void ChangeByPart(State& s) {
    const unsigned way = s.program.byte();
    const Subject& from = way < 128 ? s.b : s.a;
    const bool appends = way % 2 != 0;
    const bool standard = way % 8 > 4;
    const Size pos = s.program.number();
    const Size n = s.program.number();
    const bool fails = pos > from.model.size();
    try {
        if (standard) {
            appends ? s.a.text.append(from.model, pos, n) : s.a.text.assign(from.model, pos, n);
        } else if (appends) {
            s.a.text.append(from.text, pos, n);
        } else {
            way % 8 == 4 ? s.a.text = from.text.substr(pos, n) : s.a.text.assign(from.text, pos, n);
        }
        REQUIRE(!fails);
        s.a.model = (appends ? s.a.model : std::string()) + from.model.substr(pos, n);
    } catch (const std::out_of_range& error) {
        REQUIRE(fails && std::string(standard ? "basic_string::substr" : "substr") == error.what());
    }
}

// One search in all its forms. Ours may start at the end or beyond it.
#define CHECK_SEARCH(name, forward)                                                      \
    {                                                                                    \
        const auto expected = [&](const std::string& needle) {                           \
            const bool nowhere = model.empty() || ((forward) && pos >= model.size());    \
            return nowhere ? npos : model.name(needle, std::min(pos, model.size() - 1)); \
        };                                                                               \
        REQUIRE(text.name(ustring(x), pos) == expected(x));                              \
        REQUIRE(text.name(x + std::string("\0rest", 5), pos) == expected(x));            \
        REQUIRE(text.name(x.c_str(), pos) == expected(x));                               \
        REQUIRE(text.name(s.b.text, pos) == expected(s.b.model));                        \
        REQUIRE(text.name(byte, pos) == expected(std::string(1, byte)));                 \
    }

void Search(State& s) {
    const ustring& text = s.a.text;
    const std::string& model = s.a.model;
    const Size pos = s.program.number();
    const std::string x = s.program.text<char>();
    const char byte = static_cast<char>(s.program.byte());
    CHECK_SEARCH(find, true)
    CHECK_SEARCH(rfind, false)
    CHECK_SEARCH(find_first_of, true)
    CHECK_SEARCH(find_last_of, false)
    CHECK_SEARCH(find_first_not_of, true)
    CHECK_SEARCH(find_last_not_of, false)
}
#undef CHECK_SEARCH

void Trim(State& s) {
    const unsigned way = s.program.byte();
    const bool left = way % 3 != 1;
    const bool right = way % 3 != 0;
    std::string set = s.program.text<char>();
    const auto trim = [&](const auto& x) {
        !right ? s.a.text.ltrim(x) : left ? s.a.text.trim(x) : s.a.text.rtrim(x);
    };
    if (way < 128) {
        trim(ustring(set));
    } else {  // by a piece of the text itself
        const Size pos = std::min(s.program.number(), s.a.model.size());
        set = s.a.model.substr(pos);
        trim(s.a.text.c_str() + pos);
    }
    if (left) {
        s.a.model.erase(0, std::min(s.a.model.find_first_not_of(set), s.a.model.size()));
    }
    if (right) {
        s.a.model.erase(s.a.model.find_last_not_of(set) + 1);
    }
}

int CompareModels(const std::string& a, const std::string& b, Size n) {
    for (Size i = 0; i < n && i <= std::min(a.size(), b.size()); ++i) {
        const int difference =
            static_cast<unsigned char>(a.c_str()[i]) - static_cast<unsigned char>(b.c_str()[i]);
        if (difference != 0) {
            return difference;
        }
    }
    return 0;
}

std::string Fold(std::string text) {
    for (char& byte : text) {
        byte = static_cast<char>(byte >= 'A' && byte <= 'Z' ? byte + ('a' - 'A') : byte);
    }
    return text;
}

void Compare(State& s) {
    const Size n = s.program.number();
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

void CheckUnits(State& s) {
    Units units;
    const bool valid = Convert(s.a.model, units);
    REQUIRE(s.a.text.c_str_utf16() == units);
    REQUIRE(ustring::is_valid(s.a.text) == valid);
}

void Normalize(State& s) {
    const bool plain =
        std::all_of(s.a.model.begin(), s.a.model.end(), [](char c) { return c > 0; });
    const bool nothing = UnitsOf(s.a.model).empty();
    const ustring composed = s.a.text.normalize(ustring::NFC);
    const ustring decomposed = ustring::normalize(s.a.text, ustring::NFD);
    REQUIRE(composed.empty() == nothing && decomposed.empty() == nothing);
    REQUIRE(ustring::is_valid(composed) && ustring::is_valid(decomposed));
    for (const ustring& form : {composed, decomposed}) {
        REQUIRE(form.normalize(ustring::NFC) == composed);
        REQUIRE(form.normalize(ustring::NFD) == decomposed);
        REQUIRE(form.c_str_utf16() == UnitsOf(std::string(form.c_str())));
        REQUIRE(!plain || form == s.a.text);
    }
    if (s.program.byte() % 2 != 0) {
        s.a.text = decomposed;
        s.a.model = decomposed.c_str();
    }
}

void SetByte(State& s) {
    if (!s.a.model.empty()) {
        const Size pos = s.program.byte() % s.a.model.size();
        const ustring& constant = s.a.text;
        REQUIRE(constant[pos] == s.a.model[pos]);
        s.a.text[pos] = s.a.model[pos] = s.program.unit<char>();
    }
}

void Replace(State& s) {
    const char from = s.program.unit<char>();
    const char to = s.program.unit<char>();
    s.a.text.replace(from, to);
    std::replace(s.a.model.begin(), s.a.model.end(), from, to);
}

void Combine(State& s) {
    const unsigned way = s.program.byte() % 6;
    const auto combine = [way](auto& a, auto& b) {
        if (way == 0) {
            a = b;
        } else if (way == 1) {
            a += a;
        } else if (way == 2) {
            a = b + a;
        } else if (way == 3) {
            std::swap(a, b);
        } else if (way == 4) {
            std::stringstream stream;
            stream << a;
            stream >> b;  // a word, if there is one
        } else {
            a.clear();
        }
    };
    combine(s.a.text, s.b.text);
    combine(s.a.model, s.b.model);
}

// The seeds know the steps by their numbers.
void (*const kSteps[])(State&) = {ChangeByText<char>,
                                  ChangeByText<unsigned short>,
                                  Repeat<char>,
                                  Repeat<unsigned short>,
                                  ChangeByStdString,
                                  ChangeByPart,
                                  Search,
                                  Trim,
                                  Compare,
                                  CheckUnits,
                                  Normalize,
                                  SetByte,
                                  Replace,
                                  Combine};

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    std::cerr.rdbuf(nullptr);  // what ICU refuses is told there
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, Size size) {
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
