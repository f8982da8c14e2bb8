// The bundle's version file and property list, read and written with the
// same Qt classes the launcher and the system use, so that a value vpkpack
// accepts is the value the launcher sees.
#include <QByteArray>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include "vpkpack_p.h"

namespace vpkpack {

namespace {

// QSettings reads only files; a private folder keeps the copy out of reach.
Status WriteScratch(const QString& path, const std::string& data)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(data.data(), static_cast<qint64>(data.size())) != static_cast<qint64>(data.size()) ||
        !file.flush()) {
        return Refuse(Error::IoError, path.toStdString(), file.errorString().toStdString());
    }
    file.close();
    return {};
}

} // namespace

Status ParseVersionFile(const std::string& data, VersionInfo* info)
{
    QTemporaryDir scratch;
    if (!scratch.isValid()) {
        return Refuse(Error::IoError, kInfoEntry, scratch.errorString().toStdString());
    }
    const QString path = scratch.filePath(layout::kInfoName);
    Status status = WriteScratch(path, data);
    if (!status.ok()) {
        return status;
    }
    QSettings settings(path, QSettings::IniFormat);
    if (settings.status() != QSettings::NoError) {
        return Refuse(Error::BadInfo, kInfoEntry);
    }
    VersionInfo read;
    settings.beginGroup(layout::kVersionSection);
    for (const char* key : layout::kVersionKeys) {
        if (settings.contains(key)) {
            read.values[key] = settings.value(key).toString().toStdString();
        }
    }
    settings.endGroup();
    const auto build = read.values.find(layout::kBuildKey);
    if (build == read.values.end()) {
        return Refuse(Error::MissingBuildVersion, kInfoEntry);
    }
    // Only a number that reads the same in the launcher and here.
    int number = 0;
    if (!layout::IsPlainBuildNumber(build->second, &number)) {
        return Refuse(Error::BadBuildVersion, kInfoEntry, std::string(layout::kBuildKey) + "=" + build->second);
    }
    read.build = number;
    *info = read;
    return {};
}

Status FormatVersionFile(const VersionInfo& info, std::string* data)
{
    QTemporaryDir scratch;
    if (!scratch.isValid()) {
        return Refuse(Error::IoError, layout::kInfoName, scratch.errorString().toStdString());
    }
    const QString path = scratch.filePath(layout::kInfoName);
    {
        QSettings settings(path, QSettings::IniFormat);
        settings.beginGroup(layout::kVersionSection);
        for (const char* key : layout::kVersionKeys) {
            const auto value = info.values.find(key);
            if (value != info.values.end()) {
                settings.setValue(key, QString::fromStdString(value->second));
            }
        }
        settings.endGroup();
        settings.sync();
        if (settings.status() != QSettings::NoError) {
            return Refuse(Error::IoError, path.toStdString(), "QSettings could not write the file");
        }
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Refuse(Error::IoError, path.toStdString(), file.errorString().toStdString());
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        return Refuse(Error::IoError, path.toStdString(), file.errorString().toStdString());
    }
    data->assign(bytes.constData(), static_cast<size_t>(bytes.size()));
    return {};
}

Status ReadPlistString(const std::string& plist, const char* key, std::string* value)
{
    if (plist.compare(0, 6, "bplist") == 0) {
        return Refuse(Error::BadInfoPlist, kPlistEntry, "binary property list; write it in XML form");
    }
    QXmlStreamReader xml(QByteArray::fromRawData(plist.data(), static_cast<int>(plist.size())));
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("plist")) {
        return Refuse(Error::BadInfoPlist, kPlistEntry,
                      xml.hasError() ? xml.errorString().toStdString() : "no <plist> element");
    }
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("dict")) {
        return Refuse(Error::BadInfoPlist, kPlistEntry,
                      xml.hasError() ? xml.errorString().toStdString() : "no <dict> in <plist>");
    }
    std::string found;
    while (xml.readNextStartElement()) {
        if (xml.name() != QLatin1String("key")) {
            xml.skipCurrentElement();
            continue;
        }
        const QString name = xml.readElementText();
        if (!xml.readNextStartElement()) {
            break;
        }
        if (name != QLatin1String(key)) {
            xml.skipCurrentElement();
            continue;
        }
        if (xml.name() != QLatin1String("string")) {
            return Refuse(Error::BadInfoPlist, kPlistEntry, std::string(key) + " is not a <string>");
        }
        found = xml.readElementText().toStdString();
        if (found.empty()) {
            return Refuse(Error::BadInfoPlist, kPlistEntry, std::string(key) + " is empty");
        }
    }
    // A list cut short after the dictionary is still a broken list.
    while (!xml.atEnd()) {
        xml.readNext();
    }
    if (xml.hasError()) {
        return Refuse(Error::BadInfoPlist, kPlistEntry,
                      xml.errorString().toStdString() + " at line " + std::to_string(xml.lineNumber()));
    }
    *value = found;
    return {};
}

} // namespace vpkpack
