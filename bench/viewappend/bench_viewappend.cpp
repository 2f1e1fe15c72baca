// Appending text rows of six columns to a shown, empty ViewWidget, and its first layout and
// paint afterwards, against a QTableWidget holding the same data, in the same run. Every case runs in a child
// process of its own so that its peak memory (VmHWM) is its alone; cases alternate between
// the two widgets and the best of the repeats is reported.
//   bench_viewappend [repeats]
#include "libvorlin.h"
#include "viewitem.h"
#include "viewwidget.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableWidget>

#include <cstdio>

namespace {

constexpr int Columns = 6;
const QList<int> Weights{2, 3, 1, 1, 2, 3};

QStringList rowTexts(int row)
{
    QStringList texts;
    for (int column = 0; column < Columns; ++column)
        texts << QStringLiteral("r%1 c%2").arg(row).arg(column);
    return texts;
}

qint64 peakKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QRegularExpression hwm(QStringLiteral("VmHWM:\\s+(\\d+)"));
    return hwm.match(QString::fromLatin1(status.readAll())).captured(1).toLongLong();
}

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

// Prints "append-ms layout-ms peak-KiB" for one case.
int runCase(const QString& widget, int rows)
{
    QWidget window;
    window.resize(900, 600);
    window.show();
    settle();
    const qint64 before = peakKiB();

    QElapsedTimer clock;
    clock.start();
    if (widget == QLatin1String("view")) {
        auto* view = new ViewWidget(&window);
        view->setHeaderContents({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("D"),
                                 QStringLiteral("E"), QStringLiteral("F")},
                                Weights);
        view->setGeometry(window.rect());
        view->show();
        settle();
        clock.restart();
        for (int row = 0; row < rows; ++row) {
            auto* item = new ViewItem;
            item->setItemContents(rowTexts(row), Weights);
            view->appendViewItem(item);
        }
        const double appendMs = clock.nsecsElapsed() / 1e6;
        clock.restart();
        settle();
        std::printf("%.1f %.1f %lld\n", appendMs, clock.nsecsElapsed() / 1e6, peakKiB() - before);
    } else {
        auto* table = new QTableWidget(&window);
        table->setColumnCount(Columns);
        table->setHorizontalHeaderLabels({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"),
                                          QStringLiteral("D"), QStringLiteral("E"), QStringLiteral("F")});
        table->setGeometry(window.rect());
        table->show();
        settle();
        clock.restart();
        for (int row = 0; row < rows; ++row) {
            table->insertRow(row);
            const QStringList texts = rowTexts(row);
            for (int column = 0; column < Columns; ++column)
                table->setItem(row, column, new QTableWidgetItem(texts.at(column)));
        }
        const double appendMs = clock.nsecsElapsed() / 1e6;
        clock.restart();
        settle();
        std::printf("%.1f %.1f %lld\n", appendMs, clock.nsecsElapsed() / 1e6, peakKiB() - before);
    }
    return 0;
}

struct Result
{
    double appendMs = 1e300;
    double layoutMs = 1e300;
    qint64 peakKiB = 0;
};

Result runChild(const QString& widget, int rows)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--case"), widget, QString::number(rows)});
    child.waitForFinished(-1);
    const QStringList fields = QString::fromLatin1(child.readAllStandardOutput()).simplified().split(QLatin1Char(' '));
    Result result;
    if (fields.size() == 3) {
        result.appendMs = fields.at(0).toDouble();
        result.layoutMs = fields.at(1).toDouble();
        result.peakKiB = fields.at(2).toLongLong();
    }
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    libVorlin::InitVorlin();
    const QStringList args = app.arguments();
    if (args.size() == 4 && args.at(1) == QLatin1String("--case"))
        return runCase(args.at(2), args.at(3).toInt());

    const int repeats = args.size() > 1 ? qMax(1, args.at(1).toInt()) : 5;
    std::printf("rows   widget        append ms  layout ms   total ms  peak MiB\n");
    for (int rows : {1000, 10000}) {
        Result best[2];
        const QString widgets[2] = {QStringLiteral("view"), QStringLiteral("table")};
        for (int repeat = 0; repeat < repeats; ++repeat) {
            for (int w = 0; w < 2; ++w) {
                const Result r = runChild(widgets[w], rows);
                if (r.appendMs + r.layoutMs < best[w].appendMs + best[w].layoutMs)
                    best[w] = r;
            }
        }
        const char* names[2] = {"ViewWidget", "QTableWidget"};
        for (int w = 0; w < 2; ++w) {
            std::printf("%-6d %-13s %9.1f %10.1f %10.1f %9.1f\n", rows, names[w], best[w].appendMs, best[w].layoutMs,
                        best[w].appendMs + best[w].layoutMs, best[w].peakKiB / 1024.0);
        }
        std::printf("%-6d ratio ViewWidget / QTableWidget (total time): %.1fx, peak memory: %.1fx\n", rows,
                    (best[0].appendMs + best[0].layoutMs) / (best[1].appendMs + best[1].layoutMs),
                    double(best[0].peakKiB) / qMax<qint64>(1, best[1].peakKiB));
    }
    return 0;
}
