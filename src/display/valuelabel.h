#pragma once

#include "colorlabel.h"

// A ColorLabel under the name applications use for value read-outs.
class VORLIN_EXPORT ValueLabel : public ColorLabel
{
    Q_OBJECT
public:
    explicit ValueLabel(const QString& text, QWidget* parent = nullptr);
    explicit ValueLabel(QWidget* parent = nullptr);
};
