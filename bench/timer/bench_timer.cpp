// Lateness of a 1 ms periodic timer against the ideal grid: PreciseTimer, QTimer with
// Qt::PreciseTimer, and a bare clock_nanosleep loop (the floor), idle and with the GUI
// thread busy 5 ms out of every 10 ms.
//   bench_timer [ticks]
#include "../stats.h"
#include "precisetimer.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>
#include <time.h>

namespace {

using Clock = std::chrono::steady_clock;

struct Lateness
{
    double p50us, p99us, maxus, periodUs;
};

// The ideal grid is the 1 ms grid that no tick precedes, so thread start-up is not counted as
// lateness; drift shows as lateness growing along the run and as a period above 1 ms.
Lateness measure(const std::vector<Clock::time_point>& ticks)
{
    Clock::time_point start = ticks.front();
    for (size_t k = 0; k < ticks.size(); ++k)
        start = std::min(start, ticks[k] - std::chrono::milliseconds(long(k)));
    std::vector<double> late;
    for (size_t k = 0; k < ticks.size(); ++k) {
        const auto ideal = start + std::chrono::milliseconds(long(k));
        late.push_back(std::chrono::duration<double, std::micro>(ticks[k] - ideal).count());
    }
    const double period =
        std::chrono::duration<double, std::micro>(ticks.back() - ticks.front()).count() / double(ticks.size() - 1);
    return {percentile(late, 0.5), percentile(late, 0.99), percentile(late, 1.0), period};
}

// Keeps the GUI thread busy for 5 ms of every 10 ms while `busy` is set.
void startLoad(QTimer& load, bool busy)
{
    if (!busy)
        return;
    QObject::connect(&load, &QTimer::timeout, [] {
        const auto until = Clock::now() + std::chrono::milliseconds(5);
        while (Clock::now() < until) {
        }
    });
    load.start(10);
}

Lateness runPreciseTimer(int count, bool busy)
{
    std::vector<Clock::time_point> ticks;
    ticks.reserve(size_t(count));
    PreciseTimer timer;
    QEventLoop loop;
    std::atomic<bool> done{false};
    QObject::connect(&timer, &PreciseTimer::timeout, [&] {
        if (done)
            return;
        ticks.push_back(Clock::now());
        if (int(ticks.size()) == count) {
            done = true;
            QMetaObject::invokeMethod(&loop, "quit", Qt::QueuedConnection);
        }
    });
    QTimer load;
    startLoad(load, busy);
    timer.start(1);
    loop.exec();
    timer.stop();
    return measure(ticks);
}

Lateness runQTimer(int count, bool busy)
{
    std::vector<Clock::time_point> ticks;
    ticks.reserve(size_t(count));
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(1);
    QEventLoop loop;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        ticks.push_back(Clock::now());
        if (int(ticks.size()) == count)
            loop.quit();
    });
    QTimer load;
    startLoad(load, busy);
    timer.start();
    loop.exec();
    return measure(ticks);
}

Lateness runBareLoop(int count, bool busy)
{
    std::vector<Clock::time_point> ticks;
    ticks.reserve(size_t(count));
    QTimer load;
    startLoad(load, busy);
    QEventLoop loop;
    std::thread sleeper([&] {
        timespec next;
        clock_gettime(CLOCK_MONOTONIC, &next);
        for (int k = 0; k < count; ++k) {
            next.tv_nsec += 1000000;
            if (next.tv_nsec >= 1000000000) {
                next.tv_nsec -= 1000000000;
                ++next.tv_sec;
            }
            clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &next, nullptr);
            ticks.push_back(Clock::now());
        }
        QMetaObject::invokeMethod(&loop, "quit", Qt::QueuedConnection);
    });
    loop.exec();
    sleeper.join();
    return measure(ticks);
}

void print(const char* name, const Lateness& r, const Lateness& floor, const Lateness& qtimer)
{
    std::printf("%-28s %8.1f %8.1f %9.1f %9.2f   %6.2fx   %6.3fx\n", name, r.p50us, r.p99us, r.maxus, r.periodUs / 1000.0,
                r.p99us / floor.p99us, r.p99us / qtimer.p99us);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const int count = argc > 1 ? std::atoi(argv[1]) : 5000;
    std::printf("%d ticks of 1 ms; lateness against the ideal grid in microseconds\n", count);
    for (bool busy : {false, true}) {
        std::printf("\n%s\n", busy ? "GUI thread busy 5 ms of every 10 ms" : "idle");
        std::printf("%-28s %8s %8s %9s %9s   %7s   %7s\n", "timer", "p50", "p99", "max", "period ms", "p99/bare", "p99/QTimer");
        const Lateness bare = runBareLoop(count, busy);
        const Lateness qtimer = runQTimer(count, busy);
        const Lateness precise = runPreciseTimer(count, busy);
        print("PreciseTimer", precise, bare, qtimer);
        print("QTimer (Qt::PreciseTimer)", qtimer, bare, qtimer);
        print("bare clock_nanosleep loop", bare, bare, qtimer);
    }
    return 0;
}
