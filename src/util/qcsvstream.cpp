#include "qcsvstream.h"

#include <QtCore/QDebug>
#include <QtCore/QFile>

QCsvStream::QCsvStream(const QString& filePath)
    : m_file(new QFile(filePath))
{
    m_opened = m_file->open(QIODevice::WriteOnly | QIODevice::Append);
    if (!m_opened)
        qDebug() << "Cannot open record file!";
}

QCsvStream::~QCsvStream()
{
    close();
    delete m_file;
}

bool QCsvStream::isOpen() const
{
    return m_opened && m_file->isOpen();
}

QCsvStream& QCsvStream::operator<<(const QString& field)
{
    write(m_atLineStart ? field : QLatin1Char(',') + field);
    m_atLineStart = false;
    return *this;
}

void QCsvStream::endRow()
{
    write(QStringLiteral("\r\n"));
    m_atLineStart = true;
}

void QCsvStream::close()
{
    m_file->close();
}

void QCsvStream::write(const QString& text)
{
    if (isOpen())
        m_file->write(text.toLocal8Bit());
}
