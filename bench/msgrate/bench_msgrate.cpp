// Sustained MsgViewWidget::addItem rate at the view's cap of 200 rows, with the event loop
// running: a zero-interval timer adds a batch of messages on every pass of the loop, and the
// time between two passes is the loop's stall (adding, the deferred layout and painting).
// Batch sizes grow until the longest stall passes 16 ms; the best rate within it is reported.
// As a peer measured in the same run, the same load goes into a QListWidget capped at 200.
//   bench_msgrate [seconds-per-batch-size]
#include "../stats.h"
#include "libvorlin.h"
#include "msgviewwidget.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListWidget>

#include <cstdio>
#include <functional>

namespace {

constexpr double StallBoundMs = 16.0;

MsgInfoT message(int i)
{
    return MsgInfoT{i % 3, QStringLiteral("Waypoint %1 reached, holding altitude 120 m at 8.5 m/s").arg(i),
                    QDateTime::currentDateTime()};
}

struct Run
{
    double perSecond = 0;
    double maxStallMs = 0;
    double p99StallMs = 0;
};

// Runs the event loop for the given time, calling add(batch) on every pass.
Run measure(int batch, double seconds, const std::function<void(int)>& add)
{
    std::vector<double> stalls;
    QElapsedTimer total;
    QElapsedTimer pass;
    int added = 0;
    QTimer producer;
    producer.setInterval(0);
    QObject::connect(&producer, &QTimer::timeout, [&] {
        if (pass.isValid())
            stalls.push_back(pass.nsecsElapsed() / 1e6);
        for (int i = 0; i < batch; ++i)
            add(added++);
        pass.start();
        if (total.elapsed() > seconds * 1000)
            QCoreApplication::exit();
    });
    total.start();
    producer.start();
    QCoreApplication::exec();
    Run run;
    run.perSecond = added / (total.nsecsElapsed() / 1e9);
    // The first passes fill caches and font metrics; they are not part of the steady state.
    if (stalls.size() > 10)
        stalls.erase(stalls.begin(), stalls.begin() + 5);
    run.maxStallMs = stalls.empty() ? 0 : *std::max_element(stalls.begin(), stalls.end());
    run.p99StallMs = percentile(stalls, 0.99);
    return run;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    libVorlin::InitVorlin();
    const double seconds = argc > 1 ? qMax(0.2, QString::fromLocal8Bit(argv[1]).toDouble()) : 1.5;

    MsgViewWidget view;
    view.resize(420, 600);
    view.show();
    QListWidget list;
    list.resize(420, 600);
    list.show();
    for (int i = 0; i < 200; ++i) {
        view.addItem(message(i));
        list.insertItem(0, message(i).text);
    }
    QCoreApplication::processEvents();

    const auto addToView = [&](int i) { view.addItem(message(i)); };
    const auto addToList = [&](int i) {
        const MsgInfoT info = message(i);
        list.insertItem(0, info.time.toString(QStringLiteral("MM-dd hh:mm:ss ")) + info.text);
        if (list.count() > 200)
            delete list.takeItem(list.count() - 1);
    };

    std::printf("batch   MsgViewWidget msg/s  max stall ms  p99 ms   QListWidget msg/s  max stall ms\n");
    double best = 0;
    int bestBatch = 0;
    for (int batch : {1, 2, 4, 8, 16, 32, 64}) {
        const Run v = measure(batch, seconds, addToView);
        const Run l = measure(batch, seconds, addToList);
        std::printf("%5d %20.0f %13.1f %7.1f %19.0f %13.1f\n", batch, v.perSecond, v.maxStallMs, v.p99StallMs,
                    l.perSecond, l.maxStallMs);
        if (v.maxStallMs < StallBoundMs && v.perSecond > best) {
            best = v.perSecond;
            bestBatch = batch;
        }
        if (v.maxStallMs >= 2 * StallBoundMs)
            break;
    }
    std::printf("best MsgViewWidget rate with every stall under %.0f ms: %.0f messages/s (batch %d), %d rows kept\n",
                StallBoundMs, best, bestBatch, int(view.items().size()));
    return 0;
}
