#pragma once

#include "vorlinglobal.h"

#include <QtCore/QString>

class QFile;

// Appends plain CSV rows to a file: fields joined by ",", rows ended by "\r\n", nothing
// quoted or escaped (a field holding "," or a line break splits the row). Text is written
// in the local 8-bit encoding, as a default QTextStream would.
class VORLIN_EXPORT QCsvStream
{
public:
    // Opens the file for appending; logs "Cannot open record file!" when that fails.
    explicit QCsvStream(const QString& filePath);
    ~QCsvStream();
    QCsvStream(const QCsvStream&) = delete;
    QCsvStream& operator=(const QCsvStream&) = delete;

    bool isOpen() const;
    // Writes one field, preceded by "," unless it starts the row.
    QCsvStream& operator<<(const QString& field);
    // Ends the current row; the next field starts a new one.
    void endRow();
    void close();

private:
    void write(const QString& text);

    bool m_atLineStart = true;
    bool m_opened = false;
    QFile* m_file;
};
