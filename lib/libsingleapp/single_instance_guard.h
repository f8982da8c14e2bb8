#pragma once

#include <QString>

// The single-instance rule for one executable and the current user: one
// process at a time may hold it. QtSingleApplication holds it for its own
// executable; any process may hold it for another executable's path (tests
// stand in for a running program this way).
class SingleInstanceGuard {
public:
    explicit SingleInstanceGuard(const QString& executablePath);
    ~SingleInstanceGuard();
    SingleInstanceGuard(const SingleInstanceGuard&) = delete;
    SingleInstanceGuard& operator=(const SingleInstanceGuard&) = delete;

    // True when another live process of this user holds the instance of the
    // executable. When the instance is free, the first call claims it for
    // this process; every later call returns the first answer unchanged.
    bool isRunning();

private:
    enum class State { Unchecked, Owner, Running, Unguarded };
    State claim();

    QString executablePath_;
    State state_ = State::Unchecked;
    int lockHandle_ = -1;
};
