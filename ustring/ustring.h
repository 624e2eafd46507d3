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

// The string type for paths, keys, values and version texts.
//
// A ustring holds its text in two encodings: UTF-8, which is always current, and UTF-16, which is
// built when it is needed and kept until the UTF-8 form changes. Any bytes are accepted; ill-formed
// UTF-8 is kept unchanged, has an empty UTF-16 form, and is_valid() returns false for it.
//
// Positions, lengths and counts are in bytes of the UTF-8 form; a count of npos means up to the
// end. A byte string is NUL-terminated UTF-8, a unit string is a 0-terminated array of UTF-16 code
// units. An argument may point into the object itself. A std::string is read up to its first NUL.
//
// Buffers: an operation keeps a buffer when the new text and its terminator fit and fill at least
// half of it, and otherwise resizes it to exactly their size. The buffers of a new empty string
// have 4 bytes and 4 units. All are allocated with realloc() and released with free().
//
// Errors: std::bad_alloc when memory runs out, and std::out_of_range where a function says so; the
// text is then what it was before. When ICU rejects a text, the conversion writes one line to
// standard error, and its result is empty.
//
// Threads: use an object in one thread at a time, even for reading: c_str_utf16() and normalize()
// may build the UTF-16 form. Distinct objects are independent.
class ustring {
  public:
    using size_type = std::size_t;
    static const size_type npos = static_cast<size_type>(-1);

    enum normalization_form { NFC = 0, NFD = 1 };

    ustring();
    ustring(const ustring& other);  // copies the UTF-8 form only
    // Moves both forms and leaves an empty string with new buffers.
    // NOLINTNEXTLINE(performance-noexcept-move-constructor): it allocates those
    ustring(ustring&& other) : ustring() { swap(other); }
    // NOLINTBEGIN(google-explicit-constructor): a text converts to a ustring
    ustring(const char* bytes);
    ustring(const unsigned short* units);
    ustring(const std::string& bytes);
    explicit ustring(std::string_view bytes);  // needs no terminator
    ustring(char byte);
    // NOLINTEND(google-explicit-constructor)
    ~ustring();

    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): assign() handles it
    ustring& operator=(const ustring& other) { return assign(other, 0, npos); }
    ustring& operator=(ustring&& other) noexcept;  // swaps the two strings
    ustring& operator=(const char* bytes) { return assign(bytes); }
    ustring& operator=(const std::string& bytes) { return assign(bytes, 0, npos); }
    ustring& operator=(const unsigned short* units) { return assign(units); }
    ustring& operator=(char byte) { return assign(byte, 1); }
    ustring& operator=(unsigned short unit) { return assign(unit, 1); }

    // Replaces the text by the bytes [pos, pos + n) of other, which may be this object.
    // Throws std::out_of_range "substr" if pos is beyond the end.
    ustring& assign(const ustring& other, size_type pos, size_type n);
    ustring& assign(const char* bytes);
    ustring& assign(const char* bytes, size_type n);
    // Throws std::out_of_range "basic_string::substr" if pos is beyond the end.
    ustring& assign(const std::string& bytes, size_type pos, size_type n);
    ustring& assign(char byte, size_type n);
    // Assigning units builds the UTF-16 form, replaces it and rebuilds the UTF-8 form. An unpaired
    // surrogate makes the string empty.
    ustring& assign(const unsigned short* units);
    ustring& assign(const unsigned short* units, size_type n);
    ustring& assign(unsigned short unit, size_type n);

    // Arguments and errors are those of assign(). Appending bytes drops the UTF-16 form. Appending
    // units builds it first, appends to it and rebuilds the UTF-8 form; ill-formed UTF-8 is lost.
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
    void clear();  // empties both forms, keeps their buffers

    // The text; the pointer is valid until the object changes or is destroyed. c_str_utf16() builds
    // the UTF-16 form if needed. For ill-formed UTF-8 it returns an empty one and warns each time.
    const char* c_str() const { return data; }
    const char* c_str_utf8() const { return data; }
    const unsigned short* c_str_utf16() const;
    size_type size() const { return data_len; }
    size_type length() const { return data_len; }
    bool empty() const { return data_len == 0; }
    // The byte at pos, unchecked. The non-const overload drops the UTF-16 form.
    char& operator[](size_type pos) {
        clear_wdata();
        return data[pos];
    }
    const char& operator[](size_type pos) const { return data[pos]; }

    // Searches return a position or npos. Forward searches start at pos and fail if it isn't within
    // the text. Backward searches start at pos or at the last byte, whichever comes first. A set is
    // a set of bytes. An empty needle is found where the search starts; an empty set has no member.
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

    // Remove the bytes at the left, the right or both ends that are in the set. If there are none,
    // the UTF-16 form stays too.
    ustring& ltrim(const char* set);
    ustring& ltrim(const ustring& set) { return ltrim(set.data); }
    ustring& rtrim(const char* set);
    ustring& rtrim(const ustring& set) { return rtrim(set.data); }
    ustring& trim(const char* set);
    ustring& trim(const ustring& set) { return trim(set.data); }

    ustring& replace(char from, char to);  // every byte equal to from

    // A copy of the bytes [pos, pos + n), or up to the end if there are fewer.
    // Throws std::out_of_range "substr" if pos is beyond the end.
    ustring substr(size_type pos = 0, size_type n = npos) const;

    // 0 if equal, else the difference of the first two bytes that differ, as unsigned values; the
    // terminator is a byte of value 0. ignore_case folds ASCII letters only.
    int compare(const ustring& other) const { return compare(*this, other, false); }
    int compare(const ustring& other, size_type n) const;  // over at most n bytes
    static int compare(const ustring& a, const ustring& b, bool ignore_case);

    // False if ICU reports the text as ill-formed UTF-8.
    static bool is_valid(const ustring& text);
    // The text in a Unicode normalization form. Empty, with two warnings, for ill-formed UTF-8.
    ustring normalize(normalization_form form) const { return normalize(*this, form); }
    static ustring normalize(const ustring& source, normalization_form form);

  private:
    // Leaves the object without buffers, for callers that allocate them next at their size.
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
// Compares bytes as unsigned values; a proper prefix is less.
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
std::istream& operator>>(std::istream& in, ustring& text);  // one word, if there is one

template <>
struct std::hash<ustring> {
    std::size_t operator()(const ustring& text) const noexcept {
        return std::hash<std::string_view>()(std::string_view(text.c_str(), text.size()));
    }
};

#endif
