#pragma once

#include "framedrag_p.h"

#include <QtCore/QPointer>

#include <atomic>
#include <cstdint>

class IMainWindow;
class QTranslator;
class SeparateLineWidget;

class IMainWindowImpl
{
public:
    explicit IMainWindowImpl(IMainWindow* window);

    vorlin::FrameDrag drag;
    bool titleDoubleClicked = false;
    bool deviceLinked = false;
    std::atomic<std::uint64_t> userLastOperation{0};
    std::atomic<bool> userOperationTracking{false};
    QPointer<QWidget> titleWidget;
    QTranslator* translator = nullptr;
    int resizeBorderWidth = 8;
    SeparateLineWidget* topLine = nullptr;
    SeparateLineWidget* bottomLine = nullptr;
    SeparateLineWidget* leftLine = nullptr;
    SeparateLineWidget* rightLine = nullptr;
};
