#pragma once

#include "vorlinglobal.h"

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QVariant>

// The properties of one module as its plug-in metadata describes them. The scan fills
// one per plug-in file without loading it; a loaded module keeps its own copy.
//
// Metadata keys, all under "MetaData" except the class name:
//   "className"          the module's class name (written by moc, top level)
//   "priority_number"    integer; smaller numbers sort first
//   "version_number"     the module version, up to three dot-separated numbers
//   "version_fixed"      the version of the fix level the module was built from, free text
//   "main_show_window"   optional boolean: the module shows the program's main window
//   "description"        free text
struct VORLIN_EXPORT ST_PropertyData
{
    QVariant className;
    QVariant priority;
    QVariant version;
    QVariant fixedVersion;
    QVariant mainShowWindow;
    QVariant filePath; // absolute path of the plug-in file; empty until scanned or loaded
    QVariant description;
};

using PropertyDataList = QList<ST_PropertyData>;

Q_DECLARE_METATYPE(ST_PropertyData)
