#include "pid_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <unistd.h>

PidFile::PidFile(const QString& path)
    : path_(path), content_("pid=" + QByteArray::number(static_cast<qint64>(getpid())) + "\n")
{
}

bool PidFile::Write(QString* error)
{
    const QString folder = QFileInfo(path_).absolutePath();
    if (!QDir().mkpath(folder)) {
        *error = QStringLiteral("cannot create folder '%1'").arg(folder);
        return false;
    }
    QSaveFile file(path_);
    if (!file.open(QIODevice::WriteOnly) || file.write(content_) != content_.size() || !file.commit()) {
        *error = QStringLiteral("cannot write '%1': %2").arg(path_, file.errorString());
        return false;
    }
    return true;
}

bool PidFile::Remove(QString* error)
{
    QFile file(path_);
    if (!file.open(QIODevice::ReadOnly)) {
        if (!file.exists()) {
            return true;
        }
        *error = QStringLiteral("cannot read '%1': %2").arg(path_, file.errorString());
        return false;
    }
    const QByteArray current = file.readAll();
    file.close();
    if (current != content_) {
        return true;
    }
    if (!file.remove()) {
        *error = QStringLiteral("cannot remove '%1': %2").arg(path_, file.errorString());
        return false;
    }
    return true;
}
