#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QLabel>

// Shows a text as a QR code (error correction level H), stretched to fill the label.
class VORLIN_EXPORT QRcodeLabel : public QLabel
{
    Q_OBJECT
public:
    explicit QRcodeLabel(QWidget* parent = nullptr);

    // Draws the code at the label's current size; it is not redrawn on resize. A text
    // that cannot be encoded is logged and leaves the previous picture.
    void GenerateQRcode(const QString& text);
};
