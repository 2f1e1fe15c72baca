#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QLineEdit>

// One frameless, centred number field of an IPAddressEdit.
class VORLIN_EXPORT IpInputEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit IpInputEdit(QWidget* parent = nullptr);
};
