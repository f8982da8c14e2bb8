// The user interface's pid file, ~/.Calderix/ui.pid, through which the
// launcher finds the running user interface to stop it before an upgrade.
#pragma once

#include <QString>

class PidFile {
public:
    explicit PidFile(const QString& path);

    // Writes "pid=<this process>\n", creating the folder when missing; the
    // file appears whole or not at all. False with *error set on failure.
    bool Write(QString* error);
    // Removes the file while it still names this process: a newer instance
    // may have replaced it. True also when there is nothing to remove.
    bool Remove(QString* error);

private:
    QString path_;
    QByteArray content_;
};
