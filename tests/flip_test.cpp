// Flips one bit of a package. The extractor must then fail or install files with the packed bytes.

#include <zstd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <optional>
#include <random>

#include "tests/support/archives.h"
#include "tests/support/scenario.h"
#include "ui-client/launcher/content-checksum.h"
#include "ui-client/launcher/extractor.h"
#include "ui-client/launcher/translations/str-table.h"

namespace fs = std::filesystem;

namespace {

// The number of damaged packages for each format. FLIPPED_BITS overrides it; 1000 is thorough.
int Runs() {
    const char* const runs = std::getenv("FLIPPED_BITS");
    return runs != nullptr ? std::atoi(runs) : 40;
}

std::vector<Entry> Application(bool small, bool client_last) {
    std::vector<Entry> entries = {{"Contents/Info.plist", "<plist/>"},
                                  {"Contents/Resources/INFO", "[Version]\nbuild_version=100\n"}};
    if (!small) {
        entries.insert(entries.end(), {{"Contents/MacOS/"},
                                       {"Contents/Resources/noise", Noise(50000), 0640},
                                       {"Contents/Resources/text", std::string(100000, 't')},
                                       {"Contents/Resources/empty"},
                                       {"Contents/Resources/link", "", 0777, "text"}});
    }
    entries.insert(client_last ? entries.end() : entries.begin(),
                   {"Contents/MacOS/tarnwell-ui", "#!/bin/sh\nexit 0\n", 0755});
    return entries;
}

std::string WithChecksum(const std::string& tar) {
    std::string packed(ZSTD_compressBound(tar.size()), 0);
    ZSTD_CCtx* const context = ZSTD_createCCtx();
    ZSTD_CCtx_setParameter(context, ZSTD_c_checksumFlag, 1);
    packed.resize(ZSTD_compress2(context, packed.data(), packed.size(), tar.data(), tar.size()));
    ZSTD_freeCCtx(context);
    return packed;
}

class FlipTest : public testing::TestWithParam<const char*> {
  protected:
    FlipTest() { StrTable::InitStrTable(); }

    std::string pack(const std::vector<Entry>& entries) const {
        const bool zstd = format_ == "tar.zst";
        MakeArchive(folder_ / "package", zstd ? "tar" : format_, entries);
        if (zstd) {
            MakeFile(folder_ / "package", WithChecksum(ReadFile(folder_ / "package")));
        }
        return ReadFile(folder_ / "package");
    }

    // Extracts a package with these bytes and returns what was installed; nothing if that fails.
    std::optional<FileTree> extract(const std::string& bytes) const {
        fs::remove_all(folder_ / "dest");
        MakeFolder(folder_ / "dest");
        MakeFile(folder_ / "package", bytes);
        Extractor extractor;
        extractor.dest_dir = (folder_ / "dest").c_str();
        extractor.archive_path = (folder_ / "package").c_str();
        int result = 0;
        CaptureStderr([&] { result = extractor.Extract(); });
        return result == 0 ? std::optional(Tree(folder_ / "dest")) : std::nullopt;
    }

    const std::string format_ = GetParam();
    const Folder folder_;
};

std::string ContentOf(const std::string& description) {
    return description.substr(std::min(description.find(": "), description.size()));
}

TEST_P(FlipTest, NeverInstallsOtherBytes) {
    std::vector<std::pair<std::string, FileTree>> packages;
    for (const auto& [small, last] :
         {std::pair(true, true), {true, false}, {false, true}, {false, false}}) {
        const std::string bytes = pack(Application(small, last));
        EXPECT_TRUE(HasContentChecksum((folder_ / "package").c_str()));
        packages.emplace_back(bytes, extract(bytes).value());
    }
    std::minstd_rand random(1);
    int installed = 0;
    int renamed = 0;
    for (int run = 0; run < Runs(); ++run) {
        auto [bytes, expected] = packages[static_cast<std::size_t>(run) % packages.size()];
        const std::size_t bit = random() % (bytes.size() * 8);
        bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ 1 << bit % 8);
        const std::optional<FileTree> tree = extract(bytes);
        if (!tree.has_value()) {
            continue;
        }
        ++installed;
        renamed += *tree != expected ? 1 : 0;
        for (const auto& [name, description] : expected) {
            const auto found = tree->find(name);
            EXPECT_TRUE(found == tree->end() || found->second[0] != description[0] ||
                        ContentOf(found->second) == ContentOf(description))
                << name << " differs after bit " << bit << " of " << bytes.size() << " bytes";
        }
        // The checksums of a zip don't cover names and modes.
        EXPECT_TRUE(format_ == "zip" || *tree == expected) << "bit " << bit;
    }
    std::cout << "of " << Runs() << " packages " << installed << " were installed, " << renamed
              << " with other names or modes\n";
}

TEST(ContentChecksumTest, IsMissedWhereThereIsNone) {
    const Folder folder;
    // libarchive writes tar.zst without checksums.
    for (const char* const format : {"tar", "cpio", "tar.zst"}) {
        MakeArchive(folder / "package", format, Application(true, true));
        EXPECT_FALSE(HasContentChecksum((folder / "package").c_str())) << format;
    }
    EXPECT_FALSE(HasContentChecksum((folder / "missing").c_str()));
}

INSTANTIATE_TEST_SUITE_P(Formats, FlipTest,
                         testing::Values("zip", "7z", "tar.gz", "tar.bz2", "tar.xz", "tar.zst",
                                         "tar.lz4", "tar.lz", "xar"));

}  // namespace
