#ifndef USTRING_USTRING_H
#define USTRING_USTRING_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

// The string type of every path, key, value and version text.
//
// A ustring holds its text as UTF-8, which is always current, and as UTF-16, which is built from
// the UTF-8 form when something asks for it and dropped when the UTF-8 form changes. The bytes are
// not checked: ill-formed UTF-8 stays as it is and has an empty UTF-16 form (is_valid() tells).
//
// Positions, lengths and counts are bytes of the UTF-8 form; a count of npos means up to the end.
// A byte string is NUL-terminated UTF-8, a unit string a 0-terminated array of UTF-16 code units.
// An argument may point into the object itself. Overloads for std::string take its bytes up to its
// first NUL.
//
// Both buffers come from realloc and fit exactly: a buffer is kept while the text with its
// terminator fits and fills at least half of it, and is otherwise resized to just that size.
//
// Errors: std::bad_alloc when memory runs out, the object keeps its earlier buffer; and
// std::out_of_range where said. Conversions that ICU refuses are reported in one line on standard
// error and leave an empty form.
//
// Threads: one object belongs to one thread at a time, even for reading, because c_str_utf16() and
// normalize() may build the UTF-16 form. Distinct objects are independent.
class ustring {
  public:
    using size_type = std::size_t;
    static const size_type npos = static_cast<size_type>(-1);

    enum normalization_form { NFC = 0, NFD = 1 };

    ustring();
    ustring(const ustring& other);  // copies the UTF-8 form only
    // Moves both forms. The other object is empty afterwards and has new buffers.
    // NOLINTNEXTLINE(performance-noexcept-move-constructor): it allocates them
    ustring(ustring&& other) : ustring() { swap(other); }
    // NOLINTBEGIN(google-explicit-constructor): a text may stand wherever a ustring is expected
    ustring(const char* bytes);
    ustring(const unsigned short* units);
    ustring(const std::string& bytes);
    explicit ustring(std::string_view bytes);  // all of them; the view need not be terminated
    ustring(char byte);
    // NOLINTEND(google-explicit-constructor)
    ~ustring();

    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): assign() looks for it
    ustring& operator=(const ustring& other) { return assign(other, 0, npos); }
    ustring& operator=(ustring&& other) noexcept;  // exchanges the two
    ustring& operator=(const char* bytes) { return assign(bytes); }
    ustring& operator=(const std::string& bytes) { return assign(bytes, 0, npos); }
    ustring& operator=(const unsigned short* units) { return assign(units); }
    ustring& operator=(char byte) { return assign(byte, 1); }
    ustring& operator=(unsigned short unit) { return assign(unit, 1); }

    // The bytes [pos, pos + n) of other, which may be this object.
    // Throws std::out_of_range "substr" when pos lies beyond the end.
    ustring& assign(const ustring& other, size_type pos, size_type n);
    ustring& assign(const char* bytes);
    ustring& assign(const char* bytes, size_type n);
    // Throws std::out_of_range "basic_string::substr" when pos lies beyond the end.
    ustring& assign(const std::string& bytes, size_type pos, size_type n);
    ustring& assign(char byte, size_type n);
    // A unit string with an unpaired surrogate gives the empty string.
    ustring& assign(const unsigned short* units);
    ustring& assign(const unsigned short* units, size_type n);
    ustring& assign(unsigned short unit, size_type n);

    // The same arguments and errors as assign. Appending bytes drops the UTF-16 form; appending
    // units goes through the UTF-16 form and rebuilds the UTF-8 form at once.
    ustring& append(const ustring& other, size_type pos, size_type n);
    ustring& append(const char* bytes);
    ustring& append(const char* bytes, size_type n);
    ustring& append(const std::string& bytes, size_type pos, size_type n);
    ustring& append(char byte, size_type n);
    ustring& append(const unsigned short* units);
    ustring& append(const unsigned short* units, size_type n);
    ustring& append(unsigned short unit, size_type n);

    ustring& operator+=(const ustring& other) { return append(other, 0, npos); }
    ustring& operator+=(const char* bytes) { return append(bytes); }
    ustring& operator+=(const std::string& bytes) { return append(bytes, 0, npos); }
    ustring& operator+=(const unsigned short* units) { return append(units); }
    ustring& operator+=(char byte) { return append(byte, 1); }
    ustring& operator+=(unsigned short unit) { return append(unit, 1); }

    void swap(ustring& other) noexcept;
    void clear();  // empties both forms and keeps their buffers

    // The text, valid until the object changes or ends. c_str_utf16() builds the UTF-16 form when
    // it isn't there; for ill-formed UTF-8 it is empty, reported at every call.
    const char* c_str() const { return data; }
    const char* c_str_utf8() const { return data; }
    const unsigned short* c_str_utf16() const;
    size_type size() const { return data_len; }
    size_type length() const { return data_len; }
    bool empty() const { return data_len == 0; }
    // The byte at pos, unchecked. The reference that can be written to drops the UTF-16 form.
    char& operator[](size_type pos) {
        clear_wdata();
        return data[pos];
    }
    const char& operator[](size_type pos) const { return data[pos]; }

    // Searches return a position or npos. The forward ones start at pos and fail when it lies at
    // or beyond the end; the backward ones start at pos, or at the last byte when pos lies beyond
    // it. Sets are sets of bytes. An empty needle is found at the start; nothing is in an empty
    // set.
    size_type find(const ustring& needle, size_type pos = 0) const;
    size_type find(const std::string& needle, size_type pos = 0) const;
    size_type find(const char* needle, size_type pos = 0) const;
    size_type find(char needle, size_type pos = 0) const;
    size_type rfind(const ustring& needle, size_type pos = npos) const;
    size_type rfind(const std::string& needle, size_type pos = npos) const;
    size_type rfind(const char* needle, size_type pos = npos) const;
    size_type rfind(char needle, size_type pos = npos) const;
    size_type find_first_of(const ustring& set, size_type pos = 0) const;
    size_type find_first_of(const std::string& set, size_type pos = 0) const;
    size_type find_first_of(const char* set, size_type pos = 0) const;
    size_type find_first_of(char set, size_type pos = 0) const;
    size_type find_first_not_of(const ustring& set, size_type pos = 0) const;
    size_type find_first_not_of(const std::string& set, size_type pos = 0) const;
    size_type find_first_not_of(const char* set, size_type pos = 0) const;
    size_type find_first_not_of(char set, size_type pos = 0) const;
    size_type find_last_of(const ustring& set, size_type pos = npos) const;
    size_type find_last_of(const std::string& set, size_type pos = npos) const;
    size_type find_last_of(const char* set, size_type pos = npos) const;
    size_type find_last_of(char set, size_type pos = npos) const;
    size_type find_last_not_of(const ustring& set, size_type pos = npos) const;
    size_type find_last_not_of(const std::string& set, size_type pos = npos) const;
    size_type find_last_not_of(const char* set, size_type pos = npos) const;
    size_type find_last_not_of(char set, size_type pos = npos) const;

    // Remove the bytes of the set from one end or both. Nothing changes, the UTF-16 form included,
    // when there is nothing to remove.
    ustring& ltrim(const char* set);
    ustring& ltrim(const ustring& set) { return ltrim(set.data); }
    ustring& rtrim(const char* set);
    ustring& rtrim(const ustring& set) { return rtrim(set.data); }
    ustring& trim(const char* set);
    ustring& trim(const ustring& set) { return trim(set.data); }

    ustring& replace(char from, char to);  // every byte equal to from

    // The bytes [pos, pos + n), clipped to the end.
    // Throws std::out_of_range "substr" when pos lies beyond the end.
    ustring substr(size_type pos = 0, size_type n = npos) const;

    // 0 when equal, else the difference of the first bytes that differ, taken as unsigned, the
    // terminator counting as 0. ignore_case folds the ASCII letters only.
    int compare(const ustring& other) const { return compare(*this, other, false); }
    int compare(const ustring& other, size_type n) const;  // over at most n bytes
    static int compare(const ustring& a, const ustring& b, bool ignore_case);

    // false only for a text that ICU calls ill-formed UTF-8.
    static bool is_valid(const ustring& text);
    // The text in a Unicode normalization form; empty for ill-formed UTF-8.
    ustring normalize(normalization_form form) const { return normalize(*this, form); }
    static ustring normalize(const ustring& source, normalization_form form);

  private:
    // Without buffers, which no other object is: for constructors and results, which size them
    // next.
    struct Unallocated {};
    explicit ustring(Unallocated);
    ustring(std::string_view a, std::string_view b);
    void init(size_type data_need);
    int convert_from_data() const;
    int convert_from_wdata();
    enum Content { Kept, Replaced };
    void realloc_data(size_type need, Content content = Kept);
    void realloc_wdata(size_type need, Content content = Kept) const;
    void clear_data();
    void clear_wdata() const;

    friend ustring operator+(const ustring& a, const ustring& b);
    friend ustring operator+(const ustring& a, const char* b);
    friend ustring operator+(const ustring& a, char b);

    void build_wdata() const;
    void set_data_len(size_type len);
    void set_wdata_len(size_type len);
    ustring& assign_bytes(const char* bytes, size_type n);
    ustring& append_bytes(const char* bytes, size_type n);
    std::vector<unsigned short> own_units(const unsigned short* from, size_type n) const;
    ustring& assign_units(const unsigned short* units, size_type n);
    ustring& append_units(const unsigned short* units, size_type n);
    std::string_view view() const { return std::string_view(data, data_len); }

    char* data;                     // NUL-terminated UTF-8, never null while the object lives
    size_type data_len;             // bytes, without the terminator
    size_type data_cap;             // bytes, with the terminator
    mutable unsigned short* wdata;  // 0-terminated UTF-16, never null while the object lives
    mutable size_type wdata_len;    // units, without the terminator; 0 when not built
    mutable size_type wdata_cap;    // units, with the terminator
};

inline void swap(ustring& a, ustring& b) noexcept {
    a.swap(b);
}

inline bool operator==(const ustring& a, const ustring& b) {
    return a.size() == b.size() && std::memcmp(a.c_str(), b.c_str(), a.size()) == 0;
}
// By unsigned bytes, a prefix first.
inline bool operator<(const ustring& a, const ustring& b) {
    const int order = std::memcmp(a.c_str(), b.c_str(), std::min(a.size(), b.size()));
    return order != 0 ? order < 0 : a.size() < b.size();
}
inline bool operator!=(const ustring& a, const ustring& b) {
    return !(a == b);
}
inline bool operator>(const ustring& a, const ustring& b) {
    return b < a;
}

ustring operator+(const ustring& a, const ustring& b);
ustring operator+(const ustring& a, const char* b);
ustring operator+(const ustring& a, char b);
ustring operator+(const ustring& a, const unsigned short* b);
ustring operator+(const ustring& a, unsigned short b);

std::ostream& operator<<(std::ostream& out, const ustring& text);
std::istream& operator>>(std::istream& in, ustring& text);  // one word, as bytes

template <>
struct std::hash<ustring> {
    std::size_t operator()(const ustring& text) const noexcept {
        return std::hash<std::string_view>()(std::string_view(text.c_str(), text.size()));
    }
};

#endif
