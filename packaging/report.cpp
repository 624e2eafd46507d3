#include "packaging/report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>

#include "lib/liblogger/printable.h"
#include "lib/platform/open-bundle.h"

namespace {

QString ToQt(const std::string& text) {
    return QString::fromStdString(Printable(text));
}

QJsonArray ToJson(const Faults& faults) {
    QJsonArray list;
    for (const Fault& fault : faults) {
        list.append(QJsonObject{{QStringLiteral("where"), ToQt(fault.where)},
                                {QStringLiteral("what"), ToQt(fault.what)},
                                {QStringLiteral("advice"), ToQt(fault.advice)}});
    }
    return list;
}

// The keys of the client's property list that the bundle takes over.
QJsonObject NamesIn(const QByteArray& info_plist) {
    QJsonObject names;
    for (const char* const key : {"CFBundleDisplayName", "CFBundleIconFile", "CFBundleIdentifier",
                                  "CFBundleName", "CFBundleShortVersionString"}) {
        const QString name = QString::fromLatin1(key);
        names[name] = platform::PropertyListText(info_plist, name);
    }
    return names;
}

void PrintError(const std::string& line) {
    static_cast<void>(std::fprintf(stderr, "%s\n", line.c_str()));
}

}  // namespace

int Report::print() const {
    if (options_.json) {
        printJson();
    } else if (faults.empty()) {
        printText();
    } else {
        printFaults();
    }
    return faults.empty() && std::fflush(stdout) == 0 ? 0 : 1;
}

void Report::printText() const {
    for (const std::string& warning : summary.warnings) {
        PrintError("make-package: warning: " + Printable(warning));
    }
    std::printf("%s: %sbuild %d, %zu entries", Printable(options_.paths.back()).c_str(),
                options_.check ? "good: " : "", summary.build_number, summary.entries);
    if (!summary.sha256.empty()) {
        std::printf(", %lld bytes\nSHA-256: %s", static_cast<long long>(summary.size),
                    summary.sha256.c_str());
    }
    std::printf("\n");
}

void Report::printFaults() const {
    if (faults.size() == 1) {
        PrintError("make-package: " + Text(faults.front()));
        return;
    }
    PrintError("make-package: " + Printable(options_.paths.front()) + ": " +
               std::to_string(faults.size()) + " faults");
    std::size_t number = 0;
    for (const Fault& fault : faults) {
        PrintError(std::to_string(++number) + ". " + Text(fault));
    }
}

void Report::printJson() const {
    QJsonObject result{{QStringLiteral("good"), faults.empty()},
                       {QStringLiteral("path"), ToQt(options_.paths.back())}};
    if (faults.empty()) {
        result[QStringLiteral("build")] = summary.build_number;
        result[QStringLiteral("entries")] = static_cast<qint64>(summary.entries);
        result[QStringLiteral("names")] = NamesIn(summary.info_plist);
        QJsonArray warnings;
        for (const std::string& warning : summary.warnings) {
            warnings.append(ToQt(warning));
        }
        result[QStringLiteral("warnings")] = warnings;
    } else {
        result[QStringLiteral("faults")] = ToJson(faults);
    }
    if (!summary.sha256.empty()) {
        result[QStringLiteral("size")] = static_cast<qint64>(summary.size);
        result[QStringLiteral("sha256")] = ToQt(summary.sha256);
    }
    std::printf("%s", QJsonDocument(result).toJson().constData());
}
