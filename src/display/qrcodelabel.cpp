#include "qrcodelabel.h"

#include <QtCore/QDebug>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>

#include <qrencode.h>

QRcodeLabel::QRcodeLabel(QWidget* parent)
    : QLabel(parent)
{
}

void QRcodeLabel::GenerateQRcode(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    QRcode* code = QRcode_encodeString(bytes.constData(), 2, QR_ECLEVEL_H, QR_MODE_8, 1);
    if (!code) {
        qDebug().noquote() << "GenerateQRcode error:" << text;
        return;
    }
    const int modules = qMax(code->width, 1);
    const int w = width();
    const int h = height();
    // Modules stretch to fill the label and no quiet zone is added: the owner places the
    // label on a light background with room around it.
    const qreal sx = qreal(w) / modules;
    const qreal sy = qreal(h) / modules;
    QImage image(w, h, QImage::Format_ARGB32);
    {
        QPainter painter(&image);
        painter.setPen(Qt::NoPen);
        painter.fillRect(image.rect(), Qt::white);
        painter.setBrush(Qt::black);
        for (int y = 0; y < code->width; ++y) {
            for (int x = 0; x < code->width; ++x) {
                if (code->data[y * code->width + x] & 1)
                    painter.drawRect(QRectF(x * sx, y * sy, sx, sy));
            }
        }
    }
    QRcode_free(code);
    setPixmap(QPixmap::fromImage(image));
}
