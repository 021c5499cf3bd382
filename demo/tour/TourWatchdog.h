#pragma once
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <QString>

// Ends a run without anyone at the keyboard that stopped making progress: a
// dialog nobody closes keeps its event loop waiting for ever, out of the run's
// reach. The watch runs on a thread of its own, since the main thread may be
// the one stuck.
class TourWatchdog
{
public:
    // Gets what the run was doing and which windows were open. By default it
    // prints that on stderr and ends the process with status 3.
    typedef std::function<void(const std::string& report)> Stuck;

    // Fires once when limit passes without a call to at().
    explicit TourWatchdog(std::chrono::milliseconds limit, Stuck stuck = nullptr);
    ~TourWatchdog();
    TourWatchdog(const TourWatchdog&) = delete;
    TourWatchdog& operator=(const TourWatchdog&) = delete;

    // The run moved on to step, which the report names if it stops there.
    void at(const QString& step);

private:
    void watch();

    const std::chrono::milliseconds m_limit;
    const Stuck m_stuck;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::string m_step;
    std::chrono::steady_clock::time_point m_deadline;
    bool m_done = false;
    std::thread m_thread;
};
