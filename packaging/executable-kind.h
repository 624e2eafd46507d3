#ifndef PACKAGING_EXECUTABLE_KIND_H
#define PACKAGING_EXECUTABLE_KIND_H

#include <string>

// What a system needs to start a file.
enum class ExecutableKind {
    None,    // no system can start it
    Elf,     // Linux
    MachO,   // a Mac; also universal programs
    Script,  // either system, with the interpreter that its first line names
};

// Looks at the first bytes of a regular file. Throws a PackageError when they can't be read.
ExecutableKind KindOf(const std::string& path);

// For messages: "a script", ...
const char* NameOf(ExecutableKind kind);

#endif
