#pragma once

#include "mainapplication.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QPointer>

class QSound;
class QTextToSpeech;
class QTranslator;

class MainApplicationImpl
{
public:
    // Guarded so that a window deleted elsewhere is never deleted twice.
    QPointer<IMainWindow> mainWindow;
    QMap<QString, QWidget*> pages;
    QMap<MainApplication::language_role, QList<QTranslator*>> translators;
    QTextToSpeech* speech = nullptr;
    QSound* sound = nullptr;
    QDialog* loginDialog = nullptr;
    MainApplication::language_role currentLanguage = MainApplication::enLanguageLast;
};
