// Paint cost of IconTextButton (icon, caption, border and hint dot at 120 x 32) against
// QPushButton with an icon and caption in the Fusion style at the same size, in the same run.
// Each round renders every button a batch of times into a QImage; rounds alternate so that
// both see the same machine state.
//   bench_buttonpaint [renders-per-button]
#include "../stats.h"
#include "icontextbutton.h"
#include "libvorlin.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleFactory>

#include <cstdio>
#include <functional>

namespace {

constexpr int Rounds = 10;
const QSize ButtonSize(120, 32);

QPixmap makeIcon()
{
    QPixmap icon(16, 16);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(64, 158, 255));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(1, 1, 14, 14);
    return icon;
}

// Microseconds per render, one value per round. changeLook runs before every render.
std::vector<double> measure(QWidget* widget, QImage& image, int renders,
                            const std::function<void(int)>& changeLook = {})
{
    std::vector<double> perRender;
    for (int round = 0; round < Rounds; ++round) {
        QElapsedTimer clock;
        clock.start();
        for (int i = 0; i < renders; ++i) {
            if (changeLook)
                changeLook(i);
            widget->render(&image);
        }
        perRender.push_back(double(clock.nsecsElapsed()) / 1000.0 / renders);
    }
    return perRender;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    libVorlin::InitVorlin();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const int renders = argc > 1 ? qMax(1, QString::fromLocal8Bit(argv[1]).toInt()) : 10000;
    const QPixmap icon = makeIcon();

    IconTextButton ours;
    ours.resize(ButtonSize);
    ours.setRadius(4);
    ours.setText(QStringLiteral("Record"));
    ours.setTextAlignment(IconTextButton::AlignTextRight);
    ours.setIcon(icon, icon, icon, icon);
    ours.setBackgroundColor(QColor(18, 99, 196), QColor(13, 90, 182), QColor(10, 83, 170), QColor(241, 241, 241));
    ours.setTextColor(Qt::white, Qt::white, Qt::white, Qt::gray);
    ours.setBorderColor(Qt::white, Qt::white, Qt::white, Qt::gray);
    ours.setBorderWidget(1);
    ours.enableHintColor(true);
    ours.setHintColor(Qt::red);

    QPushButton peer(QIcon(icon), QStringLiteral("Record"));
    peer.resize(ButtonSize);

    QImage image(ButtonSize, QImage::Format_ARGB32_Premultiplied);
    // Warm up caches (glyphs, style pixmaps) before measuring.
    measure(&ours, image, 100);
    measure(&peer, image, 100);

    const int perRound = renders / (2 * Rounds) + 1;
    std::vector<double> oursTimes, changingTimes, peerTimes;
    for (int pass = 0; pass < 2; ++pass) {
        for (double t : measure(&ours, image, perRound))
            oursTimes.push_back(t);
        // A new hint colour every time: each paint draws the whole look afresh.
        const auto newLook = [&ours](int i) { ours.setHintColor(QColor::fromRgb(QRgb(0xff0000 + (i & 0xff)))); };
        for (double t : measure(&ours, image, perRound, newLook))
            changingTimes.push_back(t);
        for (double t : measure(&peer, image, perRound))
            peerTimes.push_back(t);
    }
    const double oursMedian = percentile(oursTimes, 0.5);
    const double changingMedian = percentile(changingTimes, 0.5);
    const double peerMedian = percentile(peerTimes, 0.5);
    std::printf("renders per button: %d (%d rounds), %dx%d\n", renders, 2 * Rounds, ButtonSize.width(),
                ButtonSize.height());
    std::printf("%-40s %8.2f us/paint (p90 %.2f)\n", "IconTextButton (icon, text, border, dot)", oursMedian,
                percentile(oursTimes, 0.9));
    std::printf("%-40s %8.2f us/paint (p90 %.2f)\n", "IconTextButton, new look every paint",
                changingMedian, percentile(changingTimes, 0.9));
    std::printf("%-40s %8.2f us/paint (p90 %.2f)\n", "QPushButton, Fusion (icon, text)", peerMedian,
                percentile(peerTimes, 0.9));
    std::printf("ratio IconTextButton / QPushButton: %.2f (new look every paint: %.2f)\n",
                oursMedian / peerMedian, changingMedian / peerMedian);
    libVorlin::FreeVorlin();
    return 0;
}
