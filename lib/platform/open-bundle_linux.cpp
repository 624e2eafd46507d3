#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QXmlStreamReader>

#include "lib/platform/open-bundle.h"

namespace {

const qint64 kMaxPlistSize = 1024 * 1024;  // bytes; a real one has a few thousand

QString ReadExecutableName(const QString& bundle) {
    QFile file(bundle + QStringLiteral("/Contents/Info.plist"));
    const QString name = file.open(QIODevice::ReadOnly)
                             ? platform::BundleExecutable(file.read(kMaxPlistSize))
                             : QString();
    return name.isEmpty() ? QFileInfo(bundle).completeBaseName() : name;
}

bool IsFileName(const QString& text) {
    return !text.isEmpty() && !text.contains(QLatin1Char('/')) &&
           !text.contains(QChar(QChar::Null)) && text != QLatin1String(".") &&
           text != QLatin1String("..");
}

}  // namespace

namespace platform {

QString BundleExecutable(const QByteArray& info_plist) {
    QXmlStreamReader xml(info_plist);
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("plist") ||
        !xml.readNextStartElement() || xml.name() != QLatin1String("dict")) {
        return QString();
    }
    QString key;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("key")) {
            key = xml.readElementText();
        } else if (xml.name() == QLatin1String("string") &&
                   key == QLatin1String("CFBundleExecutable")) {
            const QString name = xml.readElementText();
            return !xml.hasError() && IsFileName(name) ? name : QString();
        } else {
            xml.skipCurrentElement();
        }
    }
    return QString();
}

bool OpenBundle(const QString& path) {
    const QString program = path + QStringLiteral("/Contents/MacOS/") + ReadExecutableName(path);
    const QFileInfo info(program);
    if (!info.isFile() || !info.isExecutable()) {
        return false;
    }
    QProcess process;
    process.setProgram(program);
    process.setWorkingDirectory(QDir::homePath());
    // The application outlives us: it must not hold on to a terminal or pipe of ours.
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

}  // namespace platform
