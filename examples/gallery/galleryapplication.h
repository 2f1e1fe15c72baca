#pragma once

#include "mainapplication.h"

// The gallery's application object: the library's start-up sequence plus the gallery's
// own translations.
class GalleryApplication : public MainApplication
{
    Q_OBJECT
public:
    GalleryApplication(int& argc, char** argv);

public Q_SLOTS:
    void configApplication() override;
};
