// Fuzzes ustring with std::string as its model. The input is a sequence of operations. Each is
// applied to both, which must then hold the same text or have thrown the same error.

#include "ustring/ustring.h"

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "fuzz/support.h"

namespace {

using Bytes = std::string;
using Units = std::u16string;
const std::size_t npos = Bytes::npos;

// ICU replaces ill-formed sequences, so converting an ill-formed text there and back changes it.
Units Decoded(const Bytes& bytes) {
    const auto text = icu::UnicodeString::fromUTF8(bytes);
    return Units(text.getBuffer(), static_cast<std::size_t>(text.length()));
}
Bytes Encoded(const Units& units) {
    Bytes bytes;
    return icu::UnicodeString(units.data(), static_cast<int>(units.size())).toUTF8String(bytes);
}
bool IsValid(const Bytes& bytes) {
    return Encoded(Decoded(bytes)) == bytes;
}
// Convert between the forms of a string as ustring does: an ill-formed text becomes empty.
Units UnitsOf(const Bytes& bytes) {
    return IsValid(bytes) ? Decoded(bytes) : Units();
}
Bytes BytesOf(const Units& units) {
    return Decoded(Encoded(units)) == units ? Encoded(units) : Bytes();
}

// The operands: the string and its expected text, another string, and texts for other arguments.
ustring text;
Bytes model;
ustring other;
Bytes other_model;            // also the text that bytes points to
const char* bytes;            // may point into `text`
Units units_model;            // the text that units points to
const unsigned short* units;  // may point into `text`
Bytes longer;                 // other_model, a NUL and more bytes, which ustring ignores
char byte;
char other_byte;
unsigned short unit;
std::size_t pos;
std::size_t count;

Bytes Part(const Bytes& whole, const char* error) {
    return pos > whole.size() ? throw std::out_of_range(error) : whole.substr(pos, count).c_str();
}

Bytes Normalized(const Bytes& source, const icu::Normalizer2* (*form)(UErrorCode&)) {
    UErrorCode error = U_ZERO_ERROR;
    Bytes normalized;
    icu::StringByteSink<Bytes> sink(&normalized);
    form(error)->normalizeUTF8(0, BytesOf(UnitsOf(source)), sink, nullptr, error);
    return normalized;
}

Bytes Folded(Bytes folded) {
    std::transform(folded.begin(), folded.end(), folded.begin(),
                   [](unsigned char upper) { return std::tolower(upper); });
    return folded;
}

// The difference of the first two bytes that differ, terminators included; 0 if there are none.
int Difference(const Bytes& left, const Bytes& right) {
    const char* const end = left.c_str() + left.size() + 1;
    const auto [at, other_at] = std::mismatch(left.c_str(), end, right.c_str());
    return at == end ? 0 : static_cast<unsigned char>(*at) - static_cast<unsigned char>(*other_at);
}

// Changes the string and its model in the same way, or compares a result of the two.
struct Operation {
    void (*run)();
    void (*expect)();
    const char* name;
};
bool agree = true;
#define CHANGE(change, ...) Operation({[] { change; }, [] { model = __VA_ARGS__; }, #change})
#define COMPARE(said, ...) Operation({[] { agree = (said) == (__VA_ARGS__); }, [] {}, #said})
#define SEARCH_FOR(name, needle, needle_model, start) \
    COMPARE(text.name(needle, pos), (start) < model.size() ? model.name(needle_model, start) : npos)
#define SEARCH(name, start)                                                                   \
    SEARCH_FOR(name, bytes, other_model, start), SEARCH_FOR(name, other, other_model, start), \
        SEARCH_FOR(name, longer, other_model, start), SEARCH_FOR(name, byte, byte, start)

const Operation kOperations[] = {
    CHANGE(text = bytes, other_model), CHANGE(text = ustring(bytes), other_model),
    CHANGE(text.assign(bytes, count), other_model.substr(0, count)),
    CHANGE(text += bytes, model + other_model),
    CHANGE(text.append(bytes, count), model + other_model.substr(0, count)),
    CHANGE(text = text + bytes, model + other_model), CHANGE(text = byte, Bytes(1, byte)),
    CHANGE(text += byte, model + byte), CHANGE(text = text + byte, model + byte),
    CHANGE(text.assign(byte, count % 64), Bytes(count % 64, byte)),
    CHANGE(text.append(byte, count % 64), model + Bytes(count % 64, byte)),
    CHANGE(text = units, BytesOf(units_model)), CHANGE(text = ustring(units), BytesOf(units_model)),
    CHANGE(text.assign(units, count), BytesOf(units_model.substr(0, count))),
    CHANGE(text += units, BytesOf(UnitsOf(model) + units_model)),
    CHANGE(text.append(units, count), BytesOf(UnitsOf(model) + units_model.substr(0, count))),
    CHANGE(text = text + units, BytesOf(UnitsOf(model) + units_model)),
    // units may point into the UTF-16 form that append("", 0) drops; its buffer still exists.
    CHANGE(text.append("", 0).assign(units, count), BytesOf(units_model.substr(0, count))),
    CHANGE(text.append("", 0).append(units, count),
           BytesOf(UnitsOf(model) + units_model.substr(0, count))),
    CHANGE(text = unit, BytesOf(Units(1, unit))),
    CHANGE(text += unit, BytesOf(UnitsOf(model) + Units(1, unit))),
    CHANGE(text = text + unit, BytesOf(UnitsOf(model) + Units(1, unit))),
    CHANGE(text.assign(unit, count % 64), BytesOf(Units(count % 64, unit))),
    CHANGE(text.append(unit, count % 64), BytesOf(UnitsOf(model) + Units(count % 64, unit))),
    CHANGE(text = longer; text += longer, other_model + other_model),
    CHANGE(text = ustring(longer), other_model),
    CHANGE(text = ustring(std::string_view(longer.data(), other_model.size())), other_model),
    CHANGE(text.assign(longer, pos, count), Part(longer, "basic_string::substr")),
    CHANGE(text.append(longer, pos, count), model + Part(longer, "basic_string::substr")),
    CHANGE(text.assign(text, pos, count), Part(model, "substr")),
    CHANGE(text.append(text, pos, count), model + Part(model, "substr")),
    CHANGE(text.assign(other, pos, count), Part(other_model, "substr")),
    CHANGE(text.append(other, pos, count), model + Part(other_model, "substr")),
    CHANGE(text = text.substr(pos, count), Part(model, "substr")),
    CHANGE(text = other; text += other, other_model + other_model),
    CHANGE(text = text + other, model + other_model),
    CHANGE(swap(text, other), std::exchange(other_model, model)), CHANGE(text.clear(), ""),
    CHANGE(text.replace(byte, other_byte), model;
           std::replace(model.begin(), model.end(), byte, other_byte)),
    CHANGE(if (!text.empty()) text[count % text.size()] = byte,
           model.empty() ? model : model.replace(count % model.size(), 1, 1, byte)),
    CHANGE(text = text.normalize(ustring::NFC),
           Normalized(model, icu::Normalizer2::getNFCInstance)),
    CHANGE(text = ustring::normalize(other, ustring::NFD),
           Normalized(other_model, icu::Normalizer2::getNFDInstance)),
    CHANGE(count % 2 == 0 ? text.ltrim(bytes) : text.ltrim(other),
           model.erase(0, model.find_first_not_of(other_model))),
    CHANGE(count % 2 == 0 ? text.rtrim(bytes) : text.rtrim(other),
           model.substr(0, model.find_last_not_of(other_model) + 1)),
    CHANGE(count % 2 == 0 ? text.trim(bytes) : text.trim(other),
           model.erase(model.find_last_not_of(other_model) + 1)
               .erase(0, model.find_first_not_of(other_model))),
    SEARCH(find, pos), SEARCH(find_first_of, pos), SEARCH(find_first_not_of, pos),
    SEARCH(rfind, std::min(pos, model.size() - 1)),
    SEARCH(find_last_of, std::min(pos, model.size() - 1)),
    SEARCH(find_last_not_of, std::min(pos, model.size() - 1)),
    COMPARE(text.compare(other), Difference(model, other_model)),
    COMPARE(text.compare(other, count),
            Difference(model.substr(0, count), other_model.substr(0, count))),
    COMPARE(ustring::compare(text, other, true), Difference(Folded(model), Folded(other_model))),
    COMPARE(text == other && !(text != other), model == other_model),
    COMPARE(text < other, model < other_model), COMPARE(text > other, model > other_model),
    COMPARE(std::hash<ustring>()(text), std::hash<ustring>()(model)),
    COMPARE(ustring::is_valid(text), IsValid(model)),
    COMPARE(reinterpret_cast<const char16_t*>(text.c_str_utf16()), UnitsOf(model))};

// Returns the message of the std::out_of_range that the code throws, or an empty string.
Bytes Error(void (*code)()) {
    try {
        code();
        return "";
    } catch (const std::out_of_range& error) {
        return error.what();
    }
}

void Run(const Operation& operation) {
    static std::FILE* const nowhere = std::fopen("/dev/null", "we");
    std::FILE* const shown = std::exchange(stderr, nowhere);  // hides warnings on ill-formed texts
    const Bytes error = Error(operation.run);
    stderr = shown;
    const bool same_error = error == Error(operation.expect);
    const bool same_size = text.size() == model.size() && text.length() == model.size();
    const bool same_text = text.c_str() == model && text.c_str_utf8() == model &&
                           other.c_str() == other_model && text.empty() == model.empty();
    Check(agree && same_error && same_size && same_text, operation.name);
}

// Reads the operands from the input. Missing bytes count as zeros.
void ReadOperands(const std::uint8_t*& at, const std::uint8_t* end) {
    const auto next = [&] { return at == end ? 0U : *at++; };
    const auto number = [&] {  // mostly small; also npos and npos - 1
        const std::size_t value = next();
        return value >= 254 ? npos - (255 - value) : value % 64;
    };
    pos = number();
    count = number();
    const unsigned source = next() % 4;
    other_model.resize(next() % 8);
    units_model.resize(other_model.size());
    for (std::size_t i = 0; i < other_model.size(); ++i) {
        const unsigned low = std::max(next(), 1U);
        other_model[i] = static_cast<char>(low);
        units_model[i] = static_cast<char16_t>(next() << 8 | low);
    }
    byte = other_model.empty() ? 'x' : other_model.front();
    other_byte = other_model.empty() ? 'x' : other_model.back();
    unit = units_model.empty() ? 'x' : units_model.front();

    const std::size_t own_pos = std::min(pos, model.size());
    other_model = source == 1 ? model.substr(own_pos) : other_model;
    other = ustring(other_model);
    longer = other_model + Bytes("\0rest", 5);
    bytes = source == 1 ? text.c_str() + own_pos : longer.c_str();

    const Units own_units = UnitsOf(model);
    const std::size_t own_unit = std::min(pos, own_units.size());
    const bool is_own = source == 2 && IsValid(model);
    units_model = is_own ? own_units.substr(own_unit) : units_model;
    units = is_own ? text.c_str_utf16() + own_unit
                   : reinterpret_cast<const unsigned short*>(units_model.c_str());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    text = ustring();
    model.clear();
    for (const std::uint8_t* at = data; at != data + size && model.size() < 2000;) {
        const unsigned operation = *at++;
        ReadOperands(at, data + size);
        Run(kOperations[operation % std::size(kOperations)]);
    }
    return 0;
}
