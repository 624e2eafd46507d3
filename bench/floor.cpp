// Prints how many seconds the part of an upgrade takes that no launcher can leave out: decompress a
// package to memory (a compressed tar twice, because its entries must be counted before the first
// is unpacked), move the old application aside, write the package's files from memory, call syncfs
// and remove the old application. Starting a program and finding the entries in the decompressed
// data aren't included.

#include <archive.h>
#include <archive_entry.h>
#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "lib/platform/handles.h"
#include "ui-client/launcher/archive-handles.h"

namespace {

namespace fs = std::filesystem;

struct File {
    std::string name;
    mode_t mode;
    bool is_folder;
    std::string content;
};

void Check(bool good, const std::string& what) {
    if (!good) {
        throw std::runtime_error(what);
    }
}

ArchiveHandle Open(const std::string& package, void (*support_format)(archive*)) {
    ArchiveHandle reader(archive_read_new());
    archive_read_support_filter_all(reader.get());
    support_format(reader.get());
    Check(archive_read_open_filename(reader.get(), package.c_str(), 10240) == ARCHIVE_OK,
          "can't open " + package);
    return reader;
}

void AllFormats(archive* reader) {
    archive_read_support_format_all(reader);
}

void OneStream(archive* reader) {
    archive_read_support_format_raw(reader);
}

std::vector<File> ReadFiles(const std::string& package, bool& compressed_tar) {
    const ArchiveHandle reader = Open(package, AllFormats);
    std::vector<File> files;
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        File file{archive_entry_pathname(entry), archive_entry_perm(entry),
                  archive_entry_filetype(entry) == AE_IFDIR, std::string()};
        file.content.resize(static_cast<std::size_t>(archive_entry_size(entry)));
        Check(archive_read_data(reader.get(), file.content.data(), file.content.size()) ==
                  static_cast<la_ssize_t>(file.content.size()),
              "can't read " + file.name);
        files.push_back(std::move(file));
    }
    compressed_tar = archive_filter_count(reader.get()) > 1;
    return files;
}

// Decompresses a package, to memory unless that is null. Returns the decompressed size.
std::size_t Decompress(const std::string& package, void (*support_format)(archive*),
                       char* memory = nullptr) {
    const ArchiveHandle reader = Open(package, support_format);
    std::size_t used = 0;
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        const void* block = nullptr;
        std::size_t size = 0;
        la_int64_t offset = 0;
        int result = ARCHIVE_OK;
        while ((result = archive_read_data_block(reader.get(), &block, &size, &offset)) ==
               ARCHIVE_OK) {
            if (memory != nullptr) {
                std::memcpy(memory + used, block, size);
            }
            used += size;
        }
        Check(result == ARCHIVE_EOF, "can't decompress " + package);
    }
    return used;
}

void Write(const std::vector<File>& files, const std::string& folder) {
    fs::create_directory(folder);
    for (const File& file : files) {
        const std::string path = folder + "/" + file.name;
        if (file.is_folder) {
            fs::create_directories(path);
            continue;
        }
        const platform::Descriptor out(
            open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, file.mode));
        Check(write(out.get(), file.content.data(), file.content.size()) ==
                  static_cast<ssize_t>(file.content.size()),
              "can't write " + path);
    }
    const platform::Descriptor root(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    Check(syncfs(root.get()) == 0, "can't write to the disk");
}

double Upgrade(const std::string& package, const std::string& app) {
    bool compressed_tar = false;
    const std::vector<File> files = ReadFiles(package, compressed_tar);
    void (*const format)(archive*) = compressed_tar ? OneStream : AllFormats;
    std::vector<char> memory(Decompress(package, format));

    const auto start = std::chrono::steady_clock::now();
    if (compressed_tar) {
        Decompress(package, format);
    }
    Decompress(package, format, memory.data());
    fs::rename(app, app + "_tmp");
    Write(files, app);
    fs::remove_all(app + "_tmp");
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    return seconds.count();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        static_cast<void>(std::fputs("usage: bench-floor PACKAGE APPLICATION\n", stderr));
        return 2;
    }
    try {
        std::printf("%.6f\n", Upgrade(argv[1], argv[2]));
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "bench-floor: %s\n", error.what()));
        return 1;
    }
    return 0;
}
