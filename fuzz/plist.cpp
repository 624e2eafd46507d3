// Fuzzes the reader of the executable's name in Info.plist with arbitrary files.

#include <filesystem>

#include "fuzz/support.h"
#include "lib/platform/open-bundle.h"

namespace {

// Whether a file with this name would be directly in the bundle's MacOS folder.
bool IsInItsFolder(const QString& name) {
    const std::filesystem::path path = "MacOS/" + name.toStdString();
    return path == path.lexically_normal() && path.has_filename() &&
           path.parent_path() == "MacOS" && !name.contains(QChar(QChar::Null));
}

// Returns an otherwise valid Info.plist with this text as the executable's name.
QByteArray Wrapped(const QString& name) {
    const QString list = QStringLiteral(
        "<plist><dict><key>LSMinimumSystemVersion</key><string>10.12</string>"
        "<key>Nested</key><dict><key>CFBundleExecutable</key><string>no</string></dict>"
        "<key>CFBundleExecutable</key><string>%1</string></dict></plist>");
    return list.arg(name.toHtmlEscaped()).toUtf8();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Folder folder(std::filesystem::temp_directory_path());
    const std::string file = TextOf(data, size);
    const QByteArray bytes(file.data(), static_cast<int>(file.size()));
    const QString name = platform::BundleExecutable(bytes);
    REQUIRE(name.isEmpty() || IsInItsFolder(name));

    QString text = QString::fromUtf8(bytes);
    const QString read = platform::BundleExecutable(Wrapped(text));
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
    REQUIRE(read.isEmpty() || (read == text && IsInItsFolder(read)));

    // The bundle doesn't contain any executable, so opening it must fail.
    MakeFile(folder / "bundle.app/Contents/Info.plist", file);
    REQUIRE(!platform::OpenBundle(folder / "bundle.app"));
    return 0;
}
