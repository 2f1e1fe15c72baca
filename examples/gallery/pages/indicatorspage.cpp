// "Indicators": the spinners, the ring progress bar on a slider, a movie widget fed by a
// worker thread, a verification code to copy and a QR code of a typed text.
#include "gallerypages.h"

#include "bluerotatingwaitingwidget.h"
#include "colorlabel.h"
#include "custommovieevent.h"
#include "moviewidget.h"
#include "qrcodelabel.h"
#include "rotatingwaitingwidget.h"
#include "roundprogressbar.h"
#include "roundwaitwidget.h"
#include "slidermarker.h"
#include "sliderwidget.h"
#include "verifycodelabel.h"
#include "yellowrotatingwaitingwidget.h"

#include <QtCore/QEvent>
#include <QtCore/QCoreApplication>
#include <QtCore/QThread>
#include <QtCore/QtMath>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

namespace {

// Draws frame number n of a small synthetic camera picture: a sweeping radar beam.
QImage* makeFrame(int n)
{
    auto* frame = new QImage(320, 180, QImage::Format_RGB32);
    frame->fill(QColor(10, 30, 24));
    QPainter painter(frame);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre(160, 90);
    painter.setPen(QColor(40, 140, 90));
    for (int r = 20; r <= 80; r += 20)
        painter.drawEllipse(centre, r, r);
    const qreal angle = qDegreesToRadians(n * 6.0);
    painter.setPen(QPen(QColor(90, 255, 160), 2));
    painter.drawLine(centre, centre + QPointF(80 * qCos(angle), 80 * qSin(angle)));
    painter.drawText(QRectF(8, 4, 200, 20), QStringLiteral("frame %1").arg(n));
    return frame;
}

// Produces frames at 25 per second on its own thread and posts them to the widget.
class FrameSource : public QThread
{
public:
    void setReceiver(QObject* receiver) { m_receiver = receiver; }

protected:
    void run() override
    {
        for (int n = 0; !isInterruptionRequested(); ++n) {
            CustomMovieEvent::AsyncPostEvent(makeFrame(n), m_receiver);
            msleep(40);
        }
    }

private:
    QObject* m_receiver = nullptr;
};

} // namespace

class IndicatorsPage : public TranslatedPage
{
    Q_OBJECT
public:
    IndicatorsPage()
    {
        auto* grid = new QGridLayout(this);
        grid->addWidget(createSpinners(), 0, 0);
        grid->addWidget(createProgress(), 0, 1);
        grid->addWidget(createMovie(), 1, 0);
        grid->addWidget(createCodes(), 1, 1);
        grid->setRowStretch(1, 1);
        retranslate();
    }

    ~IndicatorsPage() override
    {
        stopFrames();
    }


    // The worker runs only while the page is on screen.
    void showEvent(QShowEvent* event) override
    {
        QWidget::showEvent(event);
        m_frames.start();
    }

    void hideEvent(QHideEvent* event) override
    {
        stopFrames();
        QWidget::hideEvent(event);
    }

private:
    QGroupBox* createSpinners()
    {
        m_spinnersBox = new QGroupBox;
        auto* row = new QHBoxLayout(m_spinnersBox);
        const auto sized = [](QWidget* widget) {
            widget->setFixedSize(64, 64);
            return widget;
        };
        row->addWidget(sized(new RotatingWaitingWidget));
        row->addWidget(sized(new BlueRotatingWaitingWidget));
        row->addWidget(sized(new YellowRotatingWaitingWidget));
        auto* ring = new RoundWaitWidget;
        ring->setRotateRingColor(QColor(18, 99, 196), QColor(220, 224, 230));
        ring->setRotateRingWidth(6);
        row->addWidget(sized(ring));
        row->addStretch();
        return m_spinnersBox;
    }

    QGroupBox* createProgress()
    {
        m_progressBox = new QGroupBox;
        auto* row = new QHBoxLayout(m_progressBox);
        auto* bar = new RoundProgressBar;
        bar->setFixedSize(110, 110);
        bar->setProcessRingWidth(10);
        bar->setProsessBarColor(QStringLiteral("#12C47A"), QStringLiteral("#DDE2E8"), QStringLiteral("#303840"));
        bar->setMaxValue(200);
        auto* slider = new SliderMarker(Qt::Horizontal);
        slider->setRange(0, 200);
        slider->setFixedWidth(200);
        connect(slider, &QSlider::valueChanged, bar, &RoundProgressBar::setValue);
        connect(slider, &QSlider::valueChanged, slider, &SliderMarker::slot_SliderMove);
        slider->setValue(130);
        auto* panel = new SliderWidget;
        panel->slider()->setRange(0, 100);
        panel->slider()->setValue(60);
        row->addWidget(bar);
        row->addWidget(slider);
        row->addWidget(panel);
        row->addStretch();
        return m_progressBox;
    }

    QGroupBox* createMovie()
    {
        m_movieBox = new QGroupBox;
        auto* column = new QVBoxLayout(m_movieBox);
        m_movie = new MovieWidget;
        m_movie->setMinimumSize(320, 180);
        column->addWidget(m_movie, 1);
        m_frames.setReceiver(m_movie);
        // Something to show until the worker's first frame arrives.
        CustomMovieEvent::AsyncPostEvent(makeFrame(0), m_movie);
        return m_movieBox;
    }

    QGroupBox* createCodes()
    {
        m_codesBox = new QGroupBox;
        auto* grid = new QGridLayout(m_codesBox);
        auto* code = new VerifyCodeLabel;
        code->setFixedSize(120, 40);
        code->setBackgroundColor(QColor(240, 244, 248));
        code->setRadius(6);
        m_codeEntry = new QLineEdit;
        m_codeResult = new ColorLabel;
        m_codeResult->setFixedWidth(200);
        m_codeResult->setRadius(4);
        const auto check = [this, code] {
            // Compare case-insensitively by converting both sides the same way.
            const bool match = m_codeEntry->text().toUpper() == code->getUpVerificationCode();
            m_codeResult->setBackgroundColor(true, match ? QColor(200, 240, 215) : QColor(250, 220, 215));
            m_codeResult->setText(match ? tr("Code matches") : tr("Type the code shown"));
        };
        connect(m_codeEntry, &QLineEdit::textChanged, this, check);
        connect(code, &VerifyCodeLabel::sigVerificationCodeChanged, this, check);
        grid->addWidget(code, 0, 0);
        grid->addWidget(m_codeEntry, 0, 1);
        grid->addWidget(m_codeResult, 0, 2);

        m_qrText = new QLineEdit(QStringLiteral("https://vorlin.example/gallery"));
        m_qr = new QRcodeLabel;
        m_qr->setFixedSize(180, 180);
        connect(m_qrText, &QLineEdit::textChanged, m_qr, &QRcodeLabel::GenerateQRcode);
        m_qr->GenerateQRcode(m_qrText->text());
        // The code fills its label edge to edge; scanners want a light margin around it.
        auto* quietZone = new QWidget;
        quietZone->setStyleSheet(QStringLiteral("background: white;"));
        quietZone->setAttribute(Qt::WA_StyledBackground);
        auto* margin = new QHBoxLayout(quietZone);
        margin->setContentsMargins(16, 16, 16, 16);
        margin->addWidget(m_qr);
        grid->addWidget(m_qrText, 1, 0, 1, 3);
        grid->addWidget(quietZone, 2, 0, 1, 3, Qt::AlignLeft | Qt::AlignTop);
        grid->setRowStretch(2, 1);
        return m_codesBox;
    }

    void stopFrames()
    {
        m_frames.requestInterruption();
        m_frames.wait();
        // Frames still queued are owned by nobody until delivered: deliver them now.
        QCoreApplication::sendPostedEvents(m_movie, CustomMovieEvent::ComMoviEventType);
    }

    void retranslate() override
    {
        m_spinnersBox->setTitle(tr("Waiting"));
        m_progressBox->setTitle(tr("Progress"));
        m_movieBox->setTitle(tr("Movie frames from a worker thread"));
        m_codesBox->setTitle(tr("Verification and QR codes"));
        m_codeEntry->setPlaceholderText(tr("Enter the code (click it for a new one)"));
        m_qrText->setPlaceholderText(tr("Text for the QR code"));
    }

    QGroupBox* m_spinnersBox;
    QGroupBox* m_progressBox;
    QGroupBox* m_movieBox;
    QGroupBox* m_codesBox;
    MovieWidget* m_movie;
    FrameSource m_frames;
    QLineEdit* m_codeEntry;
    ColorLabel* m_codeResult;
    QLineEdit* m_qrText;
    QRcodeLabel* m_qr;
};

GALLERY_PAGE(IndicatorsPage, QT_TRANSLATE_NOOP("Gallery", "Indicators"), 65)

#include "indicatorspage.moc"
