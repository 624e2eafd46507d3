#ifndef PACKAGING_EXECUTABLE_KIND_H
#define PACKAGING_EXECUTABLE_KIND_H

#include <string>

// What a system needs to start a file.
enum class ExecutableKind {
    None,    // no system could
    Elf,     // Linux
    MachO,   // a Mac; universal ones too
    Script,  // the interpreter that its first line names, on either
};

// By the first bytes of a regular file. Throws a PackageError when they can't be read.
ExecutableKind KindOf(const std::string& path);

// For messages: "an ELF program", ...
const char* NameOf(ExecutableKind kind);

#endif
