#include "packaging/executable-kind.h"

#include <fcntl.h>
#include <unistd.h>

#include "lib/platform/handles.h"
#include "packaging/fault.h"

namespace {

const std::size_t kHead = 512;  // bytes; at least the longest "#!" line that a system reads

std::string ReadHead(const std::string& path) {
    const platform::Descriptor file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    char head[kHead];
    const ssize_t size = file.get() >= 0 ? read(file.get(), head, sizeof head) : -1;
    if (size < 0) {
        FailWithErrno(path, "can't be read");
    }
    return std::string(head, static_cast<std::size_t>(size));
}

// Reads a number of size bytes, in the given byte order.
unsigned Number(const std::string& head, std::size_t at, std::size_t size, bool little) {
    unsigned number = 0;
    for (std::size_t i = 0; i < size; ++i) {
        const std::size_t next = little ? at + size - 1 - i : at + i;
        number = number << 8 | static_cast<unsigned char>(head[next]);
    }
    return number;
}

bool IsElfProgram(const std::string& head) {
    const std::size_t kType = 16;
    return head.size() >= 20 &&
           head.compare(0, 4,
                        "\x7F"
                        "ELF") == 0 &&
           (head[5] == 1 || head[5] == 2) &&
           (Number(head, kType, 2, head[5] == 1) == 2 ||  // ET_EXEC
            Number(head, kType, 2, head[5] == 1) == 3);   // ET_DYN: position-independent
}

bool IsMachOProgram(const std::string& head) {
    if (head.size() < 16) {
        return false;
    }
    for (const bool little : {true, false}) {
        const unsigned magic = Number(head, 0, 4, little);
        if (magic == 0xFEEDFACE || magic == 0xFEEDFACF) {
            return Number(head, 12, 4, little) == 2;  // MH_EXECUTE
        }
    }
    // Java classes begin with the same four bytes. Their version follows, which is at least 45;
    // here it is the number of processors.
    const unsigned magic = Number(head, 0, 4, false);
    return (magic == 0xCAFEBABE || magic == 0xCAFEBABF) && Number(head, 4, 4, false) < 40;
}

bool IsScript(const std::string& head) {
    const std::string line = head.substr(0, head.find('\n'));
    const std::size_t interpreter = line.find_first_not_of(" \t", 2);
    return line.rfind("#!", 0) == 0 && interpreter != std::string::npos &&
           line[interpreter] == '/' && line.find('\r') == std::string::npos;
}

}  // namespace

ExecutableKind KindOf(const std::string& path) {
    const std::string head = ReadHead(path);
    return IsElfProgram(head)     ? ExecutableKind::Elf
           : IsMachOProgram(head) ? ExecutableKind::MachO
           : IsScript(head)       ? ExecutableKind::Script
                                  : ExecutableKind::None;
}

const char* NameOf(ExecutableKind kind) {
    switch (kind) {
        case ExecutableKind::Elf:
            return "a Linux program (ELF)";
        case ExecutableKind::MachO:
            return "a Mac program (Mach-O)";
        case ExecutableKind::Script:
            return "a script";
        default:
            return "no program";
    }
}
