#include "packaging/build-number.h"

#include <QString>
#include <cerrno>
#include <cstring>
#include <limits>

#include "lib/platform/open-bundle.h"
#include "lib/platform/regular-file.h"
#include "ui-client/launcher/version-file.h"

namespace {

const std::size_t kMaxSize = std::size_t{1024} * 1024;  // bytes; the launcher refuses larger files

bool ReadSmallFile(const std::string& file, std::string& text, Fault& fault) {
    switch (platform::ReadRegularFile(file.c_str(), kMaxSize, text)) {
        case platform::Reading::Done:
            return true;
        case platform::Reading::Missing:
            fault.what = "is missing";
            return false;
        case platform::Reading::Refused:
            fault.what = "isn't a file of at most 1 MiB";
            return false;
        default:
            fault.what = std::string("can't be read: ") + std::strerror(errno);
            return false;
    }
}

}  // namespace

bool ReadBuildNumber(const std::string& file, int& number, Fault& fault) {
    std::string text;
    return ReadSmallFile(file, text, fault) && ParseBuildNumber(text, number, fault);
}

bool ParseBuildNumber(const std::string& text, int& number, Fault& fault) {
    VerInfo version;
    if (!ParseVersion(text, version)) {
        fault.what = "can't be read";
        return false;
    }
    // The launcher reads the number up to the first other character.
    const QString digits = QString::fromUtf8(version.build_version.c_str());
    bool is_number = false;
    number = digits.toInt(&is_number);
    if (is_number && number > 0 && QString::number(number) == digits) {
        return true;
    }
    fault.what = "has no build_version from 1 to " +
                 std::to_string(std::numeric_limits<int>::max()) +
                 " in its group [Version], but '" + digits.toStdString() + "'";
    fault.advice = "write the number in digits, greater than the last one shipped";
    return false;
}

bool ReadInfoPlist(const std::string& file, QByteArray& text, Fault& fault) {
    std::string content;
    if (!ReadSmallFile(file, content, fault)) {
        return false;
    }
    text = QByteArray::fromStdString(content);
    if (platform::BundleExecutable(text).isEmpty()) {
        fault.what = "isn't an XML property list with the key CFBundleExecutable";
        fault.advice = "add the key, or convert the file with: plutil -convert xml1";
        return false;
    }
    return true;
}
