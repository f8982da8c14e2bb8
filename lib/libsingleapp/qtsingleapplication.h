#pragma once

#include <QApplication>

#include <memory>

#include "single_instance_guard.h"

// An application object that knows whether another process of the same user
// already runs the same executable (same canonical path). The instance is
// claimed on the first isRunning() call and held until this object dies.
class QtSingleApplication : public QApplication {
    Q_OBJECT

public:
    // Qt 5 has no way to bring up a QApplication without its platform
    // integration, so GUIenabled is accepted for callers' sake only.
    QtSingleApplication(int& argc, char** argv, bool GUIenabled = true);
    ~QtSingleApplication() override;

    // True when another live process of this user holds the instance of this
    // executable. When the instance is free, the first call claims it for
    // this process; every later call returns the first answer unchanged.
    bool isRunning();

private:
    std::unique_ptr<SingleInstanceGuard> guard_;
};
