#include "verifycodelabel.h"

#include "roundedpath_p.h"

#include <QtCore/QTime>
#include <QtCore/QTimer>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

namespace {

bool isConfusable(QChar c)
{
    return QStringLiteral("0oOLl1iI").contains(c);
}

} // namespace

VerifyCodeLabel::VerifyCodeLabel(QWidget* parent)
    : QLabel(parent)
    , m_noisePointCount(height())
    , m_letters(m_letterCount)
    , m_colors(m_letterCount)
{
    const QTime now = QTime::currentTime();
    m_random.seed(quint32(now.second() * 1000 + now.msec()));
    // The first code appears once the event loop runs, when the label has its size.
    QTimer::singleShot(10, this, &VerifyCodeLabel::slotReflushVerifyCode);
}

QString VerifyCodeLabel::getVerificationCode() const
{
    return QString(m_letters.constData(), m_letters.size());
}

QString VerifyCodeLabel::getLowVerificationCode() const
{
    return getVerificationCode().toLower();
}

QString VerifyCodeLabel::getUpVerificationCode() const
{
    return getVerificationCode().toUpper();
}

void VerifyCodeLabel::setBackgroundColor(QColor color)
{
    m_backgroundColor = color;
}

void VerifyCodeLabel::setRadius(int radius)
{
    m_radius = radius;
}

QColor VerifyCodeLabel::randomColor()
{
    const int first = int(m_random.generate() % 255);
    const int second = int(m_random.generate() % 255);
    const int third = int(m_random.generate() % 255);
    return QColor(third, second, first, 255);
}

QChar VerifyCodeLabel::produceRandomLetter()
{
    // The class is chosen once; a confusable character is redrawn within its class.
    const char base[] = {'0', 'a', 'A'};
    const quint32 span[] = {10, 26, 26};
    const int kind = int(m_random.generate() % 3);
    QChar letter;
    do {
        letter = QChar(base[kind] + int(m_random.generate() % span[kind]));
    } while (isConfusable(letter));
    return letter;
}

void VerifyCodeLabel::slotReflushVerifyCode()
{
    QFont font = this->font();
    font.setPointSize(height() * 3 / 4);
    setFont(font);
    for (int i = 0; i < m_letterCount; ++i) {
        m_colors[i] = randomColor();
        m_letters[i] = produceRandomLetter();
    }
    update();
    Q_EMIT sigVerificationCodeChanged();
}

void VerifyCodeLabel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        slotReflushVerifyCode();
    QLabel::mousePressEvent(event);
}

void VerifyCodeLabel::paintEvent(QPaintEvent*)
{
    if (width() <= 0 || height() <= 0)
        return;
    QPainter painter(this);
    painter.setFont(font());
    painter.setPen(m_backgroundColor);
    painter.setBrush(m_backgroundColor);
    painter.drawPath(vorlin::roundedRectPath(rect(), qAbs(m_radius)));

    // The noise is new on every repaint; only a refresh changes the characters.
    const auto randomPoint = [this] {
        return QPoint(int(m_random.generate() % quint32(width())), int(m_random.generate() % quint32(height())));
    };
    for (int i = 0; i < m_noisePointCount; ++i) {
        painter.setPen(randomColor());
        painter.drawPoint(randomPoint());
    }
    for (int i = 0; i < 5; ++i) {
        painter.setPen(randomColor());
        painter.drawLine(randomPoint(), randomPoint());
    }

    for (int i = 0; i < m_letterCount; ++i) {
        painter.setPen(m_colors[i]);
        const int x = ((width() * 3 / 4) / m_letterCount) * i + width() / 16;
        painter.drawText(x, height() * 7 / 8, QString(m_letters[i]));
    }
}
